// Arrays with fixed places.
#include "flow/text/array.h"

#include <gtest/gtest.h>

#include "tests/support/world.h"

namespace brolgan::test {
namespace {

TEST(Array, StartsWithEmptyPlaces) {
  const Array<Integer, 3> numbers;
  const Array<bool, 3> flags;
  for (int i = 0; i < 3; ++i) {
    EXPECT_EQ(numbers(i), 0);
    EXPECT_FALSE(flags(i));
  }
}

TEST(Array, KeepsEachPlaceByItself) {
  Array<Integer, 3> numbers;
  for (int i = 0; i < 3; ++i) numbers(i) = 10 + i;
  EXPECT_EQ(numbers(0), 10);
  EXPECT_EQ(numbers(1), 11);
  EXPECT_EQ(numbers(2), 12);
}

TEST(Array, TheFirstAndTheLastPlaceCanBeReached) {
  Array<Integer, 10> numbers;
  EXPECT_EQ(errorOf([&] { numbers(0) = 1; }), 0);
  EXPECT_EQ(errorOf([&] { numbers(9) = 1; }), 0);
}

TEST(Array, AnyPlaceBeyondItsBoundsIsASubscriptError) {
  Array<Integer, 10> numbers;
  const Array<Integer, 10>& fixed = numbers;
  for (const int place : {-32768, -1, 10, 11, 32767}) {
    EXPECT_EQ(errorOf([&] { numbers(place) = 1; }), 9) << place;
    EXPECT_EQ(errorOf([&] { static_cast<void>(fixed(place)); }), 9) << place;
  }
}

TEST(Array, ComparesPlaceByPlace) {
  Array<Integer, 2> a;
  Array<Integer, 2> b;
  EXPECT_TRUE(a == b);
  b(1) = 1;
  EXPECT_FALSE(a == b);
}

TEST(Array, IsWalkedInTheOrderOfItsPlaces) {
  Array<Integer, 4> numbers;
  for (int i = 0; i < 4; ++i) numbers(i) = i * i;
  std::vector<int> seen;
  for (const Integer number : numbers) seen.push_back(number.value());
  EXPECT_EQ(seen, (std::vector<int>{0, 1, 4, 9}));
}

}  // namespace
}  // namespace brolgan::test
