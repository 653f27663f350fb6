// PLUS in the shop: dearer steps, no way back, supplies as at creation.
#include <gtest/gtest.h>

#include "tests/shop/shop.h"

namespace brolgan::test {
namespace {

using ShopPoints = Shop;

TEST_F(ShopPoints, OfNoneBuyNothing) {
  openShop(heroWith(0));
  const Lines before = picture();
  for (const int i : {0, 1, 2, 3, 4, 5, 7, 8}) press(numbered("PLUS", i));

  EXPECT_EQ(picture(), before);
}

TEST_F(ShopPoints, OfOneBuyNoStep) {
  openShop(heroWith(1));
  const Lines before = picture();
  for (int i = 0; i < 6; ++i) press(numbered("PLUS", i));

  EXPECT_EQ(picture(), before);
}

TEST_F(ShopPoints, OfOneBuyAGrenadeOrAmmunitionAndAreSpent) {
  openShop(heroWith(1));
  press("PLUS(7)");
  EXPECT_EQ(caption("wyp(0)"), "1");
  EXPECT_EQ(points(), "0");
  world.runtime.Unload(form);
  openShop(heroWith(1));
  press("PLUS(8)");

  EXPECT_EQ(caption("wyp(1)"), "10");
  EXPECT_EQ(points(), "0");
}

TEST_F(ShopPoints, OfTwoBuyTheTwelfthStepOfEndurance) {
  Bohater hero = heroWith(2);
  hero.Poziomy(0) = 11;
  openShop(hero);
  press("PLUS(0)");

  EXPECT_EQ(redSteps("stat1"), Lines({"50"}));
  EXPECT_EQ(points(), "0");
}

TEST_F(ShopPoints, AreKeptAtTheTopOfRegeneration) {
  for (const int budget : {1, 2, 100}) {
    world.runtime.Unload(form);
    Bohater hero = heroWith(budget);
    hero.Poziomy(4) = 5;
    openShop(hero);
    press("PLUS(4)", 3);
    EXPECT_EQ(points(), std::to_string(budget));
    EXPECT_EQ(redSteps("stat5"), Lines({"10"}));
  }
}

TEST_F(ShopPoints, OfThreeBuyThirtyRoundsOfAmmunition) {
  openShop(heroWith(3));
  press("PLUS(8)", 3);

  EXPECT_EQ(caption("wyp(1)"), "30");
  EXPECT_EQ(points(), "0");
}

TEST_F(ShopPoints, AddToTheSuppliesThatTheHeroHas) {
  Bohater hero = heroWith(2);
  hero.Wyp(0) = 5;
  hero.Wyp(1) = 7;
  openShop(hero);
  press("PLUS(7)");
  press("PLUS(8)");

  EXPECT_EQ(caption("wyp(0)"), "6");
  EXPECT_EQ(caption("wyp(1)"), "17");
}

TEST_F(ShopPoints, AreTwoForAStepOfEachLadder) {
  openShop(heroWith(13));
  for (int i = 0; i < 6; ++i) {
    press(numbered("PLUS", i));
    EXPECT_EQ(points(), std::to_string(11 - 2 * i));
  }
  press("PLUS(0)");

  EXPECT_EQ(points(), "1");
}

TEST_F(ShopPoints, KeepOneRedMarkOnEachLadderAfterAnyClicks) {
  openShop(heroWith(60));
  const int clicks[] = {0, 0, 5, 3, 1, 0, 4, 4, 4, 4, 4, 5, 5, 5, 5, 2, 7, 8, 3, 0, 1, 1, 2, 0};
  for (const int i : clicks) {
    press(numbered("PLUS", i));
    for (const std::string& ladder : ladderNames()) EXPECT_EQ(redSteps(ladder).size(), 1U) << ladder;
  }

  EXPECT_EQ(redSteps("stat1"), Lines({"27"}));
  EXPECT_EQ(redSteps("stat5"), Lines({"10"}));
  EXPECT_EQ(redSteps("stat6"), Lines({"+2k6+3"}));
}

TEST_F(ShopPoints, MoveTheMarkOffTheStepJustLeft) {
  openShop(heroWith(2));
  press("PLUS(3)");

  EXPECT_EQ(world.colour(form, "stat4(0)"), Colour::buttonText);
  EXPECT_EQ(world.colour(form, "stat4(1)"), Colour::red);
  EXPECT_EQ(world.colour(form, "stat4(2)"), Colour::buttonText);
}

TEST_F(ShopPoints, RaiseNoCurrentValue) {
  openShop(heroWith(8));
  press("PLUS(0)", 2);
  press("PLUS(2)", 2);

  EXPECT_EQ(caption("akt(0)"), "12");
  EXPECT_EQ(caption("akt(1)"), "2");
  EXPECT_EQ(caption("akt(2)"), "1");
}

TEST_F(ShopPoints, LetSuppliesPassBeyondAnIntegerOnTheScreen) {
  Bohater hero = heroWith(2);
  hero.Wyp(0) = 32767;
  hero.Wyp(1) = 32767;
  openShop(hero);
  press("PLUS(7)");
  press("PLUS(8)");

  EXPECT_EQ(caption("wyp(0)"), "32768");
  EXPECT_EQ(caption("wyp(1)"), "32777");
}

}  // namespace
}  // namespace brolgan::test
