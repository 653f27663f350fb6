// Weapons, spells and gear on the creation screen, bought and handed back.
#include <gtest/gtest.h>

#include "tests/creation/creation.h"
#include "tests/departments/looks.h"

namespace brolgan::test {
namespace {

using CreationGoods = Creation;

TEST_F(CreationGoods, GiveAMeleeWeaponForItsPriceOnceAndTakeItBackForTheSame) {
  openCreation("12");
  pick("LBronww", 2);
  press("Kupww");
  EXPECT_EQ(points(), "9");
  EXPECT_TRUE(isRed("BWnazwa"));
  press("Kupww");
  EXPECT_EQ(points(), "9");
  press("Sprzedajww");

  EXPECT_EQ(points(), "12");
  EXPECT_EQ(world.colour(form, "BWnazwa"), Colour::buttonText);
}

TEST_F(CreationGoods, TakeNoMeleeWeaponBackThatIsNotOwned) {
  openCreation("12");
  pick("LBronww", 2);
  const Lines before = picture();
  press("Sprzedajww");

  EXPECT_EQ(picture(), before);
}

TEST_F(CreationGoods, TakeTheStartingMeleeWeaponBackBeforeAnyClick) {
  openCreation("12");
  press("Sprzedajww");

  EXPECT_EQ(points(), "13");
  EXPECT_EQ(caption("BWnazwa"), "bron1");
  press("Sprzedajww");
  EXPECT_EQ(points(), "13");
  pick("LBronww", 0);
  EXPECT_FALSE(isRed("BWnazwa"));
}

TEST_F(CreationGoods, TakeTheStartingRangedWeaponBackBeforeAnyClickOnce) {
  openCreation("12");
  press("Sprzedajss");

  EXPECT_EQ(points(), "14");
  EXPECT_EQ(caption("BSnazwa"), "bron1");
  press("Sprzedajss");
  EXPECT_EQ(points(), "14");
  pick("Lbronss", 0);
  EXPECT_FALSE(isRed("BSnazwa"));
}

TEST_F(CreationGoods, GiveTheSoldStartingWeaponAgainBeforeAnyClick) {
  openCreation("12");
  press("Sprzedajww");
  press("Kupww");

  EXPECT_EQ(points(), "12");
  EXPECT_TRUE(isRed("BWnazwa"));
  EXPECT_EQ(caption("BWnazwa"), "bron1");
}

TEST_F(CreationGoods, PayForARangedWeaponThatIsNotOwnedAndChangeNothingElse) {
  openCreation("12");
  pick("Lbronss", 3);
  Lines expected = picture();
  for (std::string& line : expected) {
    if (line == "Ile_jeszcze 0 12") line = "Ile_jeszcze 0 19";
  }
  press("Sprzedajss");

  EXPECT_EQ(points(), "19");
  EXPECT_EQ(picture(), expected);
}

TEST_F(CreationGoods, PayForOneRangedWeaponAgainAndAgain) {
  openCreation("0");
  pick("Lbronss", 8);
  press("Sprzedajss", 100);

  EXPECT_EQ(points(), "1400");
}

TEST_F(CreationGoods, ClearTheRangedFlagOfTheWeaponThatIsPaidFor) {
  openCreation("12");
  pick("Lbronss", 3);
  press("Kupss");
  press("Sprzedajss");
  EXPECT_EQ(points(), "12");
  EXPECT_EQ(world.colour(form, "BSnazwa"), Colour::buttonText);
  press("Kupss");

  EXPECT_EQ(points(), "5");
}

TEST_F(CreationGoods, TakeNoOwnedRangedWeaponBackWhileTheMeleeChoiceIsOfAnUnownedPlace) {
  openCreation("12");
  pick("Lbronss", 3);
  press("Kupss");
  pick("LBronww", 5);
  ASSERT_EQ(points(), "5");
  const Lines before = picture();
  press("Sprzedajss");

  EXPECT_EQ(picture(), before);
  EXPECT_TRUE(isRed("BSnazwa"));
}

TEST_F(CreationGoods, TakeARangedWeaponBackWhenTheMeleeChoiceIsOfItsOwnPlaceOnce) {
  openCreation("12");
  pick("Lbronss", 3);
  press("Kupss");
  pick("LBronww", 3);
  press("Sprzedajss", 3);

  EXPECT_EQ(points(), "12");
}

TEST_F(CreationGoods, PayForUnownedWeaponsWhileAnyOwnedPlaceIsTheMeleeChoice) {
  openCreation("12");
  pick("Lbronss", 6);
  press("Kupss");
  pick("LBronww", 6);
  pick("Lbronss", 9);
  press("Sprzedajss", 2);

  EXPECT_EQ(points(), "28");
}

TEST_F(CreationGoods, AskForTheRangedFlagsAndNotTheMeleeOnes) {
  openCreation("12");
  pick("LBronww", 1);
  press("Kupww");
  pick("Lbronss", 0);
  const Lines before = picture();
  press("Sprzedajss");

  EXPECT_EQ(picture(), before);
}

TEST_F(CreationGoods, StopTheEndlessSaleWithTheStartingRangedWeapon) {
  openCreation("12");
  press("Sprzedajss");
  pick("Lbronss", 8);
  press("Sprzedajss");

  EXPECT_EQ(points(), "14");
}

TEST_F(CreationGoods, AreNoLongerRedInTheDetailsOnlyForTheKindSold) {
  openCreation("12");
  pick("LBronww", 0);
  pick("Lbronss", 0);
  press("Sprzedajww");

  EXPECT_FALSE(isRed("BWnazwa"));
  EXPECT_TRUE(isRed("BSnazwa"));
}

TEST_F(CreationGoods, ToggleASpellForAllThePointsThatAreLeft) {
  openCreation("4");
  press("Czarn(3)");
  EXPECT_EQ(points(), "0");
  EXPECT_TRUE(isRed("Czarn(3)"));
  press("Czarn(3)");

  EXPECT_EQ(points(), "4");
  EXPECT_EQ(world.colour(form, "Czarn(3)"), Colour::buttonText);
}

TEST_F(CreationGoods, GiveEverySpellBackForItsFullPrice) {
  openCreation("15");
  for (const int spell : {0, 1, 2, 3, 6, 7, 9}) press(numbered("Czarn", spell));
  EXPECT_EQ(points(), "0");
  for (const int spell : {0, 1, 2, 3, 6, 7, 9}) press(numbered("Czarn", spell));

  EXPECT_EQ(points(), "15");
}

TEST_F(CreationGoods, ChargeOnePointForTheSucker) {
  openCreation("1");
  press("Spec(2)");

  EXPECT_EQ(points(), "0");
  EXPECT_TRUE(isRed("Spec(2)"));
}

TEST_F(CreationGoods, ToggleGearForItsFullPrice) {
  openCreation("2");
  press("Spec(0)");
  press("Spec(2)");
  EXPECT_EQ(points(), "0");
  press("Spec(0)");
  EXPECT_EQ(points(), "1");
  EXPECT_EQ(world.colour(form, "Spec(0)"), Colour::buttonText);
  EXPECT_TRUE(isRed("Spec(2)"));
  press("Spec(2)");

  EXPECT_EQ(points(), "2");
}

TEST_F(CreationGoods, RefuseGearWithoutPoints) {
  openCreation("0");
  const Lines before = picture();
  press("Spec(0)");
  press("Spec(2)");

  EXPECT_EQ(picture(), before);
}

TEST_F(CreationGoods, RefuseEvenAFreeWeaponWhilePointsAreOwed) {
  world.write(kWeaponsFile, catalogueLines({{"Nóż", {1, 4, 1, 0}, 1, "False"}, {"Dar", {1, 4, 1, 0}, 0, "False"}}, {}));
  openCreation("0");
  owePoints();
  pick("LBronww", 1);
  const Lines before = picture();
  press("Kupww");

  EXPECT_EQ(picture(), before);
}

TEST_F(CreationGoods, AreTakenBackWhilePointsAreOwed) {
  openCreation("1");
  press("Czarn(0)");
  owePoints();
  ASSERT_EQ(points(), "-4");
  press("Sprzedajww");
  EXPECT_EQ(points(), "-3");
  press("Czarn(0)");

  EXPECT_EQ(points(), "-2");
  EXPECT_FALSE(isRed("Czarn(0)"));
}

TEST_F(CreationGoods, OfOneNameAreTheFirstOfThemToBuyAndToSell) {
  const Weapons twins = {{"Nóż", {1, 4, 1, 0}, 1, "0"}, {"Bliźniak", {1, 6, 1, 0}, 3, "0"}, {"Bliźniak", {}, 5, "0"}};
  world.write(kWeaponsFile, catalogueLines(twins, twins));
  openCreation("12");
  pick("LBronww", 2);
  EXPECT_EQ(caption("BWcena"), "3");
  press("Kupww");
  EXPECT_EQ(points(), "9");
  pick("Lbronss", 2);
  EXPECT_EQ(caption("BScena"), "3");
  press("Kupss");
  EXPECT_EQ(points(), "6");
  press("Sprzedajww");
  EXPECT_EQ(points(), "9");
  press("Sprzedajss");
  EXPECT_EQ(points(), "12");
  press("Sprzedajww");
  press("Sprzedajss");
  EXPECT_EQ(points(), "12");

  const Lines file = saved();
  EXPECT_EQ(file.at(22), "False");
  EXPECT_EQ(file.at(25), "False");
  EXPECT_EQ(file.at(52), "False");
  EXPECT_EQ(file.at(55), "False");
}

TEST_F(CreationGoods, LeaveTheLastChoiceInPlaceForTheTwoButtons) {
  openCreation("12");
  pick("LBronww", 6);
  pick("LBronww", 1);
  press("Kupww");

  EXPECT_EQ(points(), "10");
}

TEST_F(CreationGoods, CanRaiseTheBudgetBeyondAnIntegerAndSpendItStill) {
  openCreation("32760");
  pick("Lbronss", 3);
  press("Sprzedajss", 2);
  EXPECT_EQ(points(), "32774");
  press("PLUS(0)");

  EXPECT_EQ(points(), "32773");
}

}  // namespace
}  // namespace brolgan::test
