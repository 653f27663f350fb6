// The counted items and their places in the hero.
#include "rules/consumables.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "tests/support/world.h"

namespace brolgan::test {
namespace {

// What the preparation offers a hero with one of a single counter.
std::vector<std::string> offered(int counter, const char* list) {
  World world;
  Bohater hero = plainHero();
  hero.Przedmioty(counter) = 1;
  world.writeHero("hero1.boh", hero);
  world.write("pref.cfg", {"hero1.boh", " 1 ", " 1 ", "monsters.cfg"});
  world.roll(1, 1, {1});
  world.runtime.Show("Prefight");
  return world.rows("Prefight", list);
}

TEST(Consumables, EachCounterOffersItsItem) {
  const std::vector<std::pair<int, std::string>> items = {
      {0, "Zatruta Ryba"},    {3, "Rabarbar de'Cur"},    {4, "Tabaka"},
      {5, "Krzepiący Baton"}, {6, "Lampa Sea Archiego"}, {7, "Nieśmiertelność"}};
  for (const auto& [counter, name] : items) {
    EXPECT_EQ(offered(counter, "Przedmioty"), (std::vector<std::string>{name})) << counter;
  }
}

TEST(Consumables, TheOtherCountersOfferNoItem) {
  for (const int counter : {1, 2, 8, 9, 10, 11, 12, 13, 14, 15, 16}) {
    EXPECT_TRUE(offered(counter, "Przedmioty").empty()) << counter;
  }
}

TEST(Consumables, TheThirdCounterOffersASpell) {
  EXPECT_EQ(offered(kStrongHealingCounter, "Czary"), (std::vector<std::string>{"Czar Leczniczy"}));
  EXPECT_TRUE(offered(kFishCounter, "Czary").empty());
}

TEST(Consumables, TheSecondCounterIsAHeadStartOfTenThousandUsedUpAtOnce) {
  World world;
  Bohater hero = plainHero();
  hero.Przedmioty(kHeadStartCounter) = 5;
  world.writeHero("hero1.boh", hero);
  world.write("pref.cfg", {"hero1.boh", " 1 ", " 1 ", "monsters.cfg"});
  world.roll(1, 1, {1});
  world.runtime.Show("Prefight");
  EXPECT_EQ(world.caption("Prefight", "Inic"), "10006");
  world.click("Prefight", "Zakoncz");
  EXPECT_EQ(world.hero("hero1.boh").Przedmioty(kHeadStartCounter), 0);
}

}  // namespace
}  // namespace brolgan::test
