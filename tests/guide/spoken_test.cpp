// What a screen reader says of the controls.
#include "game/guide/spoken.h"

#include <gtest/gtest.h>

#include "tests/desktop/scenes.h"

namespace brolgan::test {
namespace {

class Spoken : public testing::Test {
 protected:
  std::string say(const std::string& screen, const std::string& control) {
    return spoken(screen, world.form(screen).controls().find(control));
  }
  World world;
};

TEST_F(Spoken, TheSetUpSaysWhoPlays) {
  setTheTable(world);
  world.runtime.Show("Main");
  EXPECT_EQ(say("Main", "gracz(0)"), "Plik bohatera gracza 1");
  EXPECT_EQ(say("Main", "Czygra(0)"), "Gracz 1 nie gra");
  world.click("Main", "GraczM(0)");
  EXPECT_EQ(say("Main", "Czygra(0)"), "Gracz 1 gra");
  EXPECT_EQ(say("Main", "Label1"), "");
}

TEST_F(Spoken, TheDepartmentsSayStepsGoodsAndPrices) {
  setCreation(world, 12);
  world.runtime.Show("CTmhero");
  EXPECT_EQ(say("CTmhero", "Ile_jeszcze"), "Pozostało punktów: 12");
  EXPECT_EQ(say("CTmhero", "stat1(0)"), "Wytrzymałość, stopień 12, obecny");
  EXPECT_EQ(say("CTmhero", "stat1(1)"), "Wytrzymałość, stopień 15");
  EXPECT_EQ(say("CTmhero", "stat7(0)"), "Wcielenia, stopień 1, obecny");
  EXPECT_EQ(say("CTmhero", "Czarn(0)"), "Leczenie");
  world.click("CTmhero", "Czarn(0)");
  EXPECT_EQ(say("CTmhero", "Czarn(0)"), "Leczenie, masz");
  EXPECT_EQ(say("CTmhero", "czarc(3)"), "BOOM !, cena 4");
  EXPECT_EQ(say("CTmhero", "Speccena(0)"), "Moździerz, cena 1");
  world.click("CTmhero", "PLUS(8)");
  EXPECT_EQ(say("CTmhero", "wyp(1)"), "10 x ammo +k6, masz 10");
  EXPECT_EQ(say("CTmhero", "MINUS(6)"), "Wcielenia, minus");
  EXPECT_EQ(say("CTmhero", "PLUS(7)"), "Granat, plus");
  world.select("CTmhero", "LBronww", "Nóż");
  EXPECT_EQ(say("CTmhero", "BWnazwa"), "Wybrana broń do walki wręcz: Nóż, masz");
  EXPECT_EQ(say("CTmhero", "BSdmg"), "Obrażenia broni strzeleckiej: 0");
}

TEST_F(Spoken, TheNameAloneLeavesTheValueOut) {
  setCreation(world, 12);
  world.runtime.Show("CTmhero");
  world.select("CTmhero", "LBronww", "Nóż");
  const ControlEntry& weapons = world.form("CTmhero").controls().find("LBronww");
  EXPECT_EQ(spoken("CTmhero", weapons), "Broń do walki wręcz: Nóż");
  EXPECT_EQ(spokenName("CTmhero", weapons), "Broń do walki wręcz");
  EXPECT_EQ(spokenName("CTmhero", world.form("CTmhero").controls().find("Label1")), "");
}

TEST_F(Spoken, TheShopSaysWhatIsLeft) {
  setShop(world, richHero());
  world.runtime.Show("CTsklep");
  EXPECT_EQ(say("CTsklep", "akt(0)"), "Obecna wytrzymałość: 9");
  EXPECT_EQ(say("CTsklep", "Tura"), "Tura numer: 1");
  EXPECT_EQ(say("CTsklep", "Speccena(0)"), "Moździerz, cena 7");
}

TEST_F(Spoken, ThePreparationTellsTheMaximumFromTheCurrentValue) {
  setPreparation(world, richHero());
  world.runtime.Show("Prefight");
  EXPECT_EQ(say("Prefight", "stat(0)"), "Najwyższa wytrzymałość: 12");
  EXPECT_EQ(say("Prefight", "cur(0)"), "Obecna wytrzymałość: 9");
  EXPECT_EQ(say("Prefight", "Moname"), "Potwór: Komary");
  EXPECT_EQ(say("Prefight", "Przedmioty"), "Przedmioty");
}

TEST_F(Spoken, TheFightSaysFiguresAndChoices) {
  setFight(world, richHero());
  world.runtime.Show("Fight");
  EXPECT_EQ(say("Fight", "LIle"), "Ilu przeciwników zostało: 1");
  EXPECT_EQ(say("Fight", "Bron"), "Broń");
  world.select("Fight", "Bron", "Nóż");
  EXPECT_EQ(say("Fight", "Bron"), "Broń: Nóż");
  world.get<Label>("Fight", "IleZad").Caption = " 12  7 ";
  EXPECT_EQ(say("Fight", "IleZad"), "Zadałeś: 12  7");
  EXPECT_EQ(say("Fight", "Mstat(0)"), "Wytrzymałość potwora: 20");
}

TEST_F(Spoken, GoodsBoughtByTheirNameAreCheckable) {
  setShop(world, richHero());
  world.runtime.Show("CTsklep");
  const auto& table = world.form("CTsklep").controls();
  EXPECT_TRUE(isCheckable("CTsklep", table.find("Czarn(0)")));
  EXPECT_TRUE(isChecked(table.find("Czarn(0)")));
  EXPECT_TRUE(isCheckable("CTsklep", table.find("Spec(0)")));
  EXPECT_FALSE(isChecked(table.find("Spec(0)")));
  EXPECT_FALSE(isCheckable("CTsklep", table.find("stat1(0)")));
}

}  // namespace
}  // namespace brolgan::test
