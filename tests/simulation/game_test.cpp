// Whole games by the minds: equal seeds, equal games.
#include "simulation/games/game.h"

#include <gtest/gtest.h>

#include "simulation/games/batch.h"

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

// A sensible hero who could buy something lasting for twice what a fight brings has not left it unbought.
TEST(Game, OfASensiblePlayerLeavesNoPlentyUnspent) {
  constexpr int kPlenty = 45;
  const DataFiles data = loadData(BROLGAN_ASSETS);
  const Knowledge known(data);
  for (int i = 0; i < 20; ++i) {
    const GameRecord game = playGame(data, known, randomTable(seedOf(12, i), 1, {MindKind::sensible}));
    const HeroNotes& hero = game.seats[0].hero;
    if (hero.points < kPlenty) continue;
    for (int step = 0; step < kLives; ++step) {
      EXPECT_EQ(hero.steps[static_cast<std::size_t>(step)], topStep(step)) << i << ": " << hero.points;
    }
  }
}

}  // namespace
}  // namespace brolgan::simulation
