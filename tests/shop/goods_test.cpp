// Weapons, spells and gear in the shop: bought once and never taken back.
#include <gtest/gtest.h>

#include "tests/shop/shop.h"

namespace brolgan::test {
namespace {

using ShopGoods = Shop;

TEST_F(ShopGoods, GoForExactlyThePointsThatAreLeft) {
  for (const std::string good : {"Spec(0)", "Spec(2)", "Czarn(7)"}) {
    const int price = good == "Spec(0)" ? 7 : good == "Spec(2)" ? 9 : 3;
    world.runtime.Unload(form);
    openShop(heroWith(price));
    press(good);
    EXPECT_EQ(points(), "0") << good;
    EXPECT_TRUE(isRed(good)) << good;
  }
}

TEST_F(ShopGoods, AreRefusedWithOnePointTooFewAndKeepTheirColour) {
  for (const std::string good : {"Spec(0)", "Spec(2)", "Czarn(7)", "Kupww", "Kupss"}) {
    const int price = good == "Spec(0)" ? 7 : good == "Spec(2)" ? 9 : 3;
    world.runtime.Unload(form);
    openShop(heroWith(price - 1));
    pick("LBronww", 2);
    pick("Lbronss", 1);
    const Lines before = picture();
    press(good);
    EXPECT_EQ(picture(), before) << good;
  }
}

TEST_F(ShopGoods, CostNothingAtASecondClickOnBuyForAnOwnedWeapon) {
  openShop(heroWith(20));
  pick("LBronww", 2);
  press("Kupww", 2);
  EXPECT_EQ(points(), "17");
  pick("Lbronss", 1);
  press("Kupss", 2);

  EXPECT_EQ(points(), "14");
}

TEST_F(ShopGoods, AreNotTakenBackAtASecondClickOnASpell) {
  openShop(heroWith(20));
  press("Czarn(3)", 2);

  EXPECT_EQ(points(), "16");
  EXPECT_TRUE(isRed("Czarn(3)"));
}

TEST_F(ShopGoods, AreNotTakenBackAtASecondClickOnGear) {
  openShop(heroWith(20));
  press("Spec(0)", 2);
  press("Spec(2)", 2);

  EXPECT_EQ(points(), "4");
  EXPECT_TRUE(isRed("Spec(0)"));
  EXPECT_TRUE(isRed("Spec(2)"));
}

TEST_F(ShopGoods, AreTheFirstOfTheListWhenBuyIsPressedBeforeAnyClick) {
  Bohater hero = heroWith(5);
  hero.MaBronww(0) = false;
  hero.MaBronss(0) = false;
  openShop(hero);
  press("Kupww");
  EXPECT_EQ(points(), "4");
  EXPECT_TRUE(isRed("BWnazwa"));
  EXPECT_EQ(caption("BWnazwa"), "bron1");
  EXPECT_EQ(caption("BWcena"), "0");
  press("Kupss");
  EXPECT_EQ(points(), "2");
  EXPECT_TRUE(isRed("BSnazwa"));
  EXPECT_EQ(caption("BSnazwa"), "bron1");

  EXPECT_TRUE(left().MaBronww(0));
}

TEST_F(ShopGoods, AreNotTheFirstOfTheListBeforeAnyClickWhenThePointsDoNotAllowIt) {
  Bohater hero = heroWith(0);
  hero.MaBronww(0) = false;
  openShop(hero);
  press("Kupww");

  EXPECT_FALSE(isRed("BWnazwa"));
  EXPECT_FALSE(left().MaBronww(0));
}

TEST_F(ShopGoods, OfOneNameAreBoughtAsTheFirstOfThem) {
  world.write(kWeaponsFile, catalogueLines({{"Miecz", {1, 6, 1, 0}, 2, "False"},
                                            {"Kij", {1, 6, 1, 0}, 3, "False"},
                                            {"Kij", {1, 6, 2, 0}, 4, "False"}},
                                           {}));
  openShop(heroWith(10));
  pick("LBronww", 2);
  press("Kupww");
  EXPECT_EQ(points(), "7");
  const Bohater hero = left();

  EXPECT_TRUE(hero.MaBronww(1));
  EXPECT_FALSE(hero.MaBronww(2));
}

TEST_F(ShopGoods, ThatAreDisabledAreNotSoldWhateverThePoints) {
  openShop(heroWith(32767));
  for (const std::string good : {"Czarn(4)", "Czarn(5)", "Czarn(8)", "Spec(1)", "Spec(3)"}) {
    EXPECT_FALSE(world.click(form, good)) << good;
  }
  const Bohater hero = left();

  EXPECT_EQ(hero.Ile_jeszcze, 32767);
  for (const bool owned : hero.MaCzar) EXPECT_FALSE(owned);
  for (const bool owned : hero.MaSpec) EXPECT_FALSE(owned);
}

TEST_F(ShopGoods, OwnedFromCreationAreRedAtAClickAndNotSoldAgain) {
  Bohater hero = heroWith(20);
  hero.MaBronww(4) = true;
  hero.MaBronss(5) = true;
  openShop(hero);
  pick("LBronww", 4);
  pick("Lbronss", 5);
  EXPECT_TRUE(isRed("BWnazwa"));
  EXPECT_TRUE(isRed("BSnazwa"));
  press("Kupww");
  press("Kupss");

  EXPECT_EQ(points(), "20");
}

TEST_F(ShopGoods, OwnedAsSpellsAndGearAreNotSoldAgain) {
  Bohater hero = heroWith(20);
  hero.MaCzar(0) = true;
  hero.MaSpec(0) = true;
  openShop(hero);
  press("Czarn(0)");
  press("Spec(0)");

  EXPECT_EQ(points(), "20");
}

TEST_F(ShopGoods, CostTheSameForEveryClass) {
  for (const char* klasa : {"Wojownik", "Satrapa", "Ryzykant", "Berserker", "Złota rączka", "nikt"}) {
    Bohater hero = heroWith(20);
    hero.Klasa = klasa;
    world.runtime.Unload(form);
    openShop(hero);
    press("Czarn(0)");
    press("PLUS(0)");
    EXPECT_EQ(points(), "17") << klasa;
  }
}

}  // namespace
}  // namespace brolgan::test
