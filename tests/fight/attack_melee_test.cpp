// The hero's blows: when one may be struck, what it costs, what it does and how the weapon grows.
#include "tests/fight/fixture.h"

namespace brolgan::test {
namespace {

using Blow = FightTest;
using Berserker = FightTest;

// Every melee weapon of the catalogue, by its place.
class MeleePlaces : public FightTest, public ::testing::WithParamInterface<int> {
 protected:
  MeleePlaces() { deals(name, 10); }

  std::string name = kWeaponNames.at(static_cast<std::size_t>(GetParam()));
  bool staff = GetParam() >= 1 && GetParam() <= 4;
};

TEST_P(MeleePlaces, ABlowClosesTheAttackAndOnlyAStaffLeavesTheSpellOpen) {
  ready(name);
  open();
  blow();

  EXPECT_EQ(openActions(), staff ? "Rzuc Uzyj" : "Uzyj");
}

TEST_P(MeleePlaces, AfterASpellOnlyAStaffStrikes) {
  hero.AktMoc = 4;
  readySpell("Kaczy Fart");
  ready(name);
  open();
  cast();
  if (staff) world.roll(1, 120, {120});

  EXPECT_TRUE(press("Atak"));

  EXPECT_EQ(caption("Mstat(0)"), staff ? "10" : "20");
  EXPECT_EQ(openActions(), staff ? "Uzyj" : "Atak Uzyj");
}

TEST_P(MeleePlaces, ASpellMayFollowABlowWithAStaffAlone) {
  hero.AktMoc = 4;
  readySpell("Kaczy Fart");
  ready(name);
  open();
  blow();
  press("Rzuc");

  EXPECT_EQ(caption("Pstat(2)"), staff ? "0" : "4");
}

INSTANTIATE_TEST_SUITE_P(Places, MeleePlaces, ::testing::Range(0, 10));

TEST_F(Blow, WithoutAWeaponDoesNothingButLookForTheFallen) {
  group(2, 0);
  open();

  EXPECT_TRUE(press("Atak"));

  EXPECT_EQ(caption("OpisZad"), "Czysto!");
  EXPECT_FALSE(shown("FZad"));
  EXPECT_TRUE(played().empty());
}

TEST_F(Blow, WithoutAWeaponLeavesTheActionsOpen) {
  open();
  EXPECT_TRUE(press("Atak"));

  EXPECT_EQ(openActions(), "Atak Rzuc Uzyj");
  EXPECT_EQ(caption("OpisZad"), "");
}

TEST_F(Blow, ThrowsTheHeroesDiceThenTheWeaponsThenTheGrowth) {
  hero.MO = {1, 6, 2, 0};
  ready("Tasak");
  weapon("Tasak").kostka = {1, 30, 1, 0};
  hero.BronwwProc(5) = 100;
  group(1, 100);
  open();
  world.roll(1, 6, {1, 6});
  world.roll(1, 30, {25});
  world.roll(1, 120, {75});

  EXPECT_TRUE(press("Atak"));

  EXPECT_EQ(caption("IleZad"), " 39 ");
  EXPECT_EQ(caption("Pstat(3)"), " 2k 6+ 1k 30+ 0+ 100%");
}

TEST_F(Blow, OfTheWorkedExampleDealsTwentyNineLessTheArmour) {
  hero.MO = {1, 6, 2, 3};
  ready("Tasak");
  hero.BronwwProc(5) = 45;
  hero.BronwwPlus(5) = 5;
  weapon("Tasak").kostka = {1, 8, 1, 2};
  group(1, 100, 4);
  open();
  world.roll(1, 6, {3, 4});
  world.roll(1, 8, {5});
  blow();

  EXPECT_TRUE(shown("FZad"));
  EXPECT_EQ(caption("IleZad"), " 25 ");
  EXPECT_EQ(caption("Mstat(0)"), "75");
}

TEST_F(Blow, OfTheWorkedExampleDealsThirtyFourLessTheArmourForAWitcher) {
  hero.Klasa = "Wiedźmin";
  hero.Wartosci(3) = 16;
  hero.MO = {1, 6, 2, 3};
  ready("Tasak");
  hero.BronwwProc(5) = 45;
  hero.BronwwPlus(5) = 5;
  weapon("Tasak").kostka = {1, 8, 1, 2};
  group(1, 100, 4);
  open();
  world.roll(1, 6, {3, 4});
  world.roll(1, 8, {5});
  blow();

  EXPECT_EQ(caption("IleZad"), " 30 ");
  EXPECT_EQ(caption("Mstat(0)"), "70");
}

TEST_F(Blow, ATrueTieOfTheDamageGoesToTheEvenNeighbour) {
  ready("Tasak");
  hero.BronwwProc(5) = 45;
  hero.BronwwPlus(5) = 10;
  deals("Tasak", 0);
  open();
  blow();

  EXPECT_EQ(caption("IleZad"), " 14 ");
}

TEST_F(Blow, WhatLooksLikeATieIsRoundedUpWhenTheDoubleLiesAboveIt) {
  ready("Tasak");
  hero.BronwwProc(5) = 10;
  hero.BronwwPlus(5) = 25;
  deals("Tasak", 1);
  group(1, 100);
  open();
  blow();

  EXPECT_EQ(caption("IleZad"), " 29 ");
}

TEST_F(Blow, ThePercentDoesNotWorkOnTheWeaponsOwnDice) {
  ready("Tasak");
  hero.BronwwProc(5) = 100;
  hero.BronwwPlus(5) = 1;
  weapon("Tasak").kostka = {1, 8, 1, 4};
  open();
  world.roll(1, 8, {6});
  blow();

  EXPECT_EQ(caption("IleZad"), " 12 ");
}

TEST_F(Blow, TheBonusesOfTheOtherWeaponsDoNotCount) {
  ready("Tasak");
  hero.BronwwPlus(4) = 50;
  hero.BronssPlus(5) = 50;
  hero.BronssProc(5) = 100;
  open();
  blow();

  EXPECT_EQ(caption("IleZad"), " 10 ");
}

struct Growth {
  int percent;
  int roll;
  int after;

  friend std::ostream& operator<<(std::ostream& out, const Growth& row) {
    return out << row.percent << " % and a roll of " << row.roll;
  }
};

class MeleeGrowth : public FightTest, public ::testing::WithParamInterface<Growth> {};

TEST_P(MeleeGrowth, IsTwoAboveThePercentOrFromSeventySixOn) {
  ready("Nóż");
  hero.BronwwProc(0) = GetParam().percent;
  open();
  blow(GetParam().roll);

  EXPECT_EQ(caption("Pstat(3)"), "++ 0+ " + std::to_string(GetParam().after) + "%");
}

INSTANTIATE_TEST_SUITE_P(Rolls, MeleeGrowth,
                         ::testing::Values(Growth{0, 1, 2}, Growth{1, 1, 1}, Growth{45, 45, 45}, Growth{45, 46, 47},
                                           Growth{75, 75, 75}, Growth{75, 76, 77}, Growth{100, 75, 100},
                                           Growth{100, 76, 102}, Growth{200, 120, 202}, Growth{200, 1, 200}));

TEST_F(Blow, GrowsOnlyTheWeaponThatStruck) {
  ready("Nóż");
  open();
  blow();
  win();
  Bohater expected = hero;
  expected.BronwwProc(0) = 2;
  expected.BronwwProc(6) = 2;

  EXPECT_EQ(saved().BronwwProc, expected.BronwwProc);
  EXPECT_EQ(saved().BronssProc, expected.BronssProc);
}

TEST_F(Blow, TheGrowthHelpsFromTheNextBlowOn) {
  ready("Nóż");
  hero.BronwwProc(0) = 49;
  hero.BronwwPlus(0) = 100;
  deals("Nóż", 0);
  group(1, 1000);
  open();
  blow(120);
  EXPECT_EQ(caption("IleZad"), " 149 ");
  nextRound();
  blow(1);

  EXPECT_EQ(caption("IleZad"), " 151 ");
}

TEST_F(Blow, APercentBeyondAnIntegerOverflows) {
  ready("Nóż");
  hero.BronwwProc(0) = 32766;
  open();
  world.roll(1, 120, {76});

  EXPECT_EQ(errorOf([this] { press("Atak"); }), 6);
  EXPECT_TRUE(played().empty());
}

TEST_F(Blow, DamageBeyondAnIntegerOverflows) {
  ready("Nóż");
  hero.BronwwPlus(0) = 30000;
  hero.BronwwProc(0) = 10;
  open();

  EXPECT_EQ(errorOf([this] { press("Atak"); }), 6);
}

TEST_F(Blow, DamageEqualToTheArmourShowsNothingButTheWeaponGrowsAndSounds) {
  hero.MO = {1, 4, 1, 0};
  ready("Nóż");
  weapon("Nóż").kostka = {1, 4, 1, 0};
  group(1, 20, 4);
  open();
  world.roll(1, 4, {2, 2});
  blow(60);

  EXPECT_FALSE(shown("FZad"));
  EXPECT_EQ(caption("IleZad"), "");
  EXPECT_EQ(caption("Mstat(0)"), "20");
  EXPECT_EQ(caption("Pstat(3)"), " 1k 4+ 1k 4+ 0+ 2%");
  EXPECT_EQ(played(), (std::vector<std::string>{"Nóż.wav"}));
}

TEST_F(Blow, StoppedByTheArmourStillEmptiesTheLastReportAndLeavesItOpen) {
  hero.Klasa = "Berserker";
  own("Tasak");
  ready("Nóż");
  deals("Tasak", 5);
  group(2, 5, 5);
  open();
  blow();
  EXPECT_EQ(caption("IleZad"), " 5 ");
  EXPECT_EQ(caption("OpisZad"), "Zabity!");
  choose("Tasak");
  blow();

  EXPECT_TRUE(shown("FZad"));
  EXPECT_EQ(caption("IleZad"), "");
  EXPECT_EQ(caption("OpisZad"), "");
}

TEST_F(Blow, OneOverTheArmourHurtsByOne) {
  ready("Nóż");
  group(1, 20, 9);
  open();
  blow();

  EXPECT_EQ(caption("IleZad"), " 1 ");
  EXPECT_EQ(caption("Mstat(0)"), "19");
}

TEST_F(Blow, NegativeArmourAddsToTheDamage) {
  ready("Nóż");
  group(1, 20, -3);
  open();
  blow();

  EXPECT_EQ(caption("IleZad"), " 13 ");
}

TEST_F(Blow, NeverSpreadsOrCarriesThoughTheRangedWeaponOfItsPlaceWould) {
  ready("Nóż");
  deals("Nóż", 25);
  weapon("Łuk").wszyscy = 2;
  weapon("Łuk").ogien = 1;
  group(2, 20);
  open();
  blow();

  EXPECT_EQ(caption("IleZad"), " 25 ");
  EXPECT_EQ(caption("OpisZad"), "Zabity!");
  EXPECT_EQ(caption("LIle"), "1");
  EXPECT_EQ(caption("Mstat(0)"), "20");
}

TEST_F(Berserker, StrikesTwiceInARoundWithTwoGrowths) {
  hero.Klasa = "Berserker";
  ready("Nóż");
  group(1, 50);
  open();
  blow();
  EXPECT_EQ(openActions(), "Atak Rzuc Uzyj");
  blow();
  EXPECT_EQ(openActions(), "Uzyj");
  EXPECT_EQ(caption("Mstat(0)"), "30");
  EXPECT_EQ(caption("Pstat(3)"), "++ 0+ 4%");

  EXPECT_FALSE(press("Atak"));

  EXPECT_EQ(caption("Mstat(0)"), "30");
}

TEST_F(Berserker, HasHisFreeBlowAgainInEveryRound) {
  hero.Klasa = "Berserker";
  ready("Nóż");
  group(1, 50);
  open();
  for (const std::string left : {"30", "10"}) {
    blow();
    blow();
    EXPECT_EQ(caption("Mstat(0)"), left);
    EXPECT_FALSE(enabled("Atak"));
    nextRound();
  }
}

TEST_F(Berserker, WhoStrikesOnceAndTakesARangedWeaponStillShoots) {
  hero.Klasa = "Berserker";
  ready("Nóż");
  group(1, 50);
  open();
  blow();
  choose("Łuk");
  shot();

  EXPECT_EQ(caption("Mstat(0)"), "30");
  EXPECT_EQ(openActions(), "Uzyj");
}

TEST_F(Berserker, HasNoSecondActionAfterAShot) {
  hero.Klasa = "Berserker";
  ready("Łuk");
  open();
  shot();
  choose("Nóż");

  EXPECT_FALSE(press("Atak"));
  EXPECT_EQ(openActions(), "Uzyj");
}

TEST_F(Berserker, SecondBlowWithAStaffLeavesTheSpellButtonLive) {
  hero.Klasa = "Berserker";
  ready("Laska");
  group(1, 50);
  open();
  blow();
  blow();

  EXPECT_EQ(openActions(), "Rzuc Uzyj");
}

TEST_F(Berserker, IsTheOnlyClassWithAFreeBlow) {
  for (const std::string klasa : {"Wojownik", "Strzelec", "Czarownik", "Wiedźmin", "Awanturnik", "Satrapa", "Ryzykant",
                                  "Zabobonny mnich zakonny", "Złota rączka", "berserker"}) {
    hero.Klasa = klasa;
    ready("Nóż");
    open();
    blow();
    EXPECT_FALSE(enabled("Atak")) << klasa;
    world.runtime.Unload("Fight");
  }
}

}  // namespace
}  // namespace brolgan::test
