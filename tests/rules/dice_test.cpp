// The die with its rare extremes, sums of dice, and their texts.
#include "rules/dice.h"

#include <gtest/gtest.h>

#include <map>
#include <string>
#include <vector>

#include "tests/support/world.h"

namespace brolgan::test {
namespace {

// The greatest number that the generator gives.
constexpr float kHighest = 1 - 0x1p-24F;

int rzut(float number, int kmin, int kmax) {
  ScriptedRandom random({number});
  return Rzut(random, kmin, kmax).value();
}

// Ties and bounds.

struct Tie {
  int kmin;
  int kmax;
  float number;
  int face;
};
class Ties : public testing::TestWithParam<Tie> {};

TEST_P(Ties, GoToTheEvenNeighbour) {
  const Tie& tie = GetParam();
  EXPECT_EQ(rzut(tie.number, tie.kmin, tie.kmax), tie.face);
}

INSTANTIATE_TEST_SUITE_P(K5, Ties,
                         testing::Values(Tie{1, 5, 0.125F, 2}, Tie{1, 5, 0.375F, 2}, Tie{1, 5, 0.625F, 4},
                                         Tie{1, 5, 0.875F, 4}));
INSTANTIATE_TEST_SUITE_P(K3, Ties, testing::Values(Tie{1, 3, 0.25F, 2}, Tie{1, 3, 0.75F, 2}));
INSTANTIATE_TEST_SUITE_P(K9, Ties,
                         testing::Values(Tie{1, 9, 0.0625F, 2}, Tie{1, 9, 0.3125F, 4}, Tie{1, 9, 0.9375F, 8}));
INSTANTIATE_TEST_SUITE_P(BelowZero, Ties, testing::Values(Tie{-2, 0, 0.25F, -2}, Tie{-2, 0, 0.75F, 0}));
INSTANTIATE_TEST_SUITE_P(Descending, Ties, testing::Values(Tie{5, 1, 0.125F, 4}, Tie{5, 1, 0.375F, 4}));

TEST(Rzut, OneStepOfTheGridBesideATieDecidesIt) {
  EXPECT_EQ(rzut(0.375F - 0x1p-24F, 1, 5), 2);
  EXPECT_EQ(rzut(0.375F + 0x1p-23F, 1, 5), 3);
  EXPECT_EQ(rzut(0.125F - 0x1p-23F, 1, 5), 1);
  EXPECT_EQ(rzut(0.125F, 1, 5), 2);
}

// 5033165 steps times 5 lie between two singles and fall on the lower one, exactly a half; in
// double precision the product would stay above it and the die would show 3.
TEST(Rzut, MultipliesAndAddsInSinglePrecision) {
  EXPECT_EQ(rzut(5033165 * 0x1p-24F, 1, 6), 2);
  EXPECT_EQ(rzut(5033166 * 0x1p-24F, 1, 6), 3);
}

TEST(Rzut, TheSumIsRoundedToASingleToo) {
  EXPECT_EQ(rzut(0.5F + 0x1p-23F, 1000, 1001), 1000);  // 1000.5 and a trifle that a single cannot hold.
  EXPECT_EQ(rzut(0.5F + 0x1p-23F, 0, 1), 1);
}

TEST(Rzut, TheBoundsAreExact) {
  for (const auto& [kmin, kmax] : std::vector<std::pair<int, int>>{{1, 2},
                                                                   {1, 3},
                                                                   {1, 4},
                                                                   {1, 6},
                                                                   {1, 8},
                                                                   {1, 10},
                                                                   {1, 30},
                                                                   {1, 45},
                                                                   {1, 120},
                                                                   {4, 9},
                                                                   {-5, 5},
                                                                   {-32768, 32767}}) {
    EXPECT_EQ(rzut(0, kmin, kmax), kmin) << kmin << " " << kmax;
    EXPECT_EQ(rzut(kHighest, kmin, kmax), kmax) << kmin << " " << kmax;
  }
}

TEST(Rzut, NoNumberLeadsOutsideTheBounds) {
  SeededRandom random;
  random.seed(1);
  for (int i = 0; i < 20000; ++i) {
    const Integer face = Rzut(random, 4, 9);
    ASSERT_GE(face, 4);
    ASSERT_LE(face, 9);
  }
}

TEST(Rzut, EqualBoundsGiveTheirValueAndUseUpADraw) {
  ScriptedRandom random({0.0F, kHighest, 0.5F});
  EXPECT_EQ(Rzut(random, 5, 5), 5);
  EXPECT_EQ(Rzut(random, 5, 5), 5);
  EXPECT_EQ(random.left(), 1U);
}

TEST(Rzut, DrawsOneNumber) {
  ScriptedRandom random({0.5F, 0.5F});
  Rzut(random, 1, 6);
  EXPECT_EQ(random.left(), 1U);
}

TEST(Rzut, BoundsTheWrongWayRoundFallFromTheFirstToTheSecond) {
  EXPECT_EQ(rzut(0, 6, 1), 6);
  EXPECT_EQ(rzut(kHighest, 6, 1), 1);
  EXPECT_EQ(rzut(0.5F, 7, 1), 4);
}

TEST(Rzut, EachFaceTakesItsStretchOfTheNumbers) {
  const std::vector<std::pair<float, int>> stretches = {{0.09F, 1}, {0.11F, 2}, {0.29F, 2}, {0.31F, 3}, {0.49F, 3},
                                                        {0.51F, 4}, {0.69F, 4}, {0.71F, 5}, {0.89F, 5}, {0.91F, 6}};
  for (const auto& [number, face] : stretches) EXPECT_EQ(rzut(number, 1, 6), face) << number;
}

// Distribution.

// The probabilities that the game plays with: half as much for the two extremes.
std::map<int, double> unevenDie(int kmin, int kmax) {
  const double s = kmax - kmin;
  std::map<int, double> faces;
  for (int face = kmin; face <= kmax; ++face) faces[face] = face == kmin || face == kmax ? 1 / (2 * s) : 1 / s;
  return faces;
}

std::map<int, double> fairDie(int kmin, int kmax) {
  std::map<int, double> faces;
  for (int face = kmin; face <= kmax; ++face) faces[face] = 1.0 / (kmax - kmin + 1);
  return faces;
}

std::map<int, double> sumOfTwo(const std::map<int, double>& die) {
  std::map<int, double> sums;
  for (const auto& [a, pa] : die) {
    for (const auto& [b, pb] : die) sums[a + b] += pa * pb;
  }
  return sums;
}

constexpr int kRolls = 100000;

// How often each result came in that many rolls.
template <class Roll>
std::map<int, int> tally(double seed, Roll roll) {
  SeededRandom random;
  random.seed(seed);
  std::map<int, int> counts;
  for (int i = 0; i < kRolls; ++i) ++counts[roll(random).value()];
  return counts;
}

std::map<int, int> tallyDie(double seed, int kmin, int kmax) {
  return tally(seed, [=](RandomSource& random) { return Rzut(random, kmin, kmax); });
}

double chiSquare(const std::map<int, int>& counts, const std::map<int, double>& expected) {
  double sum = 0;
  for (const auto& [face, probability] : expected) {
    const double wanted = probability * kRolls;
    const auto found = counts.find(face);
    const double difference = (found == counts.end() ? 0 : found->second) - wanted;
    sum += difference * difference / wanted;
  }
  return sum;
}

// A die of faces 1 to kmax and the value that chi-square passes once in a thousand samples.
struct Sample {
  int kmax;
  double critical;
  double seed;
};

std::vector<Sample> samples() {
  std::vector<Sample> all;
  const std::vector<std::pair<int, double>> dice = {{3, 13.816}, {4, 16.266}, {6, 20.515}, {8, 24.322}, {30, 58.301}};
  for (const auto& [kmax, critical] : dice) {
    for (const double seed : {0.0, 1.25, 12345.678, 43200.5, 86399.99}) all.push_back({kmax, critical, seed});
  }
  return all;
}

class Distribution : public testing::TestWithParam<Sample> {};

TEST_P(Distribution, TheTwoExtremeFacesAreHalfAsLikelyAsTheFacesBetween) {
  const auto& [kmax, critical, seed] = GetParam();
  const auto counts = tallyDie(seed, 1, kmax);
  EXPECT_EQ(counts.begin()->first, 1);
  EXPECT_EQ(counts.rbegin()->first, kmax);
  EXPECT_LT(chiSquare(counts, unevenDie(1, kmax)), critical);
}

TEST_P(Distribution, AFairDieWouldBeToldApart) {
  const auto& [kmax, critical, seed] = GetParam();
  EXPECT_GT(chiSquare(tallyDie(seed, 1, kmax), fairDie(1, kmax)), critical * 4);
}

INSTANTIATE_TEST_SUITE_P(K3K4K6K8K30, Distribution, testing::ValuesIn(samples()));

TEST(Rzut, ADieOfSixGivesOneAndSixInTenPercentEachAndTheOthersInTwenty) {
  const auto counts = tallyDie(43200.5, 1, 6);
  for (const auto& [face, count] : counts) {
    EXPECT_NEAR(count, face == 1 || face == 6 ? kRolls / 10 : kRolls / 5, kRolls / 200) << face;
  }
}

TEST(Rzuty, TwoDiceGiveTwoAndTwelveInOnePercentEachAndNeverOneOrThirteen) {
  const auto counts = tally(43200.5, [](RandomSource& random) { return Rzuty(random, 1, 6, 2); });
  EXPECT_EQ(counts.begin()->first, 2);
  EXPECT_EQ(counts.rbegin()->first, 12);
  EXPECT_NEAR(counts.at(2), kRolls / 100, kRolls / 1000);
  EXPECT_NEAR(counts.at(12), kRolls / 100, kRolls / 1000);
  EXPECT_LT(chiSquare(counts, sumOfTwo(unevenDie(1, 6))), 29.588);
}

// Sums.

TEST(Rzuty, AddsDieAfterDieInTheOrderOfTheDraws) {
  ScriptedRandom random({rollOf(1, 6, 2), rollOf(1, 6, 6), rollOf(1, 6, 1), 0.5F});
  EXPECT_EQ(Rzuty(random, 1, 6, 3), 9);
  EXPECT_EQ(random.left(), 1U);
}

TEST(Rzuty, NoDiceOrLessGiveZeroAndDrawNothing) {
  ScriptedRandom random;
  EXPECT_EQ(Rzuty(random, 1, 6, 0), 0);
  EXPECT_EQ(Rzuty(random, 1, 6, -1), 0);
  EXPECT_EQ(Rzuty(random, 1, 6, -32768), 0);
}

TEST(Rzuty, OfAnExpressionLeavesItsAdditionToTheCaller) {
  ScriptedRandom random({rollOf(1, 6, 4), rollOf(1, 6, 5)});
  EXPECT_EQ(Rzuty(random, Kostka{1, 6, 2, 3}), 9);
  EXPECT_EQ(random.left(), 0U);
}

TEST(Rzuty, ARunningSumBeyondAnIntegerOverflows) {
  ScriptedRandom random(std::vector<float>(3, 0.0F));
  EXPECT_EQ(errorOf([&] { Rzuty(random, 20000, 30000, 3); }), 6);
  EXPECT_EQ(random.left(), 1U);  // It falls at the second die, not at the end.
}

TEST(Rzuty, ASumThatJustFitsIsGiven) {
  ScriptedRandom random({0.0F, kHighest});
  EXPECT_EQ(Rzuty(random, 16383, 16384, 2), 32767);
}

// Texts.

struct Text {
  Kostka dice;
  const char* text;
};
class OpisKosciText : public testing::TestWithParam<Text> {};

TEST_P(OpisKosciText, IsThatOfItsCase) { EXPECT_EQ(OpisKosci(GetParam().dice), GetParam().text); }

INSTANTIATE_TEST_SUITE_P(NoDiceAreNoText, OpisKosciText,
                         testing::Values(Text{{1, 6, 0, 3}, ""}, Text{{1, 6, -1, 3}, ""}, Text{{1, 6, 0, 0}, ""}));
INSTANTIATE_TEST_SUITE_P(AnAdditionStandsBehindThePlusAndABlank, OpisKosciText,
                         testing::Values(Text{{1, 6, 2, 3}, "2k6+ 3"}, Text{{1, 30, 12, 100}, "12k30+ 100"},
                                         Text{{1, -6, 2, 3}, "2k-6+ 3"}));
INSTANTIATE_TEST_SUITE_P(WithoutOneTwoBlanksStandInside, OpisKosciText,
                         testing::Values(Text{{1, 4, 1, 0}, " 1k 4"}, Text{{1, 6, 2, 0}, " 2k 6"},
                                         Text{{1, -6, 2, 0}, " 2k-6"}));
INSTANTIATE_TEST_SUITE_P(ANegativeAdditionIsNotShown, OpisKosciText,
                         testing::Values(Text{{1, 30, 2, -1}, " 2k 30"}, Text{{1, 6, 1, -32768}, " 1k 6"}));

TEST(OpisKosci, NeverShowsTheLowestFace) {
  EXPECT_EQ(OpisKosci({1, 6, 2, 3}), OpisKosci({5, 6, 2, 3}));
  EXPECT_EQ(OpisKosci({1, 6, 2, 0}), OpisKosci({5, 6, 2, 0}));
}

TEST(OpisKosci, OfNoDiceIsEmptyWithDiceBlankedOrClosedUpAndWithoutANegativeAddition) {
  EXPECT_EQ(OpisKosci({1, 6, 0, 3}), "");
  EXPECT_EQ(OpisKosci({1, 6, 2, 0}), " 2k 6");
  EXPECT_EQ(OpisKosci({1, 6, 2, 3}), "2k6+ 3");
  EXPECT_EQ(OpisKosci({1, 30, 2, -1}), " 2k 30");
}

// Seeding.

TEST(Dice, MainPrefightAndFightSeedTheGeneratorWhenTheyLoad) {
  for (const char* const name : {"Main", "Prefight", "Fight"}) {
    World world(43200.25);
    world.seeded.seed(1);
    world.writeHero("hero1.boh", plainHero());
    world.write("pref.cfg", {"hero1.boh", " 3 ", " 3 ", "monsters.cfg"});
    world.writeFightFile(plainFight());
    world.runtime.Load(name);
    SeededRandom expected;
    expected.seed(43200.25);
    if (std::string(name) == "Prefight") expected.next();  // The monster is drawn behind the seeding.
    EXPECT_EQ(world.seeded.next(), expected.next()) << name;
  }
}

}  // namespace
}  // namespace brolgan::test
