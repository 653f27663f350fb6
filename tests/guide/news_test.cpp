// What of a fight is told as it happens.
#include "game/guide/news.h"

#include <gtest/gtest.h>

#include "tests/desktop/scenes.h"

namespace brolgan::test {
namespace {

using Reports = std::vector<std::string>;

// A fight followed by somebody who is told the news.
class Told {
 public:
  Told(const Bohater& hero, const FightSetup& setup) { setFight(world, hero, setup); }

  Reports open() {
    world.runtime.Show("Fight");
    return news_.take("Fight", form());
  }
  Reports click(const std::string& control) {
    news_.expect("Fight", form(), control);
    EXPECT_TRUE(world.click("Fight", control)) << control;
    return news_.take("Fight", form());
  }
  void rollBlow(int strength, int weapon = 0) {
    weapon == 0 ? world.roll(1, 4, {strength, strength}) : world.roll(1, 4, {strength});
    if (weapon != 0) world.roll(1, 6, {weapon});
    world.roll(1, 120, {1});
  }

  World world;

 private:
  Form& form() { return world.form("Fight"); }
  News news_;
};

Bohater knifeFighter() {
  Bohater hero = richHero();
  hero.OstatniaBron = "Nóż";
  return hero;
}

FightSetup monsters(int count, int life) {
  FightSetup setup = plainFight();
  setup.potwor.Ilosc = count;
  setup.potwor.Wytrzymalosc = life;
  setup.potwor.Atak = {1, 1, 1, 2};
  return setup;
}

TEST(News, TheFirstStrikeIsToldWhenTheFightOpensAndNotAgain) {
  FightSetup setup = monsters(1, 1000);
  setup.PotworPierwszy = 1;
  Told fight(knifeFighter(), setup);
  fight.world.roll(1, 1, {1});
  EXPECT_EQ(fight.open(), Reports{"IleDMG"});
  EXPECT_EQ(fight.click("Bron"), Reports());
}

TEST(News, ABlowOfTheSameStrengthIsToldEachTime) {
  Told fight(knifeFighter(), monsters(1, 1000));
  EXPECT_EQ(fight.open(), Reports());
  for (int round = 0; round < 2; ++round) {
    fight.rollBlow(2);
    EXPECT_EQ(fight.click("Atak"), Reports{"IleZad"}) << round;
    fight.world.roll(1, 1, {1});
    EXPECT_EQ(fight.click("NastTura"), Reports{"IleDMG"}) << round;
  }
}

TEST(News, ABlowThatIsRefusedIsNotTold) {
  Bohater hero = knifeFighter();
  hero.OstatniCzar = "Damage!";
  Told fight(hero, monsters(1, 1000));
  fight.open();
  fight.world.roll(1, 6, {2, 2, 2});
  EXPECT_EQ(fight.click("Rzuc"), Reports{"IleZad"});
  ASSERT_TRUE(fight.world.isEnabled("Fight", "Atak"));
  EXPECT_EQ(fight.click("Atak"), Reports());
}

TEST(News, EachDeathIsToldWhateverKills) {
  Bohater hero = richHero();
  hero.MaBronww(2) = true;
  hero.OstatniaBron = "Laska";
  hero.OstatniCzar = "Damage!";
  Told fight(hero, monsters(3, 1));
  fight.open();
  fight.rollBlow(2, 2);
  EXPECT_EQ(fight.click("Atak"), (Reports{"IleZad", "OpisZad"}));
  fight.world.roll(1, 6, {2, 2, 2});
  EXPECT_EQ(fight.click("Rzuc"), (Reports{"IleZad", "OpisZad"}));
  EXPECT_EQ(fight.world.caption("Fight", "OpisZad"), "Zabity!");
}

TEST(News, AnOldWarningIsNotToldWithANewBlow) {
  Bohater hero = richHero();
  hero.MaBronss(9) = true;
  hero.OstatniaBron = "UltiGun";
  hero.OstatniPrzedmiot = "Granat";
  Told fight(hero, monsters(1, 1000));
  fight.open();
  fight.world.roll(1, 140, {50});
  fight.world.roll(1, 8, {1, 1, 1, 1, 1});
  fight.world.roll(1, 10, {1});
  EXPECT_EQ(fight.click("Atak"), (Reports{"IleZad", "Uwaga"}));
  fight.world.roll(1, 30, {4});
  EXPECT_EQ(fight.click("Uzyj"), Reports{"IleZad"});
}

TEST(News, AnOldDeathIsNotToldWithANewBlow) {
  Bohater hero = knifeFighter();
  hero.OstatniPrzedmiot = "Granat";
  FightSetup setup = monsters(2, 5);
  Told fight(hero, setup);
  fight.open();
  fight.rollBlow(4);
  EXPECT_EQ(fight.click("Atak"), (Reports{"IleZad", "OpisZad"}));
  fight.world.roll(1, 30, {4});
  EXPECT_EQ(fight.click("Uzyj"), Reports{"IleZad"});
}

TEST(News, AGrenadeOfTheSameFigureIsTold) {
  Bohater hero = knifeFighter();
  hero.OstatniPrzedmiot = "Granat";
  Told fight(hero, monsters(1, 1000));
  fight.open();
  fight.rollBlow(2);
  fight.click("Atak");
  fight.world.roll(1, 30, {4});
  EXPECT_EQ(fight.click("Uzyj"), Reports{"IleZad"});
}

TEST(News, AReportThatWasClosedIsToldWhenItOpensAgain) {
  Told fight(knifeFighter(), monsters(1, 1000));
  fight.open();
  fight.rollBlow(2);
  fight.click("Atak");
  EXPECT_EQ(fight.click("CloseZad"), Reports());
  fight.world.roll(1, 1, {1});
  fight.click("NastTura");
  fight.rollBlow(2);
  EXPECT_EQ(fight.click("Atak"), Reports{"IleZad"});
}

TEST(News, OnlyTheFightHasAny) {
  World world;
  setShop(world, richHero());
  world.runtime.Show("CTsklep");
  News news;
  news.expect("CTsklep", world.form("CTsklep"), "PLUS(0)");
  world.click("CTsklep", "PLUS(0)");
  EXPECT_EQ(news.take("CTsklep", world.form("CTsklep")), Reports());
}

TEST(News, BlowsAndDeathsAreAnnouncedAndFiguresAreNot) {
  World world;
  setFight(world, richHero());
  world.runtime.Show("Fight");
  const auto& table = world.form("Fight").controls();
  for (const char* const report : {"IleZad", "OpisZad", "IleDMG", "OpisDMG", "Uwaga"}) {
    EXPECT_TRUE(isAnnounced("Fight", table.find(report))) << report;
  }
  EXPECT_FALSE(isAnnounced("Fight", table.find("Pstat(0)")));
  EXPECT_TRUE(isBlowDealt("IleZad"));
  EXPECT_FALSE(isBlowDealt("IleDMG"));
}

TEST(News, TheGroupIsGoneWhenItsLastMonsterHasFallen) {
  Told fight(knifeFighter(), monsters(1, 1));
  fight.open();
  EXPECT_FALSE(isGroupGone("Fight", fight.world.form("Fight")));
  fight.rollBlow(2);
  fight.click("Atak");
  EXPECT_TRUE(isGroupGone("Fight", fight.world.form("Fight")));
}

}  // namespace
}  // namespace brolgan::test
