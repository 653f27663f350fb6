// What a shot does to the group behind the target: spreading, fire that carries on, and the figures.
#include "tests/fight/fixture.h"

namespace brolgan::test {
namespace {

using Spread = FightTest;
using Fire = FightTest;
using RoundRules = FightTest;

TEST_F(Spread, GivesTheOthersTheSameAsTheTargetWhateverTheirOwnArmour) {
  hero.MaSpec(2) = true;
  ready("Łuk");
  weapon("Łuk").wszyscy = 2;
  group(3, 50, 5);
  open();
  world.roll(1, 140, {1});
  world.roll(1, 3, {3});
  EXPECT_TRUE(press("Atak"));
  EXPECT_EQ(caption("IleZad"), " 8 ");
  EXPECT_EQ(caption("Mstat(0)"), "42");

  for (const std::string left : {"2", "1"}) {
    fellTarget();
    EXPECT_EQ(caption("LIle"), left);
    EXPECT_EQ(caption("Mstat(0)"), "42");
    EXPECT_EQ(caption("Mstat(1)"), "5");
  }
}

TEST_F(Spread, FellsTheWholeGroupAtOnce) {
  ready("Łuk");
  weapon("Łuk").wszyscy = 2;
  group(3, 10);
  open();
  shot();

  EXPECT_EQ(caption("LIle"), "0");
  EXPECT_EQ(caption("OpisZad"), "Czysto!");
  EXPECT_EQ(caption("IleZad"), " 10 ");
}

TEST_F(Spread, HurtsNobodyWhenTheArmourStopsTheShot) {
  ready("Łuk");
  weapon("Łuk").wszyscy = 2;
  group(2, 50, 10);
  open();
  shot();
  EXPECT_FALSE(shown("FZad"));
  EXPECT_EQ(caption("Mstat(0)"), "50");
  fellTarget();

  EXPECT_EQ(caption("Mstat(0)"), "50");
}

TEST_F(Spread, IsForTheValueTwoAlone) {
  ready("Łuk");
  for (const int value : {0, 1, 3, -2}) {
    weapon("Łuk").wszyscy = value;
    group(2, 50);
    open();
    shot();
    fellTarget();
    EXPECT_EQ(caption("Mstat(0)"), "50") << value;
    world.runtime.Unload("Fight");
  }
}

TEST_F(Fire, CarriesTheSurplusOnLessTheArmourOfTheNext) {
  ready("Łuk");
  weapon("Łuk").ogien = 1;
  deals("Łuk", 35);
  group(2, 20, 3);
  open();
  shot();

  EXPECT_EQ(caption("IleZad"), " 32  9 ");
  EXPECT_EQ(caption("OpisZad"), "Zabity - przenoszenie");
  EXPECT_EQ(caption("LIle"), "1");
  EXPECT_EQ(caption("Mstat(0)"), "11");
  EXPECT_EQ(openActions(), "Uzyj");
}

TEST_F(Fire, ShowsTheFiguresOfACarriedShotBehindEachOther) {
  ready("Łuk");
  weapon("Łuk").ogien = 1;
  deals("Łuk", 12);
  group(2, 5);
  open();
  shot();

  EXPECT_EQ(caption("IleZad"), " 12  7 ");
}

TEST_F(Fire, GoesOnDownTheGroup) {
  ready("Łuk");
  weapon("Łuk").ogien = 1;
  deals("Łuk", 50);
  group(4, 15, 0);
  open();
  shot();

  EXPECT_EQ(caption("IleZad"), " 50  35  20  5 ");
  EXPECT_EQ(caption("LIle"), "1");
  EXPECT_EQ(caption("Mstat(0)"), "10");
  EXPECT_EQ(caption("OpisZad"), "Zabity - przenoszenie");
}

TEST_F(Fire, StoppedByTheArmourOfTheNextLeavesHimWhole) {
  ready("Łuk");
  weapon("Łuk").ogien = 1;
  deals("Łuk", 27);
  group(2, 20, 5);
  open();
  shot();

  EXPECT_EQ(caption("IleZad"), " 22 ");
  EXPECT_EQ(caption("OpisZad"), "Zabity - przenoszenie");
  EXPECT_EQ(caption("LIle"), "1");
  EXPECT_EQ(caption("Mstat(0)"), "20");
}

TEST_F(Fire, CarriesNothingFromAMonsterAtExactlyZero) {
  ready("Łuk");
  weapon("Łuk").ogien = 1;
  group(2, 10);
  open();
  shot();

  EXPECT_EQ(caption("IleZad"), " 10 ");
  EXPECT_EQ(caption("OpisZad"), "Zabity!");
  EXPECT_EQ(caption("LIle"), "1");
  EXPECT_EQ(caption("Mstat(0)"), "10");
}

TEST_F(Fire, OnTheLastOfTheGroupCarriesNothingAndTheEndIsReported) {
  ready("Łuk");
  weapon("Łuk").ogien = 1;
  deals("Łuk", 50);
  group(1, 20);
  open();
  shot();

  EXPECT_EQ(caption("IleZad"), " 50 ");
  EXPECT_EQ(caption("OpisZad"), "Czysto!");
  EXPECT_EQ(caption("LIle"), "0");
}

TEST_F(Fire, ThatFellsTheNextTooSaysZabity) {
  ready("Łuk");
  weapon("Łuk").ogien = 1;
  deals("Łuk", 20);
  group(3, 10);
  open();
  shot();

  EXPECT_EQ(caption("IleZad"), " 20  10 ");
  EXPECT_EQ(caption("OpisZad"), "Zabity!");
  EXPECT_EQ(caption("LIle"), "1");
}

TEST_F(Fire, IsForTheValueOneAlone) {
  ready("Łuk");
  deals("Łuk", 25);
  for (const int value : {0, 2, -1}) {
    weapon("Łuk").ogien = value;
    group(2, 20);
    open();
    shot();
    EXPECT_EQ(caption("IleZad"), " 25 ") << value;
    EXPECT_EQ(caption("Mstat(0)"), "20") << value;
    world.runtime.Unload("Fight");
  }
}

// The shot brings the wounded target to -5 and the others to 15; the 5 that are carried hurt the
// next one and spread to the first again.
TEST_F(Fire, ThatAlsoSpreadsSpreadsAgainWithWhatItCarries) {
  ready("Nóż");
  deals("Nóż", 20);
  weapon("Łuk").ogien = 1;
  weapon("Łuk").wszyscy = 2;
  deals("Łuk", 15);
  group(3, 30);
  open();
  blow();
  nextRound();
  choose("Łuk");
  shot();
  EXPECT_EQ(caption("IleZad"), " 15  5 ");
  EXPECT_EQ(caption("OpisZad"), "Zabity - przenoszenie");
  EXPECT_EQ(caption("LIle"), "2");
  EXPECT_EQ(caption("Mstat(0)"), "10");
  fellTarget();

  EXPECT_EQ(caption("Mstat(0)"), "10");
}

// All three fall to -5 at once; the carry then goes on with what each lies below 0, spreading.
TEST_F(Fire, ThatAlsoSpreadsGoesThroughAGroupThatHasFallenAlready) {
  ready("Łuk");
  weapon("Łuk").ogien = 1;
  weapon("Łuk").wszyscy = 2;
  deals("Łuk", 35);
  group(3, 30);
  open();
  shot();

  EXPECT_EQ(caption("IleZad"), " 35  5  10 ");
  EXPECT_EQ(caption("OpisZad"), "Czysto!");
}

TEST_F(RoundRules, AfterABlowWithAnOrdinaryWeaponOnlyAnItemFollows) {
  hero.AktMoc = 4;
  readySpell("Kaczy Fart");
  readyItem("Ammo", 2);
  ready("Nóż");
  open();
  blow();
  EXPECT_FALSE(press("Atak"));
  EXPECT_FALSE(press("Rzuc"));
  use();

  EXPECT_EQ(played().back(), "specammo.wav");
}

TEST_F(RoundRules, AfterABlowWithAStaffASpellAndAnItemFollow) {
  hero.AktMoc = 4;
  readySpell("Kaczy Fart");
  readyItem("Ammo", 2);
  ready("Laska");
  open();
  blow();
  EXPECT_FALSE(press("Atak"));
  cast();
  use();

  EXPECT_EQ(played(), (std::vector<std::string>{"Laska.wav", "czarkac.wav", "specammo.wav"}));
}

TEST_F(RoundRules, AfterABerserkersFirstBlowABlowOrAShotOrAnItemFollows) {
  hero.Klasa = "Berserker";
  hero.AktMoc = 4;
  readySpell("Kaczy Fart");
  readyItem("Ammo", 2);
  ready("Nóż");
  group(1, 100);
  open();
  blow();
  use();
  cast();
  EXPECT_EQ(caption("Pstat(2)"), "4");
  blow();

  EXPECT_EQ(openActions(), "Uzyj");
}

TEST_F(RoundRules, AfterAShotOnlyAnItemFollows) {
  readyItem("Ammo", 2);
  ready("Łuk");
  open();
  shot();
  EXPECT_FALSE(press("Atak"));
  EXPECT_FALSE(press("Rzuc"));
  use();

  EXPECT_EQ(played().back(), "specammo.wav");
}

TEST_F(RoundRules, AfterASpellAStaffStrikesAndAnItemFollows) {
  hero.AktMoc = 8;
  readySpell("Kaczy Fart");
  readyItem("Ammo", 2);
  ready("Laska");
  open();
  cast();
  EXPECT_FALSE(press("Rzuc"));
  blow();
  EXPECT_EQ(caption("Mstat(0)"), "10");
  use();

  EXPECT_EQ(openActions(), "Uzyj");
}

TEST_F(RoundRules, AfterASpellWithAnyOtherWeaponOrNoneTheAttackStaysLiveAndDoesNothing) {
  for (const std::string name : {"Nóż", "Łuk", ""}) {
    hero.AktMoc = 4;
    readySpell("Kaczy Fart");
    readyItem("Ammo", 2);
    hero.OstatniaBron = name;
    open();
    cast();
    EXPECT_TRUE(press("Atak"));
    EXPECT_EQ(caption("Mstat(0)"), "20") << name;
    use();
    EXPECT_EQ(openActions(), "Atak Uzyj") << name;
    world.runtime.Unload("Fight");
  }
}

TEST_F(RoundRules, AfterAGrenadeNothingFollows) {
  readyItem("Granat", 2);
  ready("Laska");
  open();
  world.roll(1, 30, {2});
  use();

  EXPECT_EQ(openActions(), "");
}

TEST_F(RoundRules, AfterAmmunitionEverythingFollows) {
  hero.AktMoc = 4;
  readySpell("Kaczy Fart");
  readyItem("Ammo", 2);
  ready("Laska");
  open();
  use();
  EXPECT_EQ(openActions(), "Atak Rzuc Uzyj");
  cast();
  blow();

  EXPECT_EQ(caption("Mstat(0)"), "10");
}

// The flags of the round hold by themselves, whatever the buttons look like.
TEST_F(RoundRules, ASpentBlowRefusesBlowShotAndSpellByItself) {
  hero.AktMoc = 4;
  readySpell("Kaczy Fart");
  ready("Nóż");
  group(1, 100);
  open();
  blow();
  for (const std::string weapon : {"Nóż", "Łuk"}) {
    choose(weapon);
    runHandlerOf("Atak");
    EXPECT_EQ(caption("Mstat(0)"), "90") << weapon;
  }
  runHandlerOf("Rzuc");

  EXPECT_EQ(caption("Pstat(2)"), "4");
}

TEST_F(RoundRules, ASpentStaffRefusesTheSecondBlowByItself) {
  ready("Laska");
  group(1, 100);
  open();
  blow();
  runHandlerOf("Atak");

  EXPECT_EQ(caption("Mstat(0)"), "90");
}

TEST_F(RoundRules, ASpentShotRefusesBlowShotAndSpellByItself) {
  hero.AktMoc = 4;
  readySpell("Kaczy Fart");
  own("Laska");
  ready("Łuk");
  group(1, 100);
  open();
  shot();
  for (const std::string weapon : {"Laska", "Łuk"}) {
    choose(weapon);
    runHandlerOf("Atak");
    EXPECT_EQ(caption("Mstat(0)"), "90") << weapon;
  }
  runHandlerOf("Rzuc");

  EXPECT_EQ(caption("Pstat(2)"), "4");
}

}  // namespace
}  // namespace brolgan::test
