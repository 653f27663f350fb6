// The source of chance.
#include "rules/random.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <stdexcept>
#include <vector>

namespace brolgan::test {
namespace {

std::vector<float> draws(double seed, int count) {
  SeededRandom random;
  random.seed(seed);
  std::vector<float> numbers;
  for (int i = 0; i < count; ++i) numbers.push_back(random.next());
  return numbers;
}

TEST(SeededRandom, NumbersLieOnTheGridOf24BitsBelowOne) {
  for (const float number : draws(43200.5, 100000)) {
    const double steps = double{number} * 0x1p24;
    ASSERT_GE(number, 0.0F);
    ASSERT_LT(number, 1.0F);
    ASSERT_EQ(steps, std::floor(steps));
  }
}

TEST(SeededRandom, TheLastOfThe24BitsIsUsed) {
  int odd = 0;
  for (const float number : draws(43200.5, 1000)) odd += std::fmod(double{number} * 0x1p24, 2) == 1 ? 1 : 0;
  EXPECT_GT(odd, 400);
  EXPECT_LT(odd, 600);
}

TEST(SeededRandom, NumbersFillTheWholeRangeEvenly) {
  std::array<int, 16> counts{};
  for (const float number : draws(43200.5, 160000)) ++counts.at(static_cast<std::size_t>(number * 16));
  for (const int count : counts) EXPECT_NEAR(count, 10000, 500);
}

TEST(SeededRandom, OneTimeOfDayGivesOneSequence) { EXPECT_EQ(draws(43200.25, 100), draws(43200.25, 100)); }

TEST(SeededRandom, TwoScreensOpenedWithinOneSecondDiffer) {
  EXPECT_NE(draws(43200.25, 100), draws(43200.26, 100));
  EXPECT_NE(draws(43200, 100), draws(43200.000001, 100));
}

TEST(SeededRandom, SeedingAgainStartsTheSequenceAfresh) {
  SeededRandom random;
  random.seed(100);
  const float first = random.next();
  random.next();
  random.seed(100);
  EXPECT_EQ(random.next(), first);
}

TEST(ScriptedRandom, GivesItsNumbersInOrderWhateverTheSeed) {
  ScriptedRandom random({0.25F, 0.5F});
  random.add(0.75F);
  EXPECT_EQ(random.left(), 3U);
  EXPECT_EQ(random.next(), 0.25F);
  random.seed(1);
  EXPECT_EQ(random.next(), 0.5F);
  EXPECT_EQ(random.left(), 1U);
  EXPECT_EQ(random.next(), 0.75F);
  EXPECT_EQ(random.left(), 0U);
}

TEST(ScriptedRandom, ADrawThatNobodyForesawFails) {
  ScriptedRandom random;
  EXPECT_THROW(random.next(), std::out_of_range);
}

}  // namespace
}  // namespace brolgan::test
