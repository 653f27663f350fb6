// What dear weapons are worth to heroes before the later zones.
#include "simulation/report/worth.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace brolgan::simulation {
namespace {

constexpr int kHammer = 9;  // "Oczożłop", the dearest blade

// One game with one hero of middling strength who has just set out for the later zones.
std::vector<GameRecord> oneGrownHero() {
  SeatRecord seat;
  seat.grownTurn = 12;
  seat.grown.steps = {6, 6, 2, 3, 2, 3, 2};
  GameRecord game;
  game.seats = {seat};
  return {game};
}

double gainOf(int mean, int price) {
  Knowledge known(loadData(BROLGAN_ASSETS));
  known.weapons[kHammer].damage.mean = mean;
  known.weapons[kHammer].price = price;
  const auto worths = worthOfDearWeapons(known, oneGrownHero(), 10);
  const auto found =
      std::find_if(worths.begin(), worths.end(), [](const WeaponWorth& w) { return w.weapon == kHammer; });
  return found == worths.end() ? 0 : found->gain.value();
}

TEST(Worth, GrowsWithWhatAWeaponDealsAndIsLostWithIt) {
  EXPECT_GT(gainOf(90, 10), 0);
  EXPECT_LT(gainOf(1, 10), 0);
}

TEST(Worth, IsAskedOfDearWeaponsOnly) { EXPECT_EQ(gainOf(90, kDearPrice - 1), 0); }

TEST(Worth, CountsEachHeroThatSetOutAndNoMoreThanAsked) {
  const Knowledge known(loadData(BROLGAN_ASSETS));
  auto games = oneGrownHero();
  games.push_back(games.front());
  games.back().seats.push_back({});
  EXPECT_EQ(worthOfDearWeapons(known, games, 10).front().gain.count, 2);
  EXPECT_EQ(worthOfDearWeapons(known, games, 1).front().gain.count, 1);
}

}  // namespace
}  // namespace brolgan::simulation
