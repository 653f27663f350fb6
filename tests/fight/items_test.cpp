// The hero's grenades and ammunition in the fight.
#include "tests/fight/fixture.h"

namespace brolgan::test {
namespace {

using Items = FightTest;
using Rows = std::vector<std::string>;

class Grenade : public FightTest {
 protected:
  Grenade() { readyItem("Granat", 2); }
  void throwGrenade(int roll) {
    world.roll(1, 30, {roll});
    use();
  }
  // A one and then what it does to the thrower.
  void dropGrenade(int harm) {
    world.roll(1, 30, {1, harm});
    use();
  }
};

using OwnGrenade = Grenade;

TEST_F(Items, WithNothingSelectedOnlyRedraw) {
  pack("Granat", 1);
  open();
  const auto loads = world.pictures.loaded.size();
  use();

  EXPECT_EQ(world.pictures.loaded.size(), loads + 1);
  EXPECT_EQ(openActions(), "Atak Rzuc Uzyj");
  EXPECT_TRUE(played().empty());
}

TEST_F(Items, WithBothCountsAtZeroTheListIsEmptyAndTheButtonOnlyRedraws) {
  open();
  EXPECT_TRUE(world.rows("Fight", "Przedmiot").empty());
  const auto loads = world.pictures.loaded.size();
  use();

  EXPECT_EQ(world.pictures.loaded.size(), loads + 1);
  EXPECT_EQ(openActions(), "Atak Rzuc Uzyj");
}

TEST_F(Items, SelectingOneCostsNothing) {
  pack("Granat", 1);
  open();
  chooseItem("Granat");

  EXPECT_EQ(openActions(), "Atak Rzuc Uzyj");
}

TEST_F(Grenade, HitsTheWholeGroupWithTheTargetsArmourOff) {
  hero.MaSpec(2) = true;
  ready("Łuk");
  deals("Łuk", 0);
  group(3, 50, 5);
  open();
  world.roll(1, 140, {1});
  world.roll(1, 3, {3});
  EXPECT_TRUE(press("Atak"));
  throwGrenade(11);
  EXPECT_TRUE(shown("FZad"));
  EXPECT_EQ(caption("IleZad"), " 9  9  9 ");
  EXPECT_EQ(caption("Mstat(0)"), "41");

  for (const std::string left : {"2", "1"}) {
    fellTarget();
    EXPECT_EQ(caption("LIle"), left);
    EXPECT_EQ(caption("Mstat(0)"), "41");
  }
}

TEST_F(Grenade, SoundsIsSpentAndClosesTheRound) {
  group(1, 50);
  open();
  throwGrenade(11);

  EXPECT_EQ(played(), (Rows{"specgran.wav"}));
  EXPECT_EQ(openActions(), "");
  EXPECT_EQ(world.rows("Fight", "Przedmiot"), (Rows{"Granat"}));
  EXPECT_EQ(text("Przedmiot"), "Granat");
  win();
  EXPECT_EQ(saved().Wyp(0), 1);
}

TEST_F(Grenade, ReplacesTheFiguresOfTheReportAndKeepsItsWord) {
  ready("Nóż");
  group(2, 10);
  open();
  blow();
  throwGrenade(4);

  EXPECT_EQ(caption("IleZad"), " 4 ");
  EXPECT_EQ(caption("OpisZad"), "Zabity!");
}

TEST_F(Grenade, AddsItsDamageToARoundInWhichTheHeroHasStruck) {
  ready("Nóż");
  group(1, 50);
  open();
  blow();
  throwGrenade(15);

  EXPECT_EQ(caption("Mstat(0)"), "25");
}

TEST_F(Grenade, StoppedByTheArmourShowsNothing) {
  group(2, 50, 11);
  open();
  throwGrenade(11);

  EXPECT_FALSE(shown("FZad"));
  EXPECT_EQ(caption("IleZad"), "");
  EXPECT_EQ(caption("Mstat(0)"), "50");
  EXPECT_EQ(openActions(), "");
}

TEST_F(Grenade, StoppedByTheArmourStillCountsTheDead) {
  group(2, 0, 11);
  open();
  throwGrenade(11);

  EXPECT_FALSE(shown("FZad"));
  EXPECT_EQ(caption("OpisZad"), "Czysto!");
  EXPECT_EQ(caption("LIle"), "0");
}

TEST_F(Grenade, StoppedByTheArmourKeepsTheFiguresOfTheReport) {
  ready("Nóż");
  group(1, 50, 5);
  open();
  blow();
  throwGrenade(5);

  EXPECT_EQ(caption("IleZad"), " 5 ");
}

TEST_F(Grenade, WithAMortarAddsEight) {
  hero.MaSpec(0) = true;
  group(1, 50);
  open();
  throwGrenade(2);

  EXPECT_EQ(caption("IleZad"), " 10 ");
  EXPECT_EQ(caption("Mstat(0)"), "40");
}

TEST_F(Grenade, WithNoOtherGearAddsNothing) {
  for (const int gear : {1, 2, 3}) hero.MaSpec(gear) = true;
  group(1, 50, 0);
  open();
  throwGrenade(2);

  EXPECT_EQ(caption("IleZad"), " 2 ");
}

TEST_F(Grenade, FellsAGroupAndEndsWithCzysto) {
  group(2, 9);
  open();
  throwGrenade(9);

  EXPECT_EQ(caption("OpisZad"), "Czysto!");
  EXPECT_EQ(caption("LIle"), "0");
}

TEST_F(Grenade, MayBeThrownAgainInTheNextRound) {
  group(1, 50);
  open();
  throwGrenade(10);
  EXPECT_FALSE(press("Uzyj"));
  nextRound();
  EXPECT_EQ(openActions(), "Atak Rzuc Uzyj");
  throwGrenade(10);

  EXPECT_EQ(caption("Mstat(0)"), "30");
}

TEST_F(Grenade, TheLastOneLeavesTheListAndTheAmmunitionStaysUnselected) {
  readyItem("Granat", 1);
  pack("Ammo", 3);
  group(1, 50);
  open();
  throwGrenade(10);

  EXPECT_EQ(world.rows("Fight", "Przedmiot"), (Rows{"Ammo"}));
  EXPECT_EQ(text("Przedmiot"), "");
  EXPECT_EQ(played(), (Rows{"specgran.wav"}));
}

TEST_F(Grenade, IsThrownWhateverTheHeroDidBefore) {
  hero.AktMoc = 4;
  readySpell("Kaczy Fart");
  ready("Laska");
  group(1, 50);
  open();
  cast();
  blow();
  throwGrenade(10);

  EXPECT_EQ(caption("Mstat(0)"), "30");
}

TEST_F(OwnGrenade, GoesOffOnAOneAloneWhichIsOneThrowInFiftyEight) {
  group(1, 50);
  for (const float number : {0.0172F, 0.0173F}) {
    open();
    world.scripted.add(number);
    const bool dropped = number < 1 / 58.0F;
    if (dropped) world.roll(1, 30, {3});
    use();
    EXPECT_EQ(caption("IleDMG"), dropped ? "3 " : "");
    EXPECT_EQ(caption("IleZad"), dropped ? "" : " 2 ");
    world.runtime.Unload("Fight");
  }
}

TEST_F(OwnGrenade, HurtsTheThrowerLessHisWholeArmour) {
  hero.AktMoc = 2;
  hero.Wartosci(1) = 1;
  fight.BonusPancerza = 2;
  readySpell("Klasa III A");
  open();
  world.roll(1, 6, {6, 6});
  world.roll(1, 10, {4});
  cast();
  dropGrenade(12);

  EXPECT_TRUE(shown("FDamage"));
  EXPECT_EQ(caption("IleDMG"), "5 ");
  EXPECT_EQ(caption("Pstat(0)"), "7");
  EXPECT_EQ(openActions(), "");
  EXPECT_EQ(caption("OpisDMG"), "");
  EXPECT_EQ(caption("Mstat(0)"), "20");
}

TEST_F(OwnGrenade, OnAHeroWithArmourThirtyIsADud) {
  hero.Wartosci(1) = 30;
  open();
  dropGrenade(30);

  EXPECT_FALSE(shown("FDamage"));
  EXPECT_EQ(caption("IleDMG"), "");
  EXPECT_EQ(caption("Pstat(0)"), "12");
  EXPECT_EQ(openActions(), "");
}

TEST_F(OwnGrenade, WithAMortarHurtsNoMoreAndTheBareRollDecides) {
  hero.MaSpec(0) = true;
  open();
  dropGrenade(3);

  EXPECT_EQ(caption("IleDMG"), "3 ");
  EXPECT_EQ(caption("Pstat(0)"), "9");
  EXPECT_FALSE(shown("FZad"));
}

TEST_F(OwnGrenade, IsTakenByKaczyFart) {
  hero.AktMoc = 4;
  readySpell("Kaczy Fart");
  open();
  cast();
  dropGrenade(5);
  EXPECT_FALSE(shown("FDamage"));
  EXPECT_EQ(caption("Pstat(0)"), "12");
  nextRound();
  dropGrenade(5);

  EXPECT_EQ(caption("IleDMG"), "5 ");
}

TEST_F(OwnGrenade, StoppedByTheArmourUsesNoCharge) {
  hero.AktMoc = 4;
  hero.Wartosci(1) = 5;
  readySpell("Kaczy Fart");
  open();
  cast();
  dropGrenade(5);
  nextRound();
  dropGrenade(9);

  EXPECT_FALSE(shown("FDamage"));
}

TEST_F(OwnGrenade, StandsBehindTheFiguresOfTheLastAttack) {
  strikesWith(3);
  open();
  nextRound();
  dropGrenade(4);

  EXPECT_EQ(caption("IleDMG"), "3 4 ");
  EXPECT_EQ(caption("Pstat(0)"), "5");
}

TEST_F(OwnGrenade, DoesNotLookForTheFallen) {
  group(1, 0);
  open();
  dropGrenade(4);

  EXPECT_EQ(caption("OpisZad"), "");
  EXPECT_EQ(caption("LIle"), "1");
}

TEST_F(OwnGrenade, ThatKillsItsThrowerSaysSmiercAndLeavesTheGroupStanding) {
  hero.Wcielenia = 2;
  open();
  dropGrenade(12);
  EXPECT_EQ(caption("OpisDMG"), "Śmierć!");
  EXPECT_EQ(caption("Pstat(0)"), "0");
  EXPECT_EQ(caption("LIle"), "1");
  world.roll(1, 4, {1});
  EXPECT_TRUE(press("CloseDMG"));

  EXPECT_FALSE(world.isOpen("Fight"));
  EXPECT_EQ(saved().Wcielenia, 1);
  EXPECT_EQ(saved().Stwory(0), 0);
}

TEST_F(Items, AmmunitionCostsNoAction) {
  readyItem("Ammo", 3);
  open();
  use();

  EXPECT_EQ(openActions(), "Atak Rzuc Uzyj");
  EXPECT_EQ(played(), (Rows{"specammo.wav"}));
  EXPECT_EQ(text("Przedmiot"), "Ammo");
  EXPECT_FALSE(shown("FZad"));
}

TEST_F(Items, ASecondAmmunitionBeforeAShotIsSpentForNothing) {
  readyItem("Ammo", 3);
  ready("Łuk");
  group(1, 100);
  open();
  use();
  use();
  world.roll(1, 140, {1});
  world.roll(1, 6, {3});
  EXPECT_TRUE(press("Atak"));
  EXPECT_EQ(caption("IleZad"), " 13 ");
  nextRound();
  shot();
  EXPECT_EQ(caption("IleZad"), " 10 ");
  win();

  EXPECT_EQ(saved().Wyp(1), 1);
}

TEST_F(Items, TheLastAmmunitionLeavesTheListAndNothingIsSelected) {
  pack("Granat", 2);
  readyItem("Ammo", 1);
  open();
  use();

  EXPECT_EQ(world.rows("Fight", "Przedmiot"), (Rows{"Granat"}));
  EXPECT_EQ(text("Przedmiot"), "");
}

TEST_F(Items, AmmunitionStaysLoadedAcrossRoundsUntilAShot) {
  readyItem("Ammo", 1);
  ready("Nóż");
  group(1, 100);
  open();
  use();
  blow();
  nextRound();
  blow();
  nextRound();
  choose("Łuk");
  world.roll(1, 140, {1});
  world.roll(1, 6, {6});
  EXPECT_TRUE(press("Atak"));

  EXPECT_EQ(caption("IleZad"), " 16 ");
}

TEST_F(Items, AmmunitionLoadedAndNotFiredIsLostWithTheFight) {
  readyItem("Ammo", 1);
  open();
  use();
  win();
  ready("Łuk");
  open();
  shot();

  EXPECT_EQ(caption("IleZad"), " 10 ");
}

TEST_F(Items, MayBeUsedAfterAnAttack) {
  readyItem("Ammo", 2);
  ready("Nóż");
  open();
  blow();
  use();

  EXPECT_EQ(openActions(), "Uzyj");
  EXPECT_EQ(played().back(), "specammo.wav");
}

}  // namespace
}  // namespace brolgan::test
