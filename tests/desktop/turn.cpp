#include "tests/desktop/turn.h"

#include <gtest/gtest.h>

#include <QLabel>
#include <QRadioButton>

#include "tests/desktop/expected.h"
#include "tests/desktop/scenes.h"

namespace brolgan::test {

namespace {

std::vector<Deed> clicks(const std::string& form, const std::vector<std::string>& controls) {
  std::vector<Deed> deeds;
  for (const std::string& control : controls) deeds.push_back({form, Doing::click, control, {}});
  return deeds;
}

void add(std::vector<Deed>& deeds, const std::vector<Deed>& more) {
  deeds.insert(deeds.end(), more.begin(), more.end());
}

std::vector<Deed> createFirstHero() {
  std::vector<Deed> deeds = {{"Main", Doing::write, "ile_punktow", "22"},
                             {"Main", Doing::click, "GraczM(0)", {}},
                             {"CTmhero", Doing::write, "Imie", "Żółć Łódzka"}};
  add(deeds, clicks("CTmhero", {"Klasa(5)", "Klasa(0)", "PLUS(0)", "PLUS(0)", "MINUS(0)", "PLUS(2)", "PLUS(2)",
                                "PLUS(7)", "PLUS(8)", "PLUS(8)", "MINUS(8)"}));
  deeds.push_back({"CTmhero", Doing::choose, "LBronww", "Tasak"});
  add(deeds, clicks("CTmhero", {"Kupww", "Sprzedajww", "Kupww"}));
  deeds.push_back({"CTmhero", Doing::choose, "Lbronss", "Pistolet"});
  add(deeds, clicks("CTmhero", {"Kupss", "Czarn(0)", "Czarn(2)", "Czarn(9)", "Czarn(9)", "Spec(0)", "Save"}));
  return deeds;
}

std::vector<Deed> createSecondHero() {
  return {{"Main", Doing::click, "GraczM(1)", {}},
          {"CTmhero", Doing::write, "Imie", "Druga"},
          {"CTmhero", Doing::click, "Klasa(3)", {}},
          {"CTmhero", Doing::click, "Save", {}}};
}

std::vector<Deed> shopAndPrepare() {
  std::vector<Deed> deeds = {{"Main", Doing::click, "Start", {}}};
  add(deeds, clicks("CTsklep", {"PLUS(1)", "PLUS(7)", "Czarn(9)"}));
  deeds.push_back({"CTsklep", Doing::choose, "LBronww", "Nóż"});
  add(deeds, clicks("CTsklep", {"Kupww", "w1"}));
  deeds.push_back({"Prefight", Doing::choose, "Czary", "Leczenie"});
  deeds.push_back({"Prefight", Doing::click, "Rzuc", {}});
  deeds.push_back({"Prefight", Doing::write, "historia", "Idę na komary. "});
  deeds.push_back({"Prefight", Doing::click, "Rzuc", {}});
  deeds.push_back({"Prefight", Doing::click, "Zakoncz", {}});
  return deeds;
}

std::vector<Deed> fight() {
  return {{"Fight", Doing::choose, "Bron", "Tasak"}, {"Fight", Doing::choose, "Przedmiot", "Ammo"},
          {"Fight", Doing::click, "Uzyj", {}},       {"Fight", Doing::click, "Atak", {}},
          {"Fight", Doing::click, "CloseZad", {}},   {"Fight", Doing::click, "NastTura", {}},
          {"Fight", Doing::click, "CloseDMG", {}},   {"Fight", Doing::choose, "Czar", "BullShots"},
          {"Fight", Doing::write, "mana", "4"},      {"Fight", Doing::click, "Rzuc", {}},
          {"Fight", Doing::click, "NastTura", {}}};
}

// The next press of Tab goes to the control after the one that has the focus.
void mustTabTo(Stage& stage, const Deed& deed, const std::string& control) {
  ASSERT_TRUE(stage.tabTo(deed.form, control))
      << deed.form << "." << control << ", the focus is on " << stage.focus(deed.form);
}

// Tab leads to the option of an array that is chosen; the arrows go on from there.
void chooseOption(Stage& stage, const Deed& deed) {
  const std::string array = deed.control.substr(0, deed.control.find('('));
  int chosen = 0;
  while (!stage.get<QRadioButton>(deed.form, member(array, chosen)).isChecked()) ++chosen;
  mustTabTo(stage, deed, member(array, chosen));
  const int wanted = std::stoi(deed.control.substr(array.size() + 1));
  for (; chosen < wanted; ++chosen) stage.press(deed.form, Qt::Key_Down);
  for (; chosen > wanted; --chosen) stage.press(deed.form, Qt::Key_Up);
}

void clickByKeyboard(Stage& stage, const Deed& deed) {
  QWidget& widget = stage.at(deed.form, deed.control);
  if (qobject_cast<QRadioButton*>(&widget) != nullptr) return chooseOption(stage, deed);
  mustTabTo(stage, deed, deed.control);
  stage.press(deed.form, qobject_cast<QLabel*>(&widget) != nullptr ? Qt::Key_Return : Qt::Key_Space);
}

}  // namespace

std::vector<Deed> wholeTurn() {
  std::vector<Deed> deeds = createFirstHero();
  add(deeds, createSecondHero());
  add(deeds, shopAndPrepare());
  add(deeds, fight());
  return deeds;
}

void setTurn(World& world) {
  setTheTable(world);
  world.roll(1, 4, {1});     // the first shop is open
  world.roll(1, 5, {2});     // a group of three comes
  world.roll(1, 6, {4, 6});  // two healings before the fight
  world.roll(1, 4, {2});     // the blow: strength, weapon, growth
  world.roll(1, 8, {3});
  world.roll(1, 120, {60});
  world.roll(1, 6, {1, 1, 2});  // three monsters strike
  world.roll(1, 6, {6, 6, 6});  // the spell
  world.roll(1, 4, {3});        // the second shop sells spells
}

void doByMouse(Stage& stage, const Deed& deed) {
  switch (deed.doing) {
    case Doing::click:
      return stage.click(deed.form, deed.control);
    case Doing::choose:
      return stage.choose(deed.form, deed.control, deed.with);
    case Doing::write:
      return stage.write(deed.form, deed.control, deed.with);
  }
}

void doByKeyboard(Stage& stage, const Deed& deed) {
  if (deed.doing == Doing::click) return clickByKeyboard(stage, deed);
  mustTabTo(stage, deed, deed.control);
  if (deed.doing == Doing::choose) {
    stage.chooseWithArrows(deed.form, deed.control, deed.with);
  } else {
    stage.press(deed.form, Qt::Key_A, Qt::ControlModifier);
    stage.typeKeys(deed.form, deed.with);
  }
}

void doByHand(World& world, const Deed& deed) {
  switch (deed.doing) {
    case Doing::click:
      ASSERT_TRUE(world.click(deed.form, deed.control)) << deed.control;
      break;
    case Doing::choose:
      ASSERT_TRUE(world.select(deed.form, deed.control, deed.with)) << deed.control;
      break;
    case Doing::write:
      ASSERT_TRUE(world.type(deed.form, deed.control, deed.with)) << deed.control;
      break;
  }
}

}  // namespace brolgan::test
