// The search: its method, and the numbers that it turns.
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <sstream>
#include <stdexcept>
#include <string>
#include <vector>

#include "simulation/knowledge/knowledge.h"
#include "simulation/search/climb.h"
#include "simulation/search/cma_es.h"
#include "simulation/search/numbers.h"
#include "simulation/search/score.h"
#include "simulation/search/settle.h"
#include "simulation/search/shape.h"

namespace brolgan::simulation {
namespace {

double valley(const std::vector<double>& point) {
  double sum = 0;
  for (std::size_t i = 0; i < point.size(); ++i) sum += (static_cast<double>(i) + 1) * (point[i] - 3) * (point[i] - 3);
  return sum;
}

void advance(CmaEs& search) {
  const auto points = search.ask();
  std::vector<double> values;
  for (const auto& point : points) values.push_back(valley(point));
  search.tell(points, values);
}

TEST(Search, FindsTheLowestPointOfAValley) {
  CmaEs search(std::vector<double>(6, 0), 1, 5);
  for (int i = 0; i < 120; ++i) advance(search);
  for (const double value : search.mean()) EXPECT_NEAR(value, 3, 0.01);
}

TEST(Search, GoesOnFromItsStateAsIfItHadNeverStopped) {
  CmaEs search(std::vector<double>(4, 0), 1, 5);
  for (int i = 0; i < 3; ++i) advance(search);
  std::stringstream state;
  search.save(state);
  CmaEs other(state);
  for (int i = 0; i < 3; ++i) {
    advance(search);
    advance(other);
  }
  EXPECT_EQ(search.mean(), other.mean());
  EXPECT_EQ(search.generation(), other.generation());
}

TEST(Search, OfABrokenStateIsRefused) {
  std::istringstream state("4 1 5");
  EXPECT_THROW(CmaEs search(state), std::runtime_error);
}

DataFiles turnedBy(const char* dial, double value) {
  Shape shape{};
  shape[static_cast<std::size_t>(dialNamed(dial))] = value;
  return shaped(loadData(BROLGAN_ASSETS), shape);
}

TEST(Search, KeepsNamesAndWeaponsWhenItTurnsTheMonsters) {
  const DataFiles before = loadData(BROLGAN_ASSETS);
  const DataFiles after = turnedBy("life_23", 0.5);
  EXPECT_EQ(before.weapons, after.weapons);
  const Knowledge one(before);
  const Knowledge other(after);
  ASSERT_EQ(one.monsters.size(), other.monsters.size());
  for (std::size_t i = 0; i < one.monsters.size(); ++i) EXPECT_EQ(one.monsters[i].name, other.monsters[i].name);
  EXPECT_GT(other.monsters[22].life, one.monsters[22].life);
  EXPECT_EQ(other.monsters[0].life, one.monsters[0].life);
}

TEST(Search, ThrowsOnlyDiceWithAnOddNumberOfFaces) {
  const Knowledge known(turnedBy("dice_27", 5));
  for (const Monster& monster : known.monsters) {
    EXPECT_EQ(monster.attack.high % 2, 1) << monster.name;
    EXPECT_GE(monster.attack.plus, 0) << monster.name;
  }
}

TEST(Search, LeavesTheDiceWhenOnlyTheAttackIsTurned) {
  const Knowledge before(loadData(BROLGAN_ASSETS));
  const Knowledge after(turnedBy("attack_23", 2));
  EXPECT_EQ(after.monsters[22].attack.high, before.monsters[22].attack.high);
  EXPECT_EQ(after.monsters[22].attack.plus, before.monsters[22].attack.plus + 2);
}

TEST(Search, TurnsOneWeaponAndItsPrice) {
  const Knowledge before(loadData(BROLGAN_ASSETS));
  const Knowledge stronger(turnedBy("damage_20", 3));
  const Knowledge dearer(turnedBy("price_20", 2));
  EXPECT_EQ(stronger.weapons[19].damage.mean, before.weapons[19].damage.mean + 3);
  EXPECT_EQ(dearer.weapons[19].price, before.weapons[19].price + 2);
  for (std::size_t i = 0; i < 19; ++i) {
    EXPECT_EQ(stronger.weapons[i].damage.mean, before.weapons[i].damage.mean);
    EXPECT_EQ(dearer.weapons[i].price, before.weapons[i].price);
  }
}

// What became of fights: each monster takes as much endurance, but one.
Measures harmOf(double all, std::size_t odd, double harm) {
  Measures measures;
  for (std::size_t i = 0; i < measures.monsters.size(); ++i) {
    for (int fight = 0; fight < 20; ++fight) measures.monsters[i].lost.add(i == odd ? harm : all);
  }
  return measures;
}

TEST(Settler, ChangesNothingBeforeItHasHeardOfAFight) {
  const DataFiles data = loadData(BROLGAN_ASSETS);
  EXPECT_EQ(Settler(data).data().monsters, data.monsters);
  EXPECT_EQ(Settler(data).data().weapons, data.weapons);
}

TEST(Settler, HardensWhoPaysMoreAndHarmsLess) {
  constexpr std::size_t kTrolls = 24;
  const DataFiles data = loadData(BROLGAN_ASSETS);
  Settler settler(data);
  for (int i = 0; i < 30; ++i) settler.hear(harmOf(5, kTrolls, 0.5));
  const Knowledge before(data);
  const Knowledge after(settler.data());
  ASSERT_GT(before.monsters[kTrolls].points[kWarrior], before.monsters[kTrolls + 1].points[kWarrior] + 0.5);
  EXPECT_GT(after.monsters[kTrolls].attack.plus, before.monsters[kTrolls].attack.plus);
  EXPECT_LE(after.monsters[kTrolls + 1].attack.plus, before.monsters[kTrolls + 1].attack.plus);
  EXPECT_LT(after.monsters[kTrolls + 1].life, before.monsters[kTrolls + 1].life);
}

TEST(Settler, LeavesTheFirstThreeAndTheCourtAlone) {
  const DataFiles data = loadData(BROLGAN_ASSETS);
  Settler settler(data);
  for (int i = 0; i < 30; ++i) settler.hear(harmOf(5, 0, 0.5));
  const Knowledge before(data);
  const Knowledge after(settler.data());
  for (const std::size_t i : {0, 1, 2, 41, 42, 43, 44}) {
    EXPECT_EQ(after.monsters[i].attack.plus, before.monsters[i].attack.plus);
    EXPECT_EQ(after.monsters[i].life, before.monsters[i].life);
    EXPECT_EQ(after.monsters[i].speed, before.monsters[i].speed);
  }
}

// How much endurance all monsters have together.
double lifeOf(const DataFiles& data) {
  const Knowledge known(data);
  double sum = 0;
  for (const Monster& monster : known.monsters) sum += monster.life;
  return sum;
}

TEST(Climber, TakesOnlyWhatIsNearerToItsAim) {
  int judged = 0;
  Climber climber(loadData(BROLGAN_ASSETS), 3, [&judged](const DataFiles& data, std::uint64_t) {
    ++judged;
    return lifeOf(data) / 10;
  });
  int taken = 0;
  for (int i = 0; i < 40; ++i) {
    const double before = climber.score();
    if (climber.step()) {
      ++taken;
      EXPECT_LT(climber.score(), before);
      EXPECT_DOUBLE_EQ(climber.score(), lifeOf(climber.data()) / 10);
    } else {
      EXPECT_DOUBLE_EQ(climber.score(), before);
    }
  }
  EXPECT_GT(taken, 3);
  EXPECT_LT(taken, 37);
  EXPECT_LT(lifeOf(climber.data()), lifeOf(loadData(BROLGAN_ASSETS)));
}

TEST(Climber, JudgesAChangeByTheGamesOfWhatStands) {
  std::vector<std::uint64_t> seeds;
  Climber climber(loadData(BROLGAN_ASSETS), 3, [&seeds](const DataFiles&, std::uint64_t seed) {
    seeds.push_back(seed);
    return 1.0;
  });
  const std::vector<std::uint64_t> first = seeds;
  EXPECT_FALSE(climber.step());
  for (std::size_t i = first.size(); i < seeds.size(); ++i) EXPECT_EQ(seeds[i], first[i - first.size()]);
  for (int i = 0; i < 60; ++i) climber.step();
  EXPECT_NE(seeds.back(), first.front());
}

// The lines of one monster.
std::vector<std::string> linesFrom(const DataFiles& data, std::size_t first) {
  const auto lines = linesOf(data.monsters);
  const auto start = lines.begin() + static_cast<std::ptrdiff_t>(first);
  return {start, start + kLinesAMonster};
}

TEST(Climber, MovesNothingOfTheFirstEveningNorNamesNorDice) {
  const DataFiles data = loadData(BROLGAN_ASSETS);
  const Knowledge before(data);
  std::uint64_t state = 5;
  DataFiles moved = data;
  for (int i = 0; i < 300; ++i) moved = nudged(moved, state);
  const Knowledge after(moved);
  for (std::size_t i = 0; i < before.monsters.size(); ++i) {
    const Monster& one = after.monsters[i];
    EXPECT_EQ(one.name, before.monsters[i].name);
    EXPECT_EQ(one.count, before.monsters[i].count);
    EXPECT_EQ(one.attack.high % 2, before.monsters[i].attack.high % 2) << one.name;
    EXPECT_GE(one.life, 1);
    EXPECT_GE(one.attack.plus, 0);
  }
  for (std::size_t i = 0; i < kWeapons; ++i) EXPECT_EQ(after.weapons[i].name, before.weapons[i].name);
  for (std::size_t i = 0; i < 5; ++i) {
    const auto numbers = [i](const DataFiles& files) { return linesFrom(files, firstLineOf(static_cast<int>(i))); };
    EXPECT_EQ(numbers(moved), numbers(data)) << i;
  }
  for (const int start : {0, kMelees}) {
    EXPECT_EQ(after.weapons[start].damage.mean, before.weapons[start].damage.mean);
    EXPECT_EQ(after.weapons[start].price, before.weapons[start].price);
  }
}

double foundOf(const Score& score, const std::string& name) {
  for (const Term& term : score.terms) {
    if (term.name == name) return term.found;
  }
  throw std::out_of_range(name);
}

TEST(Score, HearsOfEveryAimThatGamesCanMiss) {
  const DataFiles data = loadData(BROLGAN_ASSETS);
  const Score score = scoreOf(data, playSample(data, 24, 2, 4));
  EXPECT_GT(foundOf(score, "newcomers_median"), 0);
  EXPECT_GT(foundOf(score, "newcomers_ended"), 0);
  EXPECT_LT(foundOf(score, "zones_chosen"), 100);
  EXPECT_LT(foundOf(score, "dear_weapons"), 100);
  EXPECT_GT(score.sum(), 0);
}

// Games of ten seats, one for each class, of which each class wins as many as it is told.
Sample gamesWonBy(const std::array<int, kClasses>& wins) {
  Sample sample;
  for (int klasa = 0; klasa < kClasses; ++klasa) {
    for (int i = 0; i < wins[static_cast<std::size_t>(klasa)]; ++i) {
      GameRecord game;
      for (int seat = 0; seat < kClasses; ++seat) game.seats.push_back({.seat = {.klasa = seat}});
      game.winner = klasa;
      game.winnerTurn = 20;
      sample.games.push_back(game);
    }
  }
  return sample;
}

double missOfClasses(const std::array<int, kClasses>& wins) {
  const Score score = scoreOf(loadData(BROLGAN_ASSETS), gamesWonBy(wins));
  const auto found =
      std::find_if(score.terms.begin(), score.terms.end(), [](const Term& t) { return t.name == "classes"; });
  return found->miss;
}

TEST(Score, SparesTheTwoClassesFarthestFromTheirRange) {
  EXPECT_NEAR(missOfClasses({10, 10, 10, 10, 10, 10, 10, 10, 10, 10}), 0, 1e-9);
  const double two = missOfClasses({25, 1, 9, 9, 9, 9, 9, 9, 10, 10});
  const double three = missOfClasses({25, 1, 1, 12, 11, 10, 10, 10, 10, 10});
  EXPECT_NEAR(two, 0.2 * (10 + 5) / 30, 1e-9);
  EXPECT_NEAR(three, (5 + 0.2 * (10 + 5)) / 30, 1e-9);
}

TEST(Search, KnowsItsDialsByName) { EXPECT_THROW(dialNamed("luck"), std::out_of_range); }

}  // namespace
}  // namespace brolgan::simulation
