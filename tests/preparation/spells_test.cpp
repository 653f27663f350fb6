// The three spells that can be cast before the fight.
#include <gtest/gtest.h>

#include "rules/consumables.h"
#include "tests/preparation/preparation.h"

namespace brolgan::test {
namespace {

using Lines = std::vector<std::string>;

TEST(SpellsBeforeTheFight, AreListedInTheirOrder) {
  Preparation preparation;
  for (bool& owned : preparation.hero.MaCzar) owned = true;
  preparation.hero.Przedmioty(2) = 1;
  preparation.open();
  EXPECT_EQ(preparation.spells(), (Lines{"Leczenie", "Autostart", "Czar Leczniczy"}));
}

TEST(SpellsBeforeTheFight, AreListedOnlyWhenTheHeroHasThem) {
  Preparation preparation;
  for (int i = 1; i < 9; ++i) preparation.hero.MaCzar(i) = true;
  preparation.hero.Przedmioty(2) = -1;
  preparation.open();
  EXPECT_TRUE(preparation.spells().empty());
}

struct Cost {
  const char* spell;
  const char* shown;
};

class SpellCost : public testing::TestWithParam<Cost> {};

INSTANTIATE_TEST_SUITE_P(Spells, SpellCost,
                         testing::Values(Cost{"Leczenie", "1"}, Cost{"Autostart", "3"}, Cost{"Czar Leczniczy", "2"}));

TEST_P(SpellCost, IsShownWhenTheSpellIsSelected) {
  Preparation preparation;
  preparation.hero.MaCzar(0) = true;
  preparation.hero.MaCzar(9) = true;
  preparation.openWith(kStrongHealingCounter, 1);
  preparation.world.type("Prefight", "Koszt", "77");
  preparation.world.select("Prefight", "Czary", GetParam().spell);
  EXPECT_EQ(preparation.world.text("Prefight", "Koszt"), GetParam().shown);
}

TEST(SpellCost, IsZeroWhenTheSelectionIsGone) {
  Preparation preparation;
  preparation.hero.MaCzar(0) = true;
  preparation.open();
  preparation.world.select("Prefight", "Czary", kHealingSpell);
  preparation.world.selectRow("Prefight", "Czary", -1);
  EXPECT_EQ(preparation.world.text("Prefight", "Koszt"), "0");
}

TEST(SpellCost, TypedOverChangesNothing) {
  Preparation preparation;
  preparation.hero.MaCzar(0) = true;
  preparation.open();
  preparation.world.select("Prefight", "Czary", kHealingSpell);
  EXPECT_TRUE(preparation.world.type("Prefight", "Koszt", "0"));
  preparation.world.roll(1, 6, {4});
  preparation.castAgain();
  EXPECT_EQ(preparation.caption("cur(1)"), "19");
  EXPECT_EQ(preparation.world.text("Prefight", "Koszt"), "0");
}

TEST(SpellsBeforeTheFight, WithNothingSelectedTheButtonDoesNothing) {
  Preparation preparation;
  preparation.hero.MaCzar(0) = true;
  preparation.open();
  preparation.castAgain();
  EXPECT_EQ(preparation.notes(), "");
  EXPECT_EQ(preparation.caption("cur(1)"), "20");
}

struct Cast {
  const char* spell;
  int magic;
  std::vector<int> rolls;
  int left;
  const char* note;
};

class EachSpell : public testing::TestWithParam<Cast> {};

INSTANTIATE_TEST_SUITE_P(Spells, EachSpell,
                         testing::Values(Cast{"Leczenie", 1, {5}, 0, "Rzuciłem Leczenie( 5) "},
                                         Cast{"Leczenie", 0, {}, 0, ""}, Cast{"Leczenie", -1, {}, -1, ""},
                                         Cast{"Czar Leczniczy", 2, {3, 4}, 0, "Rzuciłem Czar Leczniczy( 7) "},
                                         Cast{"Czar Leczniczy", 1, {}, 1, ""},
                                         Cast{"Autostart", 3, {6}, 0, "Rzuciłem Autostart( 6) "},
                                         Cast{"Autostart", 2, {}, 2, ""}));

TEST_P(EachSpell, IsCastIfTheMagicReachesAndOtherwiseNothingHappens) {
  Preparation preparation;
  preparation.hero.MaCzar(0) = true;
  preparation.hero.MaCzar(9) = true;
  preparation.hero.AktMoc = GetParam().magic;
  preparation.openWith(kStrongHealingCounter, 1);
  preparation.world.roll(1, 6, GetParam().rolls);
  preparation.cast(GetParam().spell);
  EXPECT_EQ(preparation.world.unusedRolls(), 0U);
  EXPECT_EQ(preparation.caption("cur(1)"), std::to_string(GetParam().left));
  EXPECT_EQ(preparation.notes(), GetParam().note);
}

TEST(Healing, WithOnePointOfMagicIsCastWhereTheStrongOneIsNot) {
  Preparation preparation;
  preparation.hero.MaCzar(0) = true;
  preparation.hero.AktMoc = 1;
  preparation.openWith(kStrongHealingCounter, 1);
  preparation.cast(kStrongHealingSpell);
  EXPECT_EQ(preparation.caption("cur(1)"), "1");
  EXPECT_EQ(preparation.caption("cur(0)"), "10");
  preparation.world.roll(1, 6, {2});
  preparation.cast(kHealingSpell);
  EXPECT_EQ(preparation.caption("cur(1)"), "0");
  EXPECT_EQ(preparation.caption("cur(0)"), "12");
}

TEST(Healing, RaisesTheEnduranceByOneDie) {
  Preparation preparation;
  preparation.hero.MaCzar(0) = true;
  preparation.open();
  preparation.world.roll(1, 6, {6});
  preparation.cast(kHealingSpell);
  EXPECT_EQ(preparation.caption("cur(0)"), "16");
  preparation.finish();
  EXPECT_EQ(preparation.world.hero("hero1.boh").AktWytrzymalosc, 16);
  EXPECT_EQ(preparation.world.hero("hero1.boh").AktMoc, 19);
}

TEST(Healing, AtFullEnduranceSpendsTheMagicAndTheNoteShowsTheRoll) {
  Preparation preparation;
  preparation.hero.MaCzar(0) = true;
  preparation.hero.AktWytrzymalosc = 30;
  preparation.open();
  preparation.world.roll(1, 6, {5});
  preparation.cast(kHealingSpell);
  EXPECT_EQ(preparation.caption("cur(0)"), "30");
  EXPECT_EQ(preparation.caption("cur(1)"), "19");
  EXPECT_EQ(preparation.notes(), "Rzuciłem Leczenie( 5) ");
}

TEST(Healing, IsCutAtTheMaximum) {
  Preparation preparation;
  preparation.hero.MaCzar(0) = true;
  preparation.hero.AktWytrzymalosc = 28;
  preparation.open();
  preparation.world.roll(1, 6, {6});
  preparation.cast(kHealingSpell);
  EXPECT_EQ(preparation.caption("cur(0)"), "30");
  EXPECT_EQ(preparation.notes(), "Rzuciłem Leczenie( 6) ");
}

TEST(Healing, CutsAnEnduranceAboveTheMaximumBackToIt) {
  Preparation preparation;
  preparation.hero.MaCzar(0) = true;
  preparation.hero.AktWytrzymalosc = 45;
  preparation.open();
  preparation.world.roll(1, 6, {1});
  preparation.cast(kHealingSpell);
  EXPECT_EQ(preparation.caption("cur(0)"), "30");
}

struct Strong {
  int level;
  std::vector<int> rolls;
  int healed;
};

class StrongHealing : public testing::TestWithParam<Strong> {};

INSTANTIATE_TEST_SUITE_P(Levels, StrongHealing,
                         testing::Values(Strong{1, {1, 1}, 2}, Strong{1, {6, 6}, 12}, Strong{2, {3, 4}, 9},
                                         Strong{3, {1, 1}, 6}, Strong{3, {6, 6}, 16}));

TEST_P(StrongHealing, HealsTwoDiceAndTwoMoreForEachLevelAboveTheFirst) {
  Preparation preparation;
  preparation.openWith(kStrongHealingCounter, GetParam().level);
  preparation.world.roll(1, 6, GetParam().rolls);
  preparation.cast(kStrongHealingSpell);
  EXPECT_EQ(preparation.caption("cur(0)"), std::to_string(10 + GetParam().healed));
  EXPECT_EQ(preparation.notes(), "Rzuciłem Czar Leczniczy( " + std::to_string(GetParam().healed) + ") ");
}

TEST(StrongHealing, AtLevel3HealsFrom6To16) {
  for (const auto& [face, shown] : {std::pair{1, "16"}, {6, "26"}}) {
    Preparation preparation;
    preparation.openWith(kStrongHealingCounter, 3);
    preparation.world.roll(1, 6, {face, face});
    preparation.cast(kStrongHealingSpell);
    EXPECT_EQ(preparation.caption("cur(0)"), shown);
  }
}

// A fair die would show 1 twice where the uneven one shows 2.
TEST(StrongHealing, IsThrownWithUnevenDice) {
  Preparation preparation;
  preparation.openWith(kStrongHealingCounter, 1);
  for (int i = 0; i < 2; ++i) preparation.world.scripted.add(0.15F);
  preparation.cast(kStrongHealingSpell);
  EXPECT_EQ(preparation.notes(), "Rzuciłem Czar Leczniczy( 4) ");
}

TEST(StrongHealing, DoesNotUseUpItsLevel) {
  Preparation preparation;
  preparation.openWith(kStrongHealingCounter, 1);
  preparation.world.roll(1, 6, {1, 1});
  preparation.cast(kStrongHealingSpell);
  preparation.finish();
  EXPECT_EQ(preparation.world.hero("hero1.boh").Przedmioty(2), 1);
}

TEST(Autostart, WithTwoPointsOfMagicDoesNothing) {
  Preparation preparation;
  preparation.hero.MaCzar(9) = true;
  preparation.hero.AktMoc = 2;
  preparation.open();
  preparation.cast(kAutostartSpell);
  EXPECT_EQ(preparation.caption("Inic"), "12");
  EXPECT_EQ(preparation.caption("cur(1)"), "2");
}

TEST(Autostart, RaisesTheInitiativeByOneDieAndNothingElse) {
  Preparation preparation;
  preparation.hero.MaCzar(9) = true;
  preparation.open();
  preparation.world.roll(1, 6, {4});
  preparation.cast(kAutostartSpell);
  EXPECT_EQ(preparation.caption("Inic"), "16");
  EXPECT_EQ(preparation.caption("cur(1)"), "17");
  EXPECT_EQ(preparation.caption("cur(0)"), "10");
  preparation.finish();
  EXPECT_EQ(preparation.world.hero("hero1.boh").Wartosci(3), 12);
}

TEST(Autostart, RaisesTheInitiativeByOneOnTheLowestFaceAndByOneToSixInAll) {
  for (int face = 1; face <= 6; ++face) {
    Preparation preparation;
    preparation.hero.MaCzar(9) = true;
    preparation.open();
    preparation.world.roll(1, 6, {face});
    preparation.cast(kAutostartSpell);
    EXPECT_EQ(preparation.caption("Inic"), std::to_string(12 + face));
    EXPECT_EQ(preparation.notes(), "Rzuciłem Autostart( " + std::to_string(face) + ") ");
  }
}

TEST(Autostart, BeyondAnIntegerEndsTheProgram) {
  Preparation preparation;
  preparation.hero.MaCzar(9) = true;
  preparation.hero.Wartosci(3) = 32767;
  preparation.open();
  preparation.world.roll(1, 6, {1});
  EXPECT_EQ(errorOf([&] { preparation.cast(kAutostartSpell); }), 6);
}

TEST(SpellsBeforeTheFight, MayBeCastAgainWhileTheMagicLastsAndTheSelectionStays) {
  Preparation preparation;
  preparation.hero.MaCzar(0) = true;
  preparation.hero.AktMoc = 2;
  preparation.open();
  preparation.world.roll(1, 6, {1, 2});
  preparation.cast(kHealingSpell);
  preparation.castAgain();
  preparation.castAgain();
  EXPECT_EQ(preparation.caption("cur(0)"), "13");
  EXPECT_EQ(preparation.caption("cur(1)"), "0");
  EXPECT_EQ(preparation.notes(), "Rzuciłem Leczenie( 1) Rzuciłem Leczenie( 2) ");
  EXPECT_EQ(preparation.world.text("Prefight", "Czary"), "Leczenie");
  EXPECT_EQ(preparation.spells(), Lines{"Leczenie"});
}

TEST(SpellsBeforeTheFight, ABerserkerMayCastThemToo) {
  Preparation preparation;
  preparation.hero.Klasa = "Berserker";
  preparation.hero.MaCzar(0) = true;
  preparation.open();
  preparation.world.roll(1, 6, {3});
  preparation.cast(kHealingSpell);
  EXPECT_EQ(preparation.caption("cur(0)"), "13");
}

TEST(SpellsBeforeTheFight, PlayNoSound) {
  Preparation preparation;
  preparation.hero.MaCzar(0) = true;
  preparation.open();
  preparation.world.roll(1, 6, {3});
  preparation.cast(kHealingSpell);
  EXPECT_EQ(preparation.world.sounds.played(), Lines{"guit\\hard2.wav"});
}

}  // namespace
}  // namespace brolgan::test
