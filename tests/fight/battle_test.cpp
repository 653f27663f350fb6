// The arithmetic of the fight: damage of a blow, bonuses of the classes, reward.
#include "rules/battle.h"

#include "tests/fight/fixture.h"

namespace brolgan::test {
namespace {

Bohater striker(int percent, int plus, int dodatek) {
  Bohater hero;
  hero.BronwwProc(3) = percent;
  hero.BronwwPlus(3) = plus;
  hero.MO = {1, 6, 2, dodatek};
  return hero;
}

TEST(MeleeDamage, IsTwentyNineInTheWorkedExample) {
  EXPECT_EQ(meleeDamage(striker(45, 5, 3), 3, 7, {1, 8, 1, 2}, 5), 29);
}

TEST(MeleeDamage, PutsThePercentOnStrengthFlatBonusAndAdditionOfTheHeroAlone) {
  EXPECT_EQ(meleeDamage(striker(100, 2, 3), 3, 4, {1, 8, 1, 10}, 20), 48);
}

TEST(MeleeDamage, RoundsATrueTieToEven) {
  EXPECT_EQ(meleeDamage(striker(45, 0, 0), 3, 10, {}, 0), 14);
  EXPECT_EQ(meleeDamage(striker(45, 0, 0), 3, 10, {}, 1), 16);
}

TEST(MeleeDamage, RoundsUpWhatTheDoublesLeaveAboveATie) { EXPECT_EQ(meleeDamage(striker(10, 0, 0), 3, 25, {}, 1), 29); }

TEST(MeleeDamage, DividesThePercentByAHundredAndRoundsDownWhatTheDoublesLeaveBelowATie) {
  EXPECT_EQ(meleeDamage(striker(70, 0, 0), 3, 25, {}, 0), 42);
  EXPECT_EQ(meleeDamage(striker(57, 0, 0), 3, 50, {}, 1), 79);
}

TEST(MeleeDamage, MayBeNegative) { EXPECT_EQ(meleeDamage(striker(0, -20, 0), 3, 4, {1, 8, 1, -1}, 5), -12); }

TEST(MeleeDamage, LooksAtTheWeaponOfThatPlace) { EXPECT_EQ(meleeDamage(striker(100, 50, 0), 2, 4, {}, 5), 9); }

TEST(MeleeDamage, OverflowsBeyondAnInteger) {
  EXPECT_EQ(errorOf([] { meleeDamage(striker(0, 30000, 0), 3, 3000, {}, 0); }), 6);
  EXPECT_EQ(errorOf([] { meleeDamage(striker(100, 20000, 0), 3, 0, {}, 0); }), 6);
  EXPECT_EQ(errorOf([] { meleeDamage(striker(100, 16000, 0), 3, 0, {}, 0); }), 0);
}

struct ClassBonus {
  int value;
  int bonus;

  friend std::ostream& operator<<(std::ostream& out, const ClassBonus& row) { return out << row.value; }
};

class WitcherBonus : public ::testing::TestWithParam<ClassBonus> {};

TEST_P(WitcherBonus, IsHisSpeedByThreeAndFourTenthsRounded) {
  EXPECT_EQ(witcherBonus(GetParam().value), GetParam().bonus);
}

INSTANTIATE_TEST_SUITE_P(Steps, WitcherBonus,
                         ::testing::Values(ClassBonus{6, 2}, ClassBonus{9, 3}, ClassBonus{12, 4}, ClassBonus{16, 5},
                                           ClassBonus{20, 6}, ClassBonus{24, 7}, ClassBonus{29, 9},
                                           ClassBonus{34, 10}));

class WizardRegain : public ::testing::TestWithParam<ClassBonus> {};

TEST_P(WizardRegain, IsHisRegenerationByThreeAndAHalfRounded) {
  EXPECT_EQ(wizardRegain(GetParam().value), GetParam().bonus);
}

INSTANTIATE_TEST_SUITE_P(Steps, WizardRegain,
                         ::testing::Values(ClassBonus{1, 0}, ClassBonus{3, 1}, ClassBonus{5, 1}, ClassBonus{7, 2},
                                           ClassBonus{10, 3}, ClassBonus{16, 5}));

TEST(RewardOfAFight, IsNotRoundedForMostClasses) { EXPECT_DOUBLE_EQ(reward("Wojownik", 3, {1, 6, 2, 1}, 3), 2.66); }

TEST(RewardOfAFight, IsMultipliedAndRoundedForAwanturnik) {
  EXPECT_EQ(reward("Awanturnik", 3, {1, 6, 2, 1}, 3), 4);
  EXPECT_EQ(reward("Awanturnik", 1, {1, 9, 18, 0}, 0), 14);
  EXPECT_EQ(reward("Awanturnik", 1, {}, 0), 1);
}

TEST(RewardOfAFight, IsTripledAndNotRoundedForRyzykant) {
  EXPECT_DOUBLE_EQ(reward("Ryzykant", 3, {1, 6, 2, 1}, 3), 7.98);
}

TEST(RewardOfAFight, OfAGroupOfOneIsTheTenthOfAttackAndArmourAndOne) {
  EXPECT_EQ(reward("Wojownik", 1, {1, 5, 5, 99}, 10), 3.5);
}

TEST(RewardOfAFight, HalvesAnOddSumOfFacesExactly) { EXPECT_EQ(reward("Wojownik", 1, {1, 4, 2, 0}, 0), 1.5); }

TEST(RewardOfAFight, GrowsByAThirdWithEachFurtherMonster) {
  EXPECT_DOUBLE_EQ(reward("Wojownik", 2, {1, 4, 2, 0}, 5), 2.33);
  EXPECT_DOUBLE_EQ(reward("Wojownik", 26, {1, 4, 2, 0}, 5), 10.25);
}

TEST(RewardOfAFight, LooksAtTheLetterOfTheClass) {
  EXPECT_EQ(reward("awanturnik", 1, {1, 9, 18, 0}, 0), 10);
  EXPECT_EQ(reward("Ryzykant ", 1, {1, 9, 18, 0}, 0), 10);
}

}  // namespace
}  // namespace brolgan::test
