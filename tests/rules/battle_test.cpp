// The arithmetic of the fight.
#include "rules/battle.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "rules/development.h"
#include "tests/support/world.h"

namespace brolgan::test {
namespace {

struct Blow {
  int percent;
  int plus;
  int strengthAddition;
  int strength;
  int weaponAddition;
  int weaponRoll;
  int damage;
};
class MeleeDamage : public testing::TestWithParam<Blow> {};

TEST_P(MeleeDamage, TakesThePercentOnStrengthAndFlatBonusAndAddsTheWeaponsDice) {
  const Blow& blow = GetParam();
  Bohater hero = plainHero();
  hero.BronwwProc(3) = blow.percent;
  hero.BronwwPlus(3) = blow.plus;
  hero.MO.dodatek = blow.strengthAddition;
  const Kostka weapon{1, 6, 1, blow.weaponAddition};
  EXPECT_EQ(meleeDamage(hero, 3, blow.strength, weapon, blow.weaponRoll), blow.damage);
}

INSTANTIATE_TEST_SUITE_P(Sums, MeleeDamage,
                         testing::Values(Blow{0, 0, 0, 3, 0, 4, 7}, Blow{0, 5, 2, 3, 1, 4, 15},
                                         Blow{100, 5, 2, 3, 1, 4, 25}, Blow{45, 0, 0, 4, 0, 0, 6},
                                         Blow{-50, 0, 0, 4, 0, 3, 5}, Blow{0, 0, 0, 3, -10, 4, -3},
                                         Blow{45, 5, 3, 7, 2, 5, 29}, Blow{100, 2, 3, 4, 10, 20, 48}));
// 14.5 is a true tie of doubles; 10 percent on 25 is a trifle above 27.5, 70 percent a trifle below 42.5.
INSTANTIATE_TEST_SUITE_P(TiesGoToEven, MeleeDamage,
                         testing::Values(Blow{45, 0, 0, 10, 0, 0, 14}, Blow{45, 0, 0, 10, 0, 1, 16},
                                         Blow{50, 0, 0, 1, 0, 0, 2}, Blow{50, 0, 0, 3, 0, 0, 4},
                                         Blow{50, 0, 0, 1, 0, 1, 2}, Blow{10, 0, 0, 25, 0, 1, 29},
                                         Blow{70, 0, 0, 25, 0, 0, 42}, Blow{57, 0, 0, 50, 0, 1, 79}));

TEST(MeleeDamageOf, OverflowsBeyondAnIntegerAndOnItsPartialSum) {
  Bohater hero = plainHero();
  EXPECT_EQ(errorOf([&] { meleeDamage(hero, 0, 30000, {1, 6, 1, 0}, 3000); }), 6);
  hero.BronwwPlus(0) = 1;
  hero.BronwwProc(0) = -100;
  EXPECT_EQ(errorOf([&] { meleeDamage(hero, 0, 32767, {1, 6, 1, 0}, 0); }), 6);
}

TEST(MeleeDamageOf, OverflowsWhenThePercentDoesButNotForTheSumOfDoubles) {
  Bohater hero = plainHero();
  hero.BronwwPlus(3) = 20000;
  hero.BronwwProc(3) = 100;
  EXPECT_EQ(errorOf([&] { meleeDamage(hero, 3, 0, {}, 0); }), 6);
  hero.BronwwPlus(3) = 16000;
  EXPECT_EQ(meleeDamage(hero, 3, 0, {}, 0), 32000);
}

TEST(MeleeDamageOf, LooksAtTheWeaponOfThatPlace) {
  Bohater hero = plainHero();
  hero.BronwwProc(3) = 100;
  hero.BronwwPlus(3) = 50;
  EXPECT_EQ(meleeDamage(hero, 2, 4, {}, 5), 9);
}

TEST(MeleeDamageOf, AWeaponBehindTheTenthIsASubscriptError) {
  EXPECT_EQ(errorOf([] { meleeDamage(plainHero(), 10, 1, {1, 6, 1, 0}, 1); }), 9);
}

TEST(WitcherBonus, OnTheEightStepsOfSpeed) {
  const std::vector<int> bonuses = {2, 3, 4, 5, 6, 7, 9, 10};
  for (int step = 1; step <= 8; ++step) EXPECT_EQ(witcherBonus(ladderValue(kSpeed, step)), bonuses[step - 1]) << step;
}

TEST(WizardRegain, OnTheFiveStepsOfRegeneration) {
  const std::vector<int> gains = {0, 1, 1, 2, 3};
  for (int step = 1; step <= 5; ++step)
    EXPECT_EQ(wizardRegain(ladderValue(kRegeneration, step)), gains[step - 1]) << step;
}

TEST(WizardRegain, IsNothingOnTheFirstStepWhateverTheTipSays) { EXPECT_EQ(wizardRegain(1), 0); }

// A group of three with 1 to 6 on two dice and armour 3.
double rewardFor(const std::string& klasa) { return reward(klasa, 3, {1, 6, 2, 1}, 3); }

TEST(Reward, OfTheThreeKindsOfClasses) {
  EXPECT_DOUBLE_EQ(rewardFor("Wojownik"), 2.66);
  EXPECT_EQ(rewardFor("Awanturnik"), 4);
  EXPECT_DOUBLE_EQ(rewardFor("Ryzykant"), 7.98);
}

TEST(Reward, AGroupOfOneCountsOnce) {
  EXPECT_DOUBLE_EQ(reward("Wojownik", 1, {1, 4, 1, 0}, 0), 1.25);
  EXPECT_DOUBLE_EQ(reward("Wojownik", 1, {1, 4, 2, 0}, 5), 2);
}

TEST(Reward, GrowsByAThirdWithEachFurtherMonster) {
  EXPECT_DOUBLE_EQ(reward("Wojownik", 2, {1, 4, 2, 0}, 5), 2.33);
  EXPECT_DOUBLE_EQ(reward("Wojownik", 26, {1, 4, 2, 0}, 5), 10.25);
}

TEST(Reward, IsTheTenthOfAttackAndArmourAndOneWithHalfOfAnOddSumOfFaces) {
  EXPECT_EQ(reward("Wojownik", 1, {1, 5, 5, 99}, 10), 3.5);
  EXPECT_EQ(reward("Wojownik", 1, {1, 4, 2, 0}, 0), 1.5);
}

TEST(Reward, LeavesOutTheMonstersAddition) {
  EXPECT_EQ(reward("Wojownik", 1, {1, 4, 1, 0}, 0), reward("Wojownik", 1, {1, 4, 1, 1000}, 0));
}

TEST(Reward, OfAnAdventurerIsRoundedAtOnceWithTiesToEven) {
  EXPECT_EQ(reward("Awanturnik", 1, {0, 0, 0, 0}, 0), 1);    // 1.45: the class gains nothing.
  EXPECT_EQ(reward("Awanturnik", 1, {0, 0, 0, 0}, 90), 14);  // 14.5
}

TEST(Reward, OfAGamblerIsNotRounded) { EXPECT_DOUBLE_EQ(reward("Ryzykant", 1, {1, 4, 1, 0}, 0), 3.75); }

TEST(Reward, TellsClassesByTheLetter) {
  EXPECT_EQ(rewardFor("ryzykant"), rewardFor("Wojownik"));
  EXPECT_EQ(rewardFor(""), rewardFor("Wojownik"));
  EXPECT_EQ(rewardFor("Ryzykant "), rewardFor("Wojownik"));
}

TEST(Reward, AddsTheFacesOfTheMonstersDiceBeyondAnInteger) {
  EXPECT_DOUBLE_EQ(reward("Wojownik", 1, {20000, 20000, 1, 0}, 0), 2001);
  EXPECT_DOUBLE_EQ(reward("Wojownik", 1, {-20000, -20000, 1, 0}, 0), -1999);
}

}  // namespace
}  // namespace brolgan::test
