// Whole games by the minds: equal seeds, equal games.
#include "simulation/games/game.h"

#include <gtest/gtest.h>

#include "flow/starter.h"
#include "simulation/games/batch.h"
#include "simulation/minds/judgement.h"
#include "simulation/minds/newcomer_mind.h"
#include "simulation/search/shape.h"

namespace brolgan::simulation {
namespace {

bool same(const TurnRecord& a, const TurnRecord& b) {
  return a.player == b.player && a.turn == b.turn && a.zone == b.zone && a.monster == b.monster &&
         a.rounds == b.rounds && a.enduranceAfter == b.enduranceAfter && a.won == b.won;
}

void expectSame(const std::vector<GameRecord>& a, const std::vector<GameRecord>& b) {
  ASSERT_EQ(a.size(), b.size());
  for (std::size_t i = 0; i < a.size(); ++i) {
    EXPECT_EQ(a[i].winner, b[i].winner);
    ASSERT_EQ(a[i].turns.size(), b[i].turns.size());
    for (std::size_t t = 0; t < a[i].turns.size(); ++t) EXPECT_TRUE(same(a[i].turns[t], b[i].turns[t]));
  }
}

std::vector<GameRecord> games(int threads, std::uint64_t run) {
  const DataFiles data = loadData(BROLGAN_ASSETS);
  const Knowledge known(data);
  return playGames(data, known, 6, threads, [run](int i) {
    return randomTable(seedOf(run, i), 3, {MindKind::sensible, MindKind::newcomer});
  });
}

TEST(Game, IsTheSameOnAnyNumberOfCores) { expectSame(games(1, 7), games(3, 7)); }

TEST(Game, DiffersWithAnotherSeed) {
  const auto one = games(1, 7);
  const auto other = games(1, 8);
  EXPECT_NE(one[0].turns.size(), other[0].turns.size());
}

TEST(Game, TakesTurnsInOrderAndCountsEachPlayersOwn) {
  for (const GameRecord& game : games(1, 9)) {
    std::array<int, 4> turns{};
    for (const TurnRecord& turn : game.turns) {
      EXPECT_EQ(turn.turn, ++turns[static_cast<std::size_t>(turn.player)]);
    }
  }
}

TEST(Game, OfASinglePlayerEndsWithHisLastLifeOrTheLastMonster) {
  const DataFiles data = loadData(BROLGAN_ASSETS);
  const Knowledge known(data);
  for (int i = 0; i < 5; ++i) {
    GameSetup setup = randomTable(seedOf(11, i), 1, {MindKind::newcomer});
    setup.mostTurns = 400;
    const GameRecord game = playGame(data, known, setup);
    EXPECT_TRUE(game.winner == 0 || game.seats[0].out);
  }
}

// A newcomer who stands in his first shop and hears how fights went that he never fought.
class Newcomer : public testing::Test {
 protected:
  void SetUp() override {
    stage.runtime.Show(Starter::kName);
    SetUpScreen(stage.runtime).create(0);
    CreationScreen creation(stage.runtime);
    creation.setName("Gracz1");
    mind.create(creation);
    creation.save();
    SetUpScreen(stage.runtime).start();
  }

  int zoneAfter(bool won) {
    mind.hearOutcome(won);
    return zone();
  }

  int zone() {
    ShopScreen shop(stage.runtime);
    return mind.shop(shop);
  }

  DataFiles data = loadData(BROLGAN_ASSETS);
  Knowledge known{data};
  Stage stage{data, 1};
  NewcomerMind mind{known, kWarrior, 1};
};

TEST_F(Newcomer, GoesOneZoneOnAfterAnEasyFightAndOneBackAfterALostOne) {
  EXPECT_EQ(zone(), 0);
  EXPECT_EQ(zoneAfter(true), 1);
  EXPECT_EQ(zoneAfter(true), 2);
  EXPECT_EQ(zoneAfter(false), 1);
}

TEST_F(Newcomer, NeedsTwoEasyFightsInARowOnceHeHasLostALife) {
  for (const int zone : {1, 2, 3}) EXPECT_EQ(zoneAfter(true), zone);
  EXPECT_EQ(zoneAfter(false), 2);
  EXPECT_EQ(zoneAfter(true), 2);
  EXPECT_EQ(zoneAfter(true), 3);
  EXPECT_EQ(zoneAfter(true), 3);
  EXPECT_EQ(zoneAfter(true), 4);
}

TEST_F(Newcomer, NeedsTwoEasyFightsInARowBeforeTheThrone) {
  for (int zone = 1; zone <= 9; ++zone) EXPECT_EQ(zoneAfter(true), zone);
  EXPECT_EQ(zoneAfter(true), 9);
  EXPECT_EQ(zoneAfter(true), kThroneZone);
}

TEST(Temper, OfTheGamblerIsBolderThanThatOfAnySensiblePlayer) {
  for (int rivals = 0; rivals <= 3; ++rivals) {
    EXPECT_GT(kDaredevil.courage, sensible(rivals).courage) << rivals;
    EXPECT_LT(kDaredevil.care, sensible(rivals).care) << rivals;
    EXPECT_LT(kDaredevil.temptation, sensible(rivals).temptation) << rivals;
    EXPECT_LT(kDaredevil.mood, sensible(rivals).mood) << rivals;
  }
}

// The data files with a king whom nobody beats, so that all wait and gather points.
DataFiles withAnImmortalKing() {
  Shape shape{};
  shape[static_cast<std::size_t>(dialNamed("king_life"))] = 3;
  return shaped(loadData(BROLGAN_ASSETS), shape);
}

// What one step costs, what is kept for a dear weapon, and what three fights may bring until the stall of the
// steps is open: who has more than that has no step left to buy.
TEST(Game, OfASensiblePlayerLeavesNoPlentyUnspent) {
  constexpr int kPlenty = 45;
  const DataFiles data = withAnImmortalKing();
  const Knowledge known(data);
  int rich = 0;
  for (int i = 0; i < 12; ++i) {
    const GameRecord game = playGame(data, known, randomTable(seedOf(12, i), 1, {MindKind::sensible}));
    const HeroNotes& hero = game.seats[0].hero;
    bool areAllTop = true;
    for (std::size_t step = 0; step < kLives; ++step) {
      areAllTop = areAllTop && hero.steps[step] == topStep(static_cast<int>(step));
    }
    EXPECT_TRUE(hero.points < kPlenty || areAllTop) << i << ": " << hero.points;
    rich += areAllTop ? 1 : 0;
  }
  EXPECT_GT(rich, 0);
}

}  // namespace
}  // namespace brolgan::simulation
