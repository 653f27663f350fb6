// The hero's shots: what one costs and does, ammunition, "Zasysacz", "Działo" and "UltiGun".
#include "tests/fight/fixture.h"

namespace brolgan::test {
namespace {

using Shot = FightTest;
using Ammo = FightTest;
using Zasysacz = FightTest;
using Dzialo = FightTest;
using UltiGun = FightTest;

TEST_F(Shot, EndsTheActionsOfTheRoundButTheItem) {
  ready("Łuk");
  open();
  shot();

  EXPECT_EQ(openActions(), "Uzyj");
  EXPECT_EQ(caption("Mstat(0)"), "10");
}

TEST_F(Shot, ThrowsTheGrowthBeforeTheDamage) {
  ready("Łuk");
  weapon("Łuk").kostka = {1, 10, 2, 1};
  hero.BronssProc(0) = 100;
  open();
  world.roll(1, 140, {85});
  world.roll(1, 10, {1, 9});

  EXPECT_TRUE(press("Atak"));

  EXPECT_EQ(caption("IleZad"), " 11 ");
  EXPECT_EQ(caption("Pstat(3)"), "2k10+ 1+ 0+ 100%");
}

TEST_F(Shot, OfTheWorkedExampleDealsTwelveBehindTheArmour) {
  hero.MO = {1, 6, 2, 3};
  ready("Łuk");
  readyItem("Ammo", 2);
  weapon("Łuk").kostka = {1, 10, 2, 1};
  group(1, 100, 4);
  open();
  use();
  world.roll(1, 140, {1});
  world.roll(1, 10, {5, 6});
  world.roll(1, 6, {4});

  EXPECT_TRUE(press("Atak"));

  EXPECT_EQ(caption("IleZad"), " 12 ");
  EXPECT_EQ(caption("Mstat(0)"), "88");
}

TEST_F(Shot, ThrowsAmmunitionBeforeZasysacz) {
  hero.MaSpec(2) = true;
  ready("Łuk");
  readyItem("Ammo", 2);
  weapon("Łuk").kostka = {1, 10, 1, 0};
  group(1, 100, 9);
  open();
  use();
  world.roll(1, 140, {1});
  world.roll(1, 10, {9});
  world.roll(1, 6, {6});
  world.roll(1, 3, {1});

  EXPECT_TRUE(press("Atak"));

  EXPECT_EQ(caption("IleZad"), " 7 ");
  EXPECT_EQ(caption("Mstat(1)"), "8");
}

TEST_F(Shot, UsesNeitherPercentNorFlatBonusNorTheHeroesDiceNorTheWitchersSpeed) {
  hero.Klasa = "Wiedźmin";
  hero.Wartosci(3) = 34;
  hero.MO = {1, 6, 2, 3};
  hero.BronssProc(0) = 55;
  hero.BronssPlus(0) = 5;
  ready("Łuk");
  open();
  shot();

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

class RangedGrowth : public FightTest, public ::testing::WithParamInterface<Growth> {};

TEST_P(RangedGrowth, IsTwoAboveThePercentOrFromEightySixOn) {
  ready("Łuk");
  hero.BronssProc(0) = GetParam().percent;
  open();
  shot(GetParam().roll);

  EXPECT_EQ(caption("Pstat(3)"), "+ 0+ " + std::to_string(GetParam().after) + "%");
}

INSTANTIATE_TEST_SUITE_P(Rolls, RangedGrowth,
                         ::testing::Values(Growth{0, 1, 2}, Growth{1, 1, 1}, Growth{55, 55, 55}, Growth{55, 56, 57},
                                           Growth{85, 85, 85}, Growth{85, 86, 87}, Growth{100, 85, 100},
                                           Growth{100, 86, 102}, Growth{200, 140, 202}));

TEST_F(Shot, APercentBeyondAnIntegerOverflowsAfterTheSound) {
  ready("Łuk");
  hero.BronssProc(0) = 32766;
  open();
  world.roll(1, 140, {86});

  EXPECT_EQ(errorOf([this] { press("Atak"); }), 6);
  EXPECT_EQ(played(), (std::vector<std::string>{"Łuk.wav"}));
}

TEST_F(Shot, TheGrowthIsStoredAndHelpsNoShot) {
  ready("Łuk");
  group(1, 100);
  open();
  shot();
  nextRound();
  shot();
  EXPECT_EQ(caption("IleZad"), " 10 ");
  win();

  EXPECT_EQ(saved().BronssProc(0), 4);
}

TEST_F(Shot, IsRefusedAfterASpellAndCostsNothing) {
  readySpell("Kaczy Fart");
  hero.AktMoc = 4;
  ready("Łuk");
  open();
  cast();

  EXPECT_TRUE(press("Atak"));

  EXPECT_EQ(caption("Mstat(0)"), "20");
  EXPECT_EQ(openActions(), "Atak Uzyj");
  EXPECT_EQ(played(), (std::vector<std::string>{"czarkac.wav"}));
}

TEST_F(Shot, SoundsAtTheArmourTooAndTheWeaponGrows) {
  ready("Łuk");
  group(1, 20, 10);
  open();
  shot();

  EXPECT_FALSE(shown("FZad"));
  EXPECT_EQ(caption("Mstat(0)"), "20");
  EXPECT_EQ(caption("Pstat(3)"), "+ 0+ 2%");
  EXPECT_EQ(played(), (std::vector<std::string>{"Łuk.wav"}));
}

TEST_F(Shot, EmptiesTheLastReportThoughTheArmourStopsIt) {
  own("Pistolet");
  deals("Pistolet", 5);
  ready("Łuk");
  group(2, 5, 5);
  open();
  shot();
  EXPECT_EQ(caption("IleZad"), " 5 ");
  EXPECT_EQ(caption("OpisZad"), "Zabity!");
  nextRound();
  choose("Pistolet");
  shot();

  EXPECT_EQ(caption("IleZad"), "");
  EXPECT_EQ(caption("OpisZad"), "");
}

TEST_F(Ammo, AddsADieOfSixToTheNextShotAndToThatAlone) {
  ready("Łuk");
  readyItem("Ammo", 5);
  group(1, 100);
  open();
  use();
  world.roll(1, 140, {1});
  world.roll(1, 6, {6});
  EXPECT_TRUE(press("Atak"));
  EXPECT_EQ(caption("IleZad"), " 16 ");
  nextRound();
  shot();

  EXPECT_EQ(caption("IleZad"), " 10 ");
}

TEST_F(Ammo, IsSpentByAShotThatTheArmourStops) {
  ready("Łuk");
  readyItem("Ammo", 5);
  group(1, 100, 20);
  open();
  use();
  world.roll(1, 140, {1});
  world.roll(1, 6, {6});
  EXPECT_TRUE(press("Atak"));
  nextRound();
  shot();

  EXPECT_FALSE(shown("FZad"));
}

TEST_F(Ammo, IsNotUsedUpByBlows) {
  ready("Nóż");
  readyItem("Ammo", 5);
  group(1, 100);
  open();
  use();
  blow();
  nextRound();
  choose("Łuk");
  world.roll(1, 140, {1});
  world.roll(1, 6, {3});
  EXPECT_TRUE(press("Atak"));

  EXPECT_EQ(caption("IleZad"), " 13 ");
}

TEST_F(Ammo, StaysLoadedWhileDzialoReloads) {
  ready("Działo");
  readyItem("Ammo", 5);
  group(1, 100);
  open();
  shot();
  nextRound();
  use();
  EXPECT_TRUE(press("Atak"));
  nextRound();
  world.roll(1, 140, {1});
  world.roll(1, 6, {5});
  EXPECT_TRUE(press("Atak"));

  EXPECT_EQ(caption("IleZad"), " 15 ");
}

TEST_F(Zasysacz, LowersTheArmourBeforeTheDamageSoTheShotItselfProfits) {
  hero.MaSpec(2) = true;
  ready("Łuk");
  group(1, 20, 5);
  open();
  world.roll(1, 140, {1});
  world.roll(1, 3, {2});
  EXPECT_TRUE(press("Atak"));

  EXPECT_EQ(caption("IleZad"), " 7 ");
  EXPECT_EQ(caption("Mstat(1)"), "3");
}

TEST_F(Zasysacz, ShowsTheNewArmourAtOnceSoItStaysWhenTheShotFellsTheLast) {
  hero.MaSpec(2) = true;
  ready("Łuk");
  group(1, 5, 5);
  open();
  world.roll(1, 140, {1});
  world.roll(1, 3, {2});
  EXPECT_TRUE(press("Atak"));

  EXPECT_EQ(caption("OpisZad"), "Czysto!");
  EXPECT_EQ(caption("Mstat(1)"), "3");
  EXPECT_EQ(caption("Mstat(0)"), "5");
}

TEST_F(Zasysacz, NeverTakesArmourBelowZero) {
  hero.MaSpec(2) = true;
  ready("Łuk");
  group(1, 20, 1);
  open();
  world.roll(1, 140, {1});
  world.roll(1, 3, {3});
  EXPECT_TRUE(press("Atak"));

  EXPECT_EQ(caption("Mstat(1)"), "0");
  EXPECT_EQ(caption("IleZad"), " 10 ");
}

TEST_F(Zasysacz, ThrowsNoDieWhenThereIsNoArmour) {
  hero.MaSpec(2) = true;
  ready("Łuk");
  for (const int armour : {0, -4}) {
    group(1, 20, armour);
    open();
    shot();
    EXPECT_EQ(caption("Mstat(1)"), std::to_string(armour));
    world.runtime.Unload("Fight");
  }
}

TEST_F(Zasysacz, LowersTheArmourOfTheTargetAlone) {
  hero.MaSpec(2) = true;
  ready("Łuk");
  group(2, 20, 5);
  open();
  world.roll(1, 140, {1});
  world.roll(1, 3, {2});
  EXPECT_TRUE(press("Atak"));
  fellTarget();

  EXPECT_EQ(caption("LIle"), "1");
  EXPECT_EQ(caption("Mstat(1)"), "5");
}

TEST_F(Zasysacz, WorksOnShotsTheArmourStopsAndNotOnBlows) {
  hero.MaSpec(2) = true;
  ready("Łuk");
  group(1, 20, 15);
  open();
  world.roll(1, 140, {1});
  world.roll(1, 3, {3});
  EXPECT_TRUE(press("Atak"));
  EXPECT_EQ(caption("Mstat(1)"), "12");
  EXPECT_FALSE(shown("FZad"));
  nextRound();
  choose("Nóż");
  blow();

  EXPECT_EQ(caption("Mstat(1)"), "12");
}

TEST_F(Zasysacz, IsTheThirdPieceOfGearAndNoOther) {
  hero.MaSpec(0) = true;
  hero.MaSpec(1) = true;
  hero.MaSpec(3) = true;
  ready("Łuk");
  group(1, 20, 5);
  open();
  shot();

  EXPECT_EQ(caption("Mstat(1)"), "5");
}

TEST_F(Dzialo, FiresThenReloadsThenFires) {
  ready("Działo");
  group(1, 100);
  open();
  shot();
  EXPECT_EQ(caption("Mstat(0)"), "90");
  nextRound();
  EXPECT_TRUE(press("Atak"));
  EXPECT_EQ(caption("Mstat(0)"), "90");
  EXPECT_EQ(openActions(), "Uzyj");
  nextRound();
  shot();

  EXPECT_EQ(caption("Mstat(0)"), "80");
  EXPECT_EQ(played(), (std::vector<std::string>{"Działo.wav", "specammo.wav", "Działo.wav"}));
}

TEST_F(Dzialo, ReloadingGrowsNothingAndKeepsTheFigures) {
  ready("Działo");
  group(1, 100);
  open();
  shot();
  nextRound();
  EXPECT_TRUE(press("Atak"));

  EXPECT_EQ(caption("Pstat(3)"), "+ 0+ 2%");
  EXPECT_EQ(caption("IleZad"), " 10 ");
  EXPECT_FALSE(shown("FZad"));
}

TEST_F(Dzialo, HasReloadedWhenTheNextFightOpens) {
  ready("Działo");
  open();
  shot();
  EXPECT_EQ(played().back(), "Działo.wav");
  win();
  open();
  choose("Działo");
  shot();

  EXPECT_EQ(caption("Mstat(0)"), "10");
}

TEST_F(UltiGun, OnAOneTakesOneOfTheMaximumWithAWarning) {
  ready("UltiGun");
  hero.AktWytrzymalosc = 12;
  open();
  world.roll(1, 140, {1});
  world.roll(1, 10, {1});
  EXPECT_TRUE(press("Atak"));

  EXPECT_TRUE(shown("Uwaga"));
  EXPECT_EQ(caption("Uwaga"), "Straciłeś 1 od Maxa Wytrzymałości");
  EXPECT_EQ(caption("Pstat(0)"), "11");
}

TEST_F(UltiGun, LeavesAHurtHeroHisCurrentEndurance) {
  ready("UltiGun");
  hero.AktWytrzymalosc = 7;
  open();
  world.roll(1, 140, {1});
  world.roll(1, 10, {1});
  EXPECT_TRUE(press("Atak"));

  EXPECT_EQ(caption("Pstat(0)"), "7");
  win();
  EXPECT_EQ(saved().Wartosci(0), 11);
}

TEST_F(UltiGun, CostsNothingOnAnyOtherFace) {
  ready("UltiGun");
  for (int face = 2; face <= 10; ++face) {
    open();
    world.roll(1, 140, {1});
    world.roll(1, 10, {face});
    EXPECT_TRUE(press("Atak"));
    EXPECT_FALSE(shown("Uwaga")) << face;
    EXPECT_EQ(caption("Pstat(0)"), "12") << face;
    world.runtime.Unload("Fight");
  }
}

TEST_F(UltiGun, CostsEnduranceOnceInEighteenShotsAndNotInTen) {
  ready("UltiGun");
  for (const float number : {0.0555F, 0.0557F}) {
    open();
    world.roll(1, 140, {1});
    world.scripted.add(number);
    EXPECT_TRUE(press("Atak"));
    EXPECT_EQ(shown("Uwaga"), number < 1 / 18.0F);
    world.runtime.Unload("Fight");
  }
}

TEST_F(UltiGun, IsPaidForWhenTheArmourStopsTheShot) {
  ready("UltiGun");
  group(1, 20, 10);
  open();
  world.roll(1, 140, {1});
  world.roll(1, 10, {1});
  EXPECT_TRUE(press("Atak"));

  EXPECT_FALSE(shown("FZad"));
  EXPECT_EQ(caption("Pstat(0)"), "11");
}

TEST_F(UltiGun, ItsDieComesAfterAllOthersOfTheShot) {
  hero.MaSpec(2) = true;
  readyItem("Ammo", 1);
  ready("UltiGun");
  weapon("UltiGun").kostka = {1, 8, 1, 0};
  group(1, 20, 5);
  open();
  use();
  world.roll(1, 140, {1});
  world.roll(1, 8, {7});
  world.roll(1, 6, {4});
  world.roll(1, 3, {3});
  world.roll(1, 10, {1});
  EXPECT_TRUE(press("Atak"));

  EXPECT_EQ(caption("IleZad"), " 9 ");
  EXPECT_EQ(caption("Mstat(1)"), "2");
  EXPECT_TRUE(shown("Uwaga"));
}

TEST_F(UltiGun, WhatItCostIsWrittenWhenTheFightCloses) {
  ready("UltiGun");
  open();
  world.roll(1, 140, {1});
  world.roll(1, 10, {1});
  EXPECT_TRUE(press("Atak"));
  win();

  EXPECT_EQ(saved().Wartosci(0), 11);
  EXPECT_EQ(saved().AktWytrzymalosc, 11);
}

TEST_F(UltiGun, WithAPriceOnTheLastShotShowsWhatIsLeftOfTheTarget) {
  ready("UltiGun");
  deals("UltiGun", 25);
  open();
  world.roll(1, 140, {1});
  world.roll(1, 10, {1});
  EXPECT_TRUE(press("Atak"));

  EXPECT_EQ(caption("OpisZad"), "Czysto!");
  EXPECT_EQ(caption("LIle"), "0");
  EXPECT_EQ(caption("Mstat(0)"), "-5");
}

TEST_F(UltiGun, WithoutAPriceOnTheLastShotLeavesTheFiguresOfTheTarget) {
  ready("UltiGun");
  deals("UltiGun", 25);
  open();
  world.roll(1, 140, {1});
  world.roll(1, 10, {2});
  EXPECT_TRUE(press("Atak"));

  EXPECT_EQ(caption("LIle"), "0");
  EXPECT_EQ(caption("Mstat(0)"), "20");
}

TEST_F(UltiGun, MayTakeTheLastEnduranceAndTheNextRoundSaysSmierc) {
  ready("UltiGun");
  hero.Wartosci(0) = 1;
  hero.AktWytrzymalosc = 1;
  open();
  world.roll(1, 140, {1});
  world.roll(1, 10, {1});
  EXPECT_TRUE(press("Atak"));
  EXPECT_EQ(caption("Pstat(0)"), "0");
  EXPECT_EQ(caption("OpisDMG"), "");
  nextRound();

  EXPECT_EQ(caption("OpisDMG"), "Śmierć!");
  EXPECT_EQ(openActions(), "");
  EXPECT_FALSE(shown("FDamage"));
}

}  // namespace
}  // namespace brolgan::test
