// The figures of the screen, the damage text in its three forms, and the small windows beside it.
#include "flow/stage/hands.h"
#include "tests/fight/fixture.h"

namespace brolgan::test {
namespace {

using FightFigures = FightTest;
using DamageText = FightTest;
using FightSheet = FightTest;

TEST_F(FightFigures, AreWrittenAsPlainDecimalTextWithoutBlanks) {
  hero.AktWytrzymalosc = 11;
  hero.AktMoc = -3;
  hero.Wartosci(1) = 4;
  fight.BonusPancerza = 7;
  fight.potwor.Szybkosc = -2;
  fight.potwor.Atak = {1, 6, 2, 0};
  group(3, 25, 6);
  open();

  EXPECT_EQ(caption("LIle"), "3");
  EXPECT_EQ(caption("Odl"), "BLISKA");
  EXPECT_EQ(caption("Pstat(0)"), "11");
  EXPECT_EQ(caption("Pstat(1)"), "11");
  EXPECT_EQ(caption("Pstat(2)"), "-3");
  EXPECT_EQ(caption("Mstat(0)"), "25");
  EXPECT_EQ(caption("Mstat(1)"), "6");
  EXPECT_EQ(caption("Mstat(2)"), "-2");
  EXPECT_EQ(caption("Mstat(3)"), " 2k 6");
}

TEST_F(FightFigures, LoadThePictureAtEveryRedraw) {
  open();
  EXPECT_EQ(world.pictures.loaded, (std::vector<std::string>{"szczur.jpg"}));
  EXPECT_EQ(world.get<PictureBox>("Fight", "Potwór").Picture, "szczur.jpg");
  nextRound();

  EXPECT_EQ(world.pictures.loaded.size(), 2U);
}

TEST_F(FightFigures, OfTheMonsterStayWhenNoneIsLeftAndNoPictureIsLoaded) {
  fight.potwor.Szybkosc = 8;
  ready("Miecz");
  group(1, 20, 3);
  open();
  const auto loads = world.pictures.loaded.size();
  blow();

  EXPECT_EQ(caption("LIle"), "0");
  EXPECT_EQ(caption("Mstat(0)"), "20");
  EXPECT_EQ(caption("Mstat(1)"), "3");
  EXPECT_EQ(caption("Mstat(2)"), "8");
  EXPECT_EQ(world.pictures.loaded.size(), loads);
}

TEST_F(FightFigures, OfTheMonsterAreThoseOfTheCurrentTarget) {
  ready("Nóż");
  group(2, 20);
  open();
  blow();
  EXPECT_EQ(caption("Mstat(0)"), "10");
  fellTarget();

  EXPECT_EQ(caption("LIle"), "1");
  EXPECT_EQ(caption("Mstat(0)"), "20");
}

TEST_F(DamageText, WithoutAWeaponIsTheHeroesDiceAlone) {
  hero.MO = {1, 4, 1, 0};
  open();

  EXPECT_EQ(caption("Pstat(3)"), " 1k 4");
}

TEST_F(DamageText, OfAMeleeWeaponJoinsTheHeroesDiceTheWeaponsAndItsBonuses) {
  hero.MO = {1, 6, 2, 3};
  ready("Tasak");
  weapon("Tasak").kostka = {1, 8, 1, 2};
  hero.BronwwPlus(5) = 5;
  hero.BronwwProc(5) = 45;
  open();

  EXPECT_EQ(caption("Pstat(3)"), "2k6+ 3+1k8+ 2+ 5+ 45%");
}

TEST_F(DamageText, OfAMeleeWeaponWithoutAdditionKeepsTheOtherFormOfTheDice) {
  hero.MO = {1, 6, 2, 3};
  ready("Tasak");
  weapon("Tasak").kostka = {1, 8, 1, 0};
  open();

  EXPECT_EQ(caption("Pstat(3)"), "2k6+ 3+ 1k 8+ 0+ 0%");
}

TEST_F(DamageText, OfARangedWeaponLeavesTheHeroesDiceOut) {
  hero.MO = {1, 6, 2, 3};
  ready("Pistolet");
  weapon("Pistolet").kostka = {1, 10, 2, 0};
  hero.BronssProc(1) = 55;
  open();

  EXPECT_EQ(caption("Pstat(3)"), " 2k 10+ 0+ 55%");
}

TEST_F(DamageText, ShowsTheFlatBonusAndPercentOfARangedWeaponThoughItsDamageDoesNotUseThem) {
  ready("Pistolet");
  hero.BronssProc(1) = 55;
  hero.BronssPlus(1) = 5;
  open();
  EXPECT_EQ(caption("Pstat(3)"), "+ 5+ 55%");
  shot(1);

  EXPECT_EQ(caption("Mstat(0)"), "10");
}

TEST_F(DamageText, ShowsNegativeBonusesWithTheirSign) {
  ready("Tasak");
  hero.BronwwPlus(5) = -3;
  hero.BronwwProc(5) = -20;
  open();

  EXPECT_EQ(caption("Pstat(3)"), "++-3+-20%");
}

TEST_F(DamageText, FollowsThePercentAsItGrows) {
  ready("Nóż");
  hero.BronwwProc(0) = 45;
  open();
  EXPECT_EQ(caption("Pstat(3)"), "++ 0+ 45%");
  blow(46);

  EXPECT_EQ(caption("Pstat(3)"), "++ 0+ 47%");
}

TEST_F(FightFigures, CloseZadHidesTheReportAndKeepsItsWords) {
  ready("Nóż");
  group(2, 10);
  open();
  blow();
  ASSERT_TRUE(shown("FZad"));

  EXPECT_TRUE(press("CloseZad"));

  EXPECT_FALSE(shown("FZad"));
  EXPECT_EQ(caption("IleZad"), " 10 ");
  EXPECT_EQ(caption("OpisZad"), "Zabity!");
  EXPECT_FALSE(press("CloseZad"));
}

TEST_F(FightSheet, OpensBesideTheFightAndShowsTheHeroAsHeCame) {
  fight.PotworPierwszy = 1;
  strikesWith(3);
  hero.Imie = "Kosiarz";
  open();
  const std::string before = world.files.contents["hero1.boh"];

  EXPECT_TRUE(press("Heroshow"));

  EXPECT_TRUE(world.isShown("Fight"));
  EXPECT_TRUE(world.isShown("FHero"));
  EXPECT_EQ(world.caption("FHero", "Imie"), "Kosiarz");
  EXPECT_EQ(world.files.contents["hero1.boh"], before);
}

TEST_F(FightSheet, IsLoadedAfreshAtEveryClick) {
  open();
  press("Heroshow");
  hero.Imie = "Inny";
  world.writeHero("hero1.boh", hero);
  press("Heroshow");

  EXPECT_EQ(world.caption("FHero", "Imie"), "Inny");
}

TEST_F(FightFigures, ClosingTheWindowUnloadsTheFightAndWritesNothing) {
  strikesWith(3);
  open();
  nextRound();
  const auto before = world.files.contents;

  closeWindow(world.runtime, "Fight");

  EXPECT_FALSE(world.isOpen("Fight"));
  EXPECT_EQ(world.files.contents, before);
  EXPECT_FALSE(world.runtime.ended());
}

}  // namespace
}  // namespace brolgan::test
