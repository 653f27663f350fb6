// What the windows tell a screen reader.
#include <gtest/gtest.h>

#include <QAccessible>

#include "tests/desktop/expected.h"
#include "tests/desktop/scenes.h"

namespace brolgan::test {
namespace {

QAccessibleInterface& told(Stage& stage, const std::string& form, const std::string& control) {
  return *QAccessible::queryAccessibleInterface(&stage.at(form, control));
}

std::string name(Stage& stage, const std::string& form, const std::string& control) {
  return told(stage, form, control).text(QAccessible::Name).toStdString();
}

// The events that the windows send out, as "kind: name of the control".
std::vector<std::string> sent;

void record(QAccessibleEvent* event) {
  if (event->type() != QAccessible::ObjectShow || event->object() == nullptr) return;
  sent.push_back(event->object()->objectName().toStdString());
}

TEST(Access, NamesFollowTheirValues) {
  Stage stage;
  setShop(stage.world, richHero());
  stage.open({"CTsklep"});
  EXPECT_EQ(name(stage, "CTsklep", "Ile_jeszcze"), "Pozostało punktów: 40");
  stage.click("CTsklep", "PLUS(0)");
  EXPECT_EQ(name(stage, "CTsklep", "Ile_jeszcze"), "Pozostało punktów: 38");
  EXPECT_EQ(name(stage, "CTsklep", "stat1(1)"), "Wytrzymałość, stopień 15, obecny");
}

TEST(Access, GoodsAreCheckedWhenTheyAreOwned) {
  Stage stage;
  setCreation(stage.world, 12);
  stage.open({"CTmhero"});
  QAccessibleInterface& spell = told(stage, "CTmhero", "Czarn(0)");
  EXPECT_EQ(spell.role(), QAccessible::CheckBox);
  EXPECT_TRUE(spell.state().checkable);
  EXPECT_FALSE(spell.state().checked);
  spell.actionInterface()->doAction(QAccessibleActionInterface::toggleAction());
  Stage::settle();
  EXPECT_TRUE(spell.state().checked);
  EXPECT_EQ(name(stage, "CTmhero", "Czarn(0)"), "Leczenie, masz");
  EXPECT_EQ(stage.text("CTmhero", "Ile_jeszcze"), "11");
  told(stage, "CTmhero", "Czarn(4)").actionInterface()->doAction(QAccessibleActionInterface::toggleAction());
  EXPECT_FALSE(told(stage, "CTmhero", "Czarn(4)").state().checked);
}

TEST(Access, ABlowIsAnnouncedWhenItFallsAndOnlyThen) {
  Stage stage;
  Bohater hero = richHero();
  hero.OstatniaBron = "Nóż";
  FightSetup setup = plainFight();
  setup.potwor.Wytrzymalosc = 1;
  setFight(stage.world, hero, setup);
  stage.open({"Fight"});
  QAccessible::setActive(true);
  const auto before = QAccessible::installUpdateHandler(record);
  sent.clear();
  stage.choose("Fight", "Czar", "BOOM!");
  const auto reports = [] {
    std::vector<std::string> found;
    for (const std::string& control : sent) {
      if (control == "IleZad" || control == "OpisZad") found.push_back(control);
    }
    return found;
  };
  EXPECT_EQ(reports(), std::vector<std::string>());
  stage.world.roll(1, 4, {2, 2});
  stage.world.roll(1, 120, {1});
  stage.click("Fight", "Atak");
  EXPECT_EQ(std::count(sent.begin(), sent.end(), "IleZad") > 0, true);
  EXPECT_EQ(std::count(sent.begin(), sent.end(), "OpisZad") > 0, true);
  EXPECT_EQ(name(stage, "Fight", "OpisZad"), "Czysto!");
  EXPECT_EQ(told(stage, "Fight", "IleZad").role(), QAccessible::Notification);
  QAccessible::installUpdateHandler(before);
}

}  // namespace
}  // namespace brolgan::test
