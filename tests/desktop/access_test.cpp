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

TEST(Access, ReportsAreNoticesThatTellTheirFigure) {
  Stage stage;
  Bohater hero = richHero();
  hero.OstatniaBron = "Nóż";
  FightSetup setup = plainFight();
  setup.potwor.Wytrzymalosc = 1;
  setFight(stage.world, hero, setup);
  stage.open({"Fight"});
  stage.world.roll(1, 4, {2, 2});
  stage.world.roll(1, 120, {1});
  stage.click("Fight", "Atak");
  EXPECT_EQ(told(stage, "Fight", "IleZad").role(), QAccessible::Notification);
  EXPECT_EQ(name(stage, "Fight", "IleZad"), "Zadałeś: 4");
  EXPECT_EQ(name(stage, "Fight", "OpisZad"), "Czysto!");
}

TEST(Access, ListsToDropDownAreCalledByNameAndValue) {
  Stage stage;
  setFight(stage.world, richHero());
  stage.open({"Fight"});
  EXPECT_EQ(name(stage, "Fight", "Bron"), "Broń");
  stage.choose("Fight", "Bron", "Nóż");
  EXPECT_EQ(name(stage, "Fight", "Bron"), "Broń: Nóż");
  QAccessibleInterface& list = told(stage, "Fight", "Bron");
  EXPECT_EQ(list.text(QAccessible::Value), "Nóż");
  ASSERT_EQ(list.childCount(), 1);
  EXPECT_EQ(list.child(0)->role(), QAccessible::List);
}

}  // namespace
}  // namespace brolgan::test
