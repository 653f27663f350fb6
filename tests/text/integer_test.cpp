// The whole number of 16 bits.
#include "flow/text/integer.h"

#include <gtest/gtest.h>

#include "tests/support/world.h"

namespace brolgan::test {
namespace {

TEST(Integer, IsZeroAtFirst) { EXPECT_EQ(Integer().value(), 0); }

TEST(Integer, HoldsItsWholeRange) {
  EXPECT_EQ(Integer(32767).value(), 32767);
  EXPECT_EQ(Integer(-32768).value(), -32768);
}

TEST(Integer, OneBeyondTheRangeOverflows) {
  EXPECT_EQ(errorOf([] { static_cast<void>(Integer(32768)); }), 6);
  EXPECT_EQ(errorOf([] { static_cast<void>(Integer(-32769)); }), 6);
}

TEST(Integer, SumsUpToTheEdgesAndOverflowsBehindThem) {
  EXPECT_EQ(Integer(32766) + 1, 32767);
  EXPECT_EQ(errorOf([] { static_cast<void>(Integer(32767) + 1); }), 6);
  EXPECT_EQ(Integer(-32767) + -1, -32768);
  EXPECT_EQ(errorOf([] { static_cast<void>(Integer(-32768) + -1); }), 6);
}

TEST(Integer, SubtractsUpToTheEdgesAndOverflowsBehindThem) {
  EXPECT_EQ(Integer(-32767) - 1, -32768);
  EXPECT_EQ(errorOf([] { static_cast<void>(Integer(-32768) - 1); }), 6);
  EXPECT_EQ(Integer(0) - 32767, -32767);
  EXPECT_EQ(errorOf([] { static_cast<void>(Integer(0) - -32768); }), 6);
}

TEST(Integer, MultipliesUpToTheEdgesAndOverflowsBehindThem) {
  EXPECT_EQ(Integer(181) * 181, 32761);
  EXPECT_EQ(errorOf([] { static_cast<void>(Integer(182) * 182); }), 6);
  EXPECT_EQ(Integer(-256) * 128, -32768);
  EXPECT_EQ(errorOf([] { static_cast<void>(Integer(256) * 128); }), 6);
}

// A sum that only passes through a number too large fails all the same.
TEST(Integer, PartialSumsOverflowThoughTheWholeSumWouldFit) {
  EXPECT_EQ(errorOf([] { static_cast<void>(Integer(32767) + 1 - 1); }), 6);
}

TEST(Integer, AFailedStepLeavesTheNumberAsItWas) {
  Integer number = 32767;
  EXPECT_EQ(errorOf([&] { number += 1; }), 6);
  EXPECT_EQ(number, 32767);
  number = -32768;
  EXPECT_EQ(errorOf([&] { number -= 1; }), 6);
  EXPECT_EQ(number, -32768);
}

TEST(Integer, StepsUpAndDown) {
  Integer number = 5;
  number += 7;
  EXPECT_EQ(number, 12);
  number -= 15;
  EXPECT_EQ(number, -3);
}

TEST(Integer, IsOrderedByValue) {
  EXPECT_LT(Integer(-32768), Integer(32767));
  EXPECT_GT(Integer(1), 0);
  EXPECT_LE(Integer(3), 3);
  EXPECT_NE(Integer(1), Integer(2));
}

}  // namespace
}  // namespace brolgan::test
