// PLUS and MINUS: the statistics and the two supplies.
#include <gtest/gtest.h>

#include "tests/creation/creation.h"
#include "tests/departments/looks.h"

namespace brolgan::test {
namespace {

class CreationPoints : public Creation {
 protected:
  // The mark of every ladder, in their order.
  Lines marks() {
    Lines all;
    for (const std::string& ladder : ladderNames()) {
      const Lines red = redSteps(ladder);
      EXPECT_EQ(red.size(), 1U) << ladder;
      all.push_back(red.at(0));
    }
    return all;
  }
};

const Lines kFirstSteps = {"12", "0", "2", "6", "1", "+k4", "1"};

TEST_F(CreationPoints, CostOneForAStepOfTheFirstSixLadders) {
  openCreation("6");
  for (int i = 0; i < 6; ++i) press(numbered("PLUS", i));

  EXPECT_EQ(marks(), Lines({"15", "1", "4", "9", "3", "+k6", "1"}));
  EXPECT_EQ(points(), "0");
}

TEST_F(CreationPoints, CostTwoForALife) {
  openCreation("5");
  press("PLUS(6)");

  EXPECT_EQ(marks().back(), "2");
  EXPECT_EQ(points(), "3");
}

TEST_F(CreationPoints, BuyNothingWithABudgetOfNoneButGiveBackAll) {
  openCreation("10");
  for (int i = 0; i < 9; ++i) press(numbered("PLUS", i));
  ASSERT_EQ(points(), "0");
  const Lines before = picture();
  for (int i = 0; i < 9; ++i) press(numbered("PLUS", i));
  EXPECT_EQ(picture(), before);
  for (int i = 0; i < 9; ++i) press(numbered("MINUS", i));

  EXPECT_EQ(points(), "10");
  EXPECT_EQ(marks(), kFirstSteps);
}

TEST_F(CreationPoints, ComeBackFromEachRowWhenExactlyNoneAreLeft) {
  const std::vector<std::string> prices = {"1", "1", "1", "1", "1", "1", "2", "1", "1"};
  for (int i = 0; i < 9; ++i) {
    const std::string& price = prices[static_cast<std::size_t>(i)];
    world.runtime.Unload(form);
    openCreation(price);
    const Lines before = picture();
    press(numbered("PLUS", i));
    ASSERT_EQ(points(), "0") << i;
    press(numbered("MINUS", i));
    EXPECT_EQ(points(), price) << i;
    EXPECT_EQ(picture(), before) << i;
  }
}

TEST_F(CreationPoints, OfOneBuyNoLife) {
  openCreation("1");
  const Lines before = picture();
  press("PLUS(6)");

  EXPECT_EQ(picture(), before);
}

TEST_F(CreationPoints, OfTwoBuyALifeAndAreSpent) {
  openCreation("2");
  press("PLUS(6)");

  EXPECT_EQ(redSteps("stat7"), Lines({"2"}));
  EXPECT_EQ(points(), "0");
}

TEST_F(CreationPoints, OfOneBuyAStepOrASupply) {
  for (const int i : {0, 1, 2, 3, 4, 5, 7, 8}) {
    world.runtime.Unload(form);
    openCreation("1");
    press(numbered("PLUS", i));
    EXPECT_EQ(points(), "0") << i;
  }
}

TEST_F(CreationPoints, BuyNoStepAboveTheTwelfthOfEndurance) {
  openCreation("20");
  press("PLUS(0)", 11);
  EXPECT_EQ(redSteps("stat1"), Lines({"50"}));
  EXPECT_EQ(points(), "9");
  press("PLUS(0)");

  EXPECT_EQ(redSteps("stat1"), Lines({"50"}));
  EXPECT_EQ(points(), "9");
}

TEST_F(CreationPoints, BuyNoSeventhStepOfLives) {
  openCreation("20");
  Lines steps;
  for (int i = 0; i < 6; ++i) {
    press("PLUS(6)");
    steps.push_back(redSteps("stat7").at(0));
  }

  EXPECT_EQ(steps, Lines({"2", "3", "5", "8", "12", "12"}));
  EXPECT_EQ(points(), "10");
}

TEST_F(CreationPoints, AreGivenBackByNoLadderAtItsFirstStep) {
  openCreation("5");
  const Lines before = picture();
  for (int i = 0; i < 9; ++i) press(numbered("MINUS", i));

  EXPECT_EQ(picture(), before);
}

TEST_F(CreationPoints, BuyAmmunitionInTensAndGetItBackInTens) {
  openCreation("5");
  press("PLUS(8)", 3);
  EXPECT_EQ(caption("wyp(1)"), "30");
  EXPECT_EQ(points(), "2");
  press("MINUS(8)");

  EXPECT_EQ(caption("wyp(1)"), "20");
  EXPECT_EQ(points(), "3");
}

TEST_F(CreationPoints, AreGivenBackForGrenadesDownToNone) {
  openCreation("2");
  press("PLUS(7)", 2);
  press("MINUS(7)", 3);

  EXPECT_EQ(caption("wyp(0)"), "0");
  EXPECT_EQ(points(), "2");
}

TEST_F(CreationPoints, LeaveOneRedMarkOnTheLadderThatWentUpTwiceAndDownOnce) {
  openCreation("5");
  press("PLUS(1)", 2);
  press("MINUS(1)");

  EXPECT_EQ(redSteps("stat2"), Lines({"1"}));
  EXPECT_EQ(world.colour(form, "stat2(0)"), Colour::buttonText);
  EXPECT_EQ(world.colour(form, "stat2(2)"), Colour::buttonText);
}

TEST_F(CreationPoints, AreFiftyThreeForTheTopOfEveryLadderAndAllComeBack) {
  openCreation("53");
  for (int i = 0; i < 7; ++i) press(numbered("PLUS", i), 11);
  EXPECT_EQ(marks(), Lines({"50", "10", "20", "34", "10", "+2k6+3", "12"}));
  EXPECT_EQ(points(), "0");
  for (int i = 0; i < 7; ++i) press(numbered("MINUS", i), 11);

  EXPECT_EQ(marks(), kFirstSteps);
  EXPECT_EQ(points(), "53");
}

TEST_F(CreationPoints, ComeBackWithMinusWhileTheyAreOwed) {
  openCreation("3");
  choose(5);
  for (const int i : {0, 6, 6, 7, 8}) press(numbered("PLUS", i));
  choose(0);
  ASSERT_EQ(points(), "-4");
  press("MINUS(0)");
  EXPECT_EQ(points(), "-3");
  press("MINUS(6)");
  EXPECT_EQ(points(), "-1");
  press("MINUS(8)");

  EXPECT_EQ(points(), "0");
}

TEST_F(CreationPoints, BuySuppliesWithoutAnEnd) {
  openCreation("500");
  press("PLUS(8)", 400);
  press("PLUS(7)", 100);

  EXPECT_EQ(caption("wyp(1)"), "4000");
  EXPECT_EQ(caption("wyp(0)"), "100");
  EXPECT_EQ(points(), "0");
}

}  // namespace
}  // namespace brolgan::test
