// What heals, and who knows what.
#include "rules/spells.h"

#include <gtest/gtest.h>

#include "tests/support/world.h"

namespace brolgan::test {
namespace {

TEST(HealingRoll, IsOneDieOfSix) {
  ScriptedRandom random({rollOf(1, 6, 1), rollOf(1, 6, 6)});
  EXPECT_EQ(rollHealing(random), 1);
  EXPECT_EQ(rollHealing(random), 6);
  EXPECT_EQ(random.left(), 0U);
}

TEST(StrongHealingRoll, IsTwoDiceOfSixAndTwoForEachLevelAboveTheFirst) {
  Bohater hero;
  for (const auto& [level, healed] : {std::pair{1, 9}, {2, 11}, {5, 17}}) {
    hero.Przedmioty(kStrongHealingCounter) = level;
    ScriptedRandom random({rollOf(1, 6, 4), rollOf(1, 6, 5)});
    EXPECT_EQ(rollStrongHealing(random, hero), healed) << level;
    EXPECT_EQ(random.left(), 0U);
  }
}

TEST(StrongHealingRoll, OverflowsBeyondAnInteger) {
  Bohater hero;
  hero.Przedmioty(kStrongHealingCounter) = 32767;
  ScriptedRandom random({0, 0});
  EXPECT_EQ(errorOf([&] { rollStrongHealing(random, hero); }), 6);
}

TEST(Heal, RaisesTheEnduranceToItsMaximumAtMostAndCutsWhatStoodAboveIt) {
  Bohater hero;
  hero.Wartosci(kEndurance) = 12;
  for (const auto& [before, after] : {std::pair{3, 8}, {7, 12}, {8, 12}, {40, 12}}) {
    hero.AktWytrzymalosc = before;
    heal(hero, 5);
    EXPECT_EQ(hero.AktWytrzymalosc, after) << before;
  }
}

TEST(Spells, AreKnownByTheirFlagAndTheStrongHealingByItsCounter) {
  Bohater hero;
  EXPECT_FALSE(knowsSpell<kBoom>(hero));
  hero.MaCzar(kBoom) = true;
  EXPECT_TRUE(knowsSpell<kBoom>(hero));
  EXPECT_FALSE(knowsSpell<kHealing>(hero));
  for (const auto& [counter, known] : {std::pair{-1, false}, {0, false}, {1, true}, {7, true}}) {
    hero.Przedmioty(kStrongHealingCounter) = counter;
    EXPECT_EQ(knowsStrongHealing(hero), known) << counter;
  }
}

}  // namespace
}  // namespace brolgan::test
