// Which zone a player goes to: the one worth most of all, however few fights he thinks through to see it.
// What he would give for goods.
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
    hero.endurance = hero.fullEndurance() * 9 / 10 + 1;
    const auto worths = worthsOf(judgement, known, hero);
    const double most = *std::max_element(worths.begin(), worths.end());
    const bool tempts = worths[kPandoria] > temper.temptation * most;
    EXPECT_EQ(judgement.bestZone(hero, true) == kPandoria, tempts || worths[kPandoria] == most);
    (tempts ? gambles : refusals) += 1;
    HeroNotes last = hero;
    last.lives = 1;
    EXPECT_EQ(judgement.bestZone(last, true), judgement.bestZone(last, false));
    HeroNotes wounded = hero;
    wounded.endurance = hero.fullEndurance() * 9 / 10 - 1;
    EXPECT_EQ(judgement.bestZone(wounded, true), judgement.bestZone(wounded, false));
  }
  EXPECT_GT(gambles, 0);
  EXPECT_GT(refusals, 0);
}

// A hero who has nearly everything, so that only the last of the list are at the edge of his strength.
HeroNotes grown() {
  HeroNotes hero;
  for (int i = 0; i < kLives; ++i) hero.steps[static_cast<std::size_t>(i)] = topStep(i) - (i == kSpeed ? 1 : 0);
  hero.owned[kWeapons - 1] = true;
  hero.spells.fill(true);
  hero.points = 40;
  return hero;
}

std::vector<double> gainsOf(const Knowledge& known) {
  const Foresight reckon = reckoning(known);
  Judgement judgement(known, reckon, reckon, sensible(3), 4);
  return judgement.gains(grown(), judgement.offers(grown(), false), 40);
}

// What is known of a world where every place is taken by one and the same monster.
Knowledge worldOf(int count, int speed, int attack, int life) {
  Knowledge known(loadData(BROLGAN_ASSETS));
  for (Monster& monster : known.monsters) {
    monster.count = count;
    monster.speed = speed;
    monster.attack = {attack, attack, 1, 0, static_cast<double>(attack), 0};
    monster.life = life;
    monster.armour = 0;
  }
  return known;
}

HeroNotes casterWith(int powerStep) {
  HeroNotes hero;
  hero.klasa = kSatrap;
  hero.owned[0] = true;
  hero.steps[kPower] = powerStep;
  hero.points = 12;
  return hero;
}

double gainOf(const Knowledge& known, const HeroNotes& hero, Ware ware, int index) {
  const Foresight reckon = reckoning(known);
  Judgement judgement(known, reckon, reckon, sensible(3), 4);
  const auto wares = judgement.offers(hero, false);
  const auto gains = judgement.gains(hero, wares, 12);
  for (std::size_t i = 0; i < wares.size(); ++i) {
    if (wares[i].ware == ware && wares[i].index == index) return gains[i];
  }
  ADD_FAILURE() << "not for sale";
  return 0;
}

// Shots that only put off the end of the stronger group would look a fifth as good as those that beat the weaker one.
TEST(Gains, OfASpellOfOneMomentAreSmallInFightsThatAreLostAnyway) {
  const HeroNotes hero = casterWith(5);
  const double won = gainOf(worldOf(3, 1, 6, 8), hero, Ware::spell, kBullShots);
  EXPECT_GT(won, 0.5);
  EXPECT_LT(gainOf(worldOf(3, 1, 6, 20), hero, Ware::spell, kBullShots), won / 7);
}

TEST(Gains, OfAutostartAreLessByTheMagicThatCouldHaveHealed) {
  const Knowledge quick = worldOf(1, 8, 1, 5);
  HeroNotes hero = casterWith(5);
  EXPECT_GT(gainOf(quick, hero, Ware::spell, kAutostart), 0);
  hero.spells[kHealing] = true;
  EXPECT_EQ(gainOf(quick, hero, Ware::spell, kAutostart), 0);
}

TEST(Gains, AreWeighedAgainstTheKingWhereverHeStands) {
  const Knowledge known(loadData(BROLGAN_ASSETS));
  Knowledge other = known;
  const auto king = std::find_if(other.monsters.begin(), other.monsters.end(), [](const Monster& m) { return m.last; });
  auto& elsewhere = king == other.monsters.end() - 1 ? *(king - 1) : other.monsters.back();
  std::swap(*king, elsewhere);
  std::swap(king->number, elsewhere.number);
  EXPECT_EQ(gainsOf(known), gainsOf(other));
}

}  // namespace
}  // namespace brolgan::simulation
