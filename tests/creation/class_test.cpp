// The choice of class and the four points of "Satrapa".
#include <gtest/gtest.h>

#include "tests/creation/creation.h"

namespace brolgan::test {
namespace {

using CreationClass = Creation;

TEST_F(CreationClass, BringsFourPointsWithSatrapaAndTakesThemBackWithAnother) {
  openCreation("12");

  choose(5);
  EXPECT_EQ(points(), "16");
  choose(0);
  EXPECT_EQ(points(), "12");
  choose(5);
  choose(5);
  EXPECT_EQ(points(), "16");
}

TEST_F(CreationClass, TakesTheFourPointsBackWithEachOfTheNineOthers) {
  openCreation("12");
  for (const int other : {0, 1, 2, 3, 4, 6, 7, 8, 9}) {
    choose(5);
    EXPECT_EQ(points(), "16") << other;
    choose(other);
    EXPECT_EQ(points(), "12") << other;
  }
}

TEST_F(CreationClass, ChangesNothingBetweenTwoOthers) {
  openCreation("12");
  const Lines before = picture();
  for (const int other : {1, 9, 0, 7, 7}) choose(other);

  EXPECT_EQ(picture(), before);
}

TEST_F(CreationClass, IsExclusive) {
  openCreation("12");
  choose(3);
  choose(8);

  for (int i = 0; i < 10; ++i) {
    EXPECT_EQ(world.get<OptionButton>(form, numbered("Klasa", i)).Value, i == 8) << i;
  }
}

TEST_F(CreationClass, ShowsMinusFourWhenTheSpentPointsOfSatrapaAreTakenBack) {
  openCreation("12");
  choose(5);
  press("PLUS(7)", 16);
  EXPECT_EQ(points(), "0");
  choose(1);

  EXPECT_EQ(points(), "-4");
  EXPECT_TRUE(world.get<OptionButton>(form, "Klasa(1)").Value);
}

TEST_F(CreationClass, MakesEveryPlusDeadWhilePointsAreOwed) {
  openCreation("0");
  owePoints();
  ASSERT_EQ(points(), "-4");
  const Lines before = picture();
  for (int i = 0; i < 9; ++i) press(numbered("PLUS", i));
  press("Czarn(0)");
  press("Spec(0)");

  EXPECT_EQ(picture(), before);
}

TEST_F(CreationClass, PaysTheDebtWhenSatrapaIsPickedAgain) {
  openCreation("0");
  owePoints();
  choose(5);

  EXPECT_EQ(points(), "0");
}

TEST_F(CreationClass, LetsTheDebtBePaidWithMinus) {
  openCreation("0");
  owePoints();
  press("MINUS(7)", 4);

  EXPECT_EQ(points(), "0");
  EXPECT_EQ(caption("wyp(0)"), "0");
}

TEST_F(CreationClass, AddsTheFourPointsToANegativeBudgetToo) {
  openCreation("-10");
  choose(5);

  EXPECT_EQ(points(), "-6");
}

TEST_F(CreationClass, ChangesNoPrice) {
  openCreation("12");
  for (int klasa = 0; klasa < 10; ++klasa) {
    choose(klasa);
    const int before = std::stoi(points());
    press("PLUS(0)");
    press("Czarn(3)");
    press("Spec(2)");
    EXPECT_EQ(std::stoi(points()), before - 6) << klasa;
    press("MINUS(0)");
    press("Czarn(3)");
    press("Spec(2)");
    EXPECT_EQ(std::stoi(points()), before) << klasa;
  }
}

}  // namespace
}  // namespace brolgan::test
