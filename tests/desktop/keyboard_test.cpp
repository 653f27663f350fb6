// The keyboard alone: the order of the Tab key, the keys that press, choose and type.
#include <gtest/gtest.h>

#include <QRadioButton>
#include <algorithm>

#include "tests/desktop/expected.h"
#include "tests/desktop/scenes.h"

namespace brolgan::test {
namespace {

using Names = std::vector<std::string>;

struct Wants {
  bool operator()(const Label* label) const { return static_cast<bool>(label->Click); }
  bool operator()(const TextBox* box) const { return box->TabStop; }
  bool operator()(const CommandButton*) const { return true; }
  bool operator()(const OptionButton* option) const { return option->Value; }
  bool operator()(const ComboBox*) const { return true; }
  bool operator()(const ListBox*) const { return true; }
  template <class Other>
  bool operator()(const Other*) const {
    return false;
  }
};

// The controls that a person can act on, in the order of the form's table; of options the chosen.
Names keyboardOrder(const Stage& stage, const std::string& form) {
  Names names;
  for (const ControlEntry& entry : stage.runtime.find(form)->controls().entries()) {
    if (isReachable(entry) && std::visit(Wants(), entry.control)) names.push_back(entry.fullName());
  }
  return names;
}

// Where the focus goes with a key, from where it is until it is there again.
Names walk(Stage& stage, const std::string& form, Qt::Key key, Qt::KeyboardModifiers with = Qt::NoModifier) {
  Names names = {stage.focus(form)};
  for (int i = 0; i < 150; ++i) {
    stage.press(form, key, with);
    if (stage.focus(form) == names.front()) return names;
    names.push_back(stage.focus(form));
  }
  return names;
}

void expectOrder(Stage& stage, const std::string& form) {
  Names order = keyboardOrder(stage, form);
  const auto start = std::find(order.begin(), order.end(), stage.focus(form));
  ASSERT_NE(start, order.end()) << stage.focus(form);
  std::rotate(order.begin(), start, order.end());
  EXPECT_EQ(walk(stage, form, Qt::Key_Tab), order);
  Names backwards = order;
  std::reverse(backwards.begin() + 1, backwards.end());
  EXPECT_EQ(walk(stage, form, Qt::Key_Backtab, Qt::ShiftModifier), backwards);
}

TEST(Keyboard, TabGoesThroughTheSetUp) {
  Stage stage;
  stage.start();
  EXPECT_EQ(keyboardOrder(stage, "Main"), (Names{"gracz(0)", "GraczM(0)", "gracz(1)", "GraczM(1)", "gracz(2)",
                                                 "GraczM(2)", "gracz(3)", "GraczM(3)", "ile_punktow", "Start"}));
  expectOrder(stage, "Main");
}

TEST(Keyboard, TabGoesThroughTheCreation) {
  Stage stage;
  setCreation(stage.world, 12);
  stage.open({"CTmhero"});
  expectOrder(stage, "CTmhero");
}

TEST(Keyboard, TabGoesThroughTheShopInEachMode) {
  for (int mode = 1; mode <= 4; ++mode) {
    SCOPED_TRACE(mode);
    Stage stage;
    setShop(stage.world, richHero(), mode);
    stage.open({"CTsklep"});
    expectOrder(stage, "CTsklep");
  }
}

TEST(Keyboard, TabGoesThroughThePreparation) {
  Stage stage;
  setPreparation(stage.world, richHero());
  stage.open({"Prefight"});
  expectOrder(stage, "Prefight");
}

TEST(Keyboard, TabGoesThroughTheFight) {
  Stage stage;
  setFight(stage.world, richHero());
  stage.open({"Fight"});
  expectOrder(stage, "Fight");
  stage.choose("Fight", "Czar", "BullShots");
  stage.world.roll(1, 4, {4});
  stage.click("Fight", "NastTura");
  ASSERT_TRUE(stage.isVisible("Fight", "FDamage"));
  ASSERT_TRUE(stage.tabTo("Fight", "Heroshow"));
  const Names order = walk(stage, "Fight", Qt::Key_Tab);
  EXPECT_EQ(order, keyboardOrder(stage, "Fight"));
  for (const char* name : {"mana", "CloseDMG"}) EXPECT_EQ(std::count(order.begin(), order.end(), name), 1) << name;
}

TEST(Keyboard, TabGoesThroughTheSheet) {
  Stage stage;
  setShop(stage.world, richHero());
  stage.open({"FHero"});
  EXPECT_EQ(keyboardOrder(stage, "FHero"), (Names{"Bron", "Stwory", "HeroClose"}));
  expectOrder(stage, "FHero");
}

TEST(Keyboard, FileNamesAreEditedWithoutOpeningCreation) {
  Stage stage;
  setTheTable(stage.world);
  stage.start();
  ASSERT_TRUE(stage.tabTo("Main", "gracz(1)"));
  ASSERT_TRUE(stage.tabTo("Main", "gracz(0)"));
  stage.typeKeys("Main", "śmiałek.boh");
  EXPECT_TRUE(stage.isShown("Main"));
  EXPECT_EQ(stage.face.window("CTmhero"), nullptr);
  EXPECT_FALSE(stage.world.exists("makehro.cfg"));
  EXPECT_EQ(stage.text("Main", "gracz(0)"), "śmiałek.boh");
  stage.click("Main", "gracz(0)");
  EXPECT_TRUE(stage.isShown("CTmhero"));
  EXPECT_EQ(stage.world.line("makehro.cfg", 1), "śmiałek.boh");
}

TEST(Keyboard, EnterAndSpacePressButtons) {
  for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Space}) {
    Stage stage;
    setCreation(stage.world, 12);
    stage.open({"CTmhero"});
    for (const auto& [control, points] : {std::pair("PLUS(0)", "11"), std::pair("MINUS(0)", "12")}) {
      ASSERT_TRUE(stage.tabTo("CTmhero", control));
      stage.press("CTmhero", key);
      EXPECT_EQ(stage.text("CTmhero", "Ile_jeszcze"), points) << key;
    }
  }
}

TEST(Keyboard, EnterAndSpacePressButtonsWithPictures) {
  for (const Qt::Key key : {Qt::Key_Space, Qt::Key_Return, Qt::Key_Enter}) {
    Stage stage;
    setShop(stage.world, richHero());
    stage.open({"CTsklep"});
    ASSERT_TRUE(stage.tabTo("CTsklep", "Heroshow"));
    stage.press("CTsklep", key);
    EXPECT_TRUE(stage.isShown("FHero")) << key;
  }
}

TEST(Keyboard, EnterAndSpacePressLabelsThatCanBeClicked) {
  for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Space}) {
    Stage stage;
    setCreation(stage.world, 12);
    stage.open({"CTmhero"});
    ASSERT_TRUE(stage.tabTo("CTmhero", "Czarn(2)"));
    stage.press("CTmhero", key);
    EXPECT_TRUE(stage.isRed("CTmhero", "Czarn(2)")) << key;
  }
}

TEST(Keyboard, ArrowsChooseTheClass) {
  Stage stage;
  setCreation(stage.world, 12);
  stage.open({"CTmhero"});
  ASSERT_TRUE(stage.tabTo("CTmhero", "Klasa(0)"));
  for (int i = 1; i < 10; ++i) {
    stage.press("CTmhero", Qt::Key_Down);
    EXPECT_TRUE(stage.get<QRadioButton>("CTmhero", member("Klasa", i)).isChecked()) << i;
    EXPECT_EQ(stage.text("CTmhero", "Ile_jeszcze"), i == 5 ? "16" : "12") << i;
  }
}

TEST(Keyboard, ArrowsChooseAWeapon) {
  Stage stage;
  setCreation(stage.world, 12);
  stage.open({"CTmhero"});
  ASSERT_TRUE(stage.tabTo("CTmhero", "LBronww"));
  stage.press("CTmhero", Qt::Key_Down);
  EXPECT_EQ(stage.text("CTmhero", "BWnazwa"), "Nóż");
  stage.press("CTmhero", Qt::Key_Down);
  stage.press("CTmhero", Qt::Key_Down);
  EXPECT_EQ(stage.text("CTmhero", "BWnazwa"), "Laska");
  stage.press("CTmhero", Qt::Key_Up);
  EXPECT_EQ(stage.text("CTmhero", "BWnazwa"), "Okuty kij");
}

TEST(Keyboard, ComboBoxesAnswerToArrowsLettersAndTheirOpenList) {
  Stage stage;
  setFight(stage.world, richHero());
  stage.open({"Fight"});
  ASSERT_TRUE(stage.tabTo("Fight", "Bron"));
  stage.press("Fight", Qt::Key_Down);
  EXPECT_EQ(stage.text("Fight", "Pstat(3)"), " 1k 4+ 1k 4+ 0+ 0%");
  stage.typeKeys("Fight", "p");
  EXPECT_EQ(stage.text("Fight", "Bron"), "Pistolet");
  EXPECT_EQ(stage.text("Fight", "Pstat(3)"), "1k8+ 2+ 0+ 0%");
  ASSERT_TRUE(stage.tabTo("Fight", "Czar"));
  stage.chooseWithArrows("Fight", "Czar", "BOOM!");
  EXPECT_EQ(stage.text("Fight", "mana"), "4");
}

TEST(Keyboard, NotesTakeTextAndLetTabThrough) {
  Stage stage;
  setPreparation(stage.world, richHero());
  stage.open({"Prefight"});
  ASSERT_TRUE(stage.tabTo("Prefight", "historia"));
  stage.typeKeys("Prefight", "Zażółć gęślą jaźń");
  EXPECT_EQ(stage.text("Prefight", "historia"), "Zażółć gęślą jaźń");
  stage.press("Prefight", Qt::Key_Tab);
  EXPECT_EQ(stage.focus("Prefight"), "Zakoncz");
  EXPECT_EQ(stage.text("Prefight", "historia"), "Zażółć gęślą jaźń");
}

TEST(Keyboard, FocusMovesOnWhenItsButtonIsSpent) {
  Stage stage;
  setFight(stage.world, richHero());
  stage.open({"Fight"});
  stage.choose("Fight", "Bron", "Nóż");
  stage.world.roll(1, 4, {1, 1});
  stage.world.roll(1, 120, {50});
  ASSERT_TRUE(stage.tabTo("Fight", "Atak"));
  stage.press("Fight", Qt::Key_Space);
  EXPECT_FALSE(stage.isEnabled("Fight", "Atak"));
  EXPECT_NE(stage.focus("Fight"), "");
  EXPECT_TRUE(stage.isEnabled("Fight", stage.focus("Fight")));
}

}  // namespace
}  // namespace brolgan::test
