// Which zone a player goes to: the one worth most of all, however few fights he thinks through to see it.
#include "simulation/minds/judgement.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>

#include "simulation/forecasts/rehearsal.h"
#include "simulation/games/batch.h"

namespace brolgan::simulation {
namespace {

// Heroes of all ages, from a few games.
std::vector<HeroNotes> heroes(const DataFiles& data, const Knowledge& known) {
  std::vector<HeroNotes> all;
  for (int i = 0; i < 10; ++i) {
    GameSetup setup = randomTable(seedOf(31, i), 4, {MindKind::sensible});
    setup.mostTurns = 1 + 3 * i;
    for (const SeatRecord& seat : playGame(data, known, setup).seats) all.push_back(seat.hero);
  }
  return all;
}

std::array<double, kZoneCount> worthsOf(const Judgement& judgement, const Knowledge& known, const HeroNotes& hero) {
  std::array<double, kZoneCount> zones{};
  for (int zone = 0; zone < kZoneCount; ++zone) {
    for (int i = 0; i < kMonsters; ++i) {
      const double chance = drawChance(kZones[static_cast<std::size_t>(zone)], i);
      if (chance == 0) continue;
      const Monster& monster = known.monsters[static_cast<std::size_t>(i)];
      zones[static_cast<std::size_t>(zone)] += chance * judgement.plan(hero, monster, hero.value(kSpeed)).worth;
    }
  }
  return zones;
}

class Zones : public testing::Test {
 protected:
  DataFiles data = loadData(BROLGAN_ASSETS);
  Knowledge known{data};
  Foresight reckon = reckoning(known);
  Temper temper = sensible(3);
  Judgement judgement{known, reckon, reckon, temper, 4};
};

TEST_F(Zones, AreChosenByTheirWorth) {
  std::array<int, kZoneCount> chosen{};
  for (const HeroNotes& hero : heroes(data, known)) {
    const auto worths = worthsOf(judgement, known, hero);
    const int zone = judgement.bestZone(hero, false);
    EXPECT_NEAR(worths[static_cast<std::size_t>(zone)], *std::max_element(worths.begin(), worths.end()), 1e-9);
    ++chosen[static_cast<std::size_t>(zone)];
  }
  EXPECT_GT(std::count_if(chosen.begin(), chosen.end(), [](int times) { return times > 0; }), 3);
}

TEST_F(Zones, AreLeftForPandoriaByTheDaringWhenItTempts) {
  int gambles = 0;
  int refusals = 0;
  for (HeroNotes hero : heroes(data, known)) {
    hero.lives = 3;
    const auto worths = worthsOf(judgement, known, hero);
    const double most = *std::max_element(worths.begin(), worths.end());
    const bool tempts = worths[kPandoria] > temper.temptation * most;
    EXPECT_EQ(judgement.bestZone(hero, true) == kPandoria, tempts || worths[kPandoria] == most);
    (tempts ? gambles : refusals) += 1;
    hero.lives = 1;
    EXPECT_EQ(judgement.bestZone(hero, true), judgement.bestZone(hero, false));
  }
  EXPECT_GT(gambles, 0);
  EXPECT_GT(refusals, 0);
}

}  // namespace
}  // namespace brolgan::simulation
