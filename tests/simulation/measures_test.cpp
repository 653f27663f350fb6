// The figures that the aims are held against.
#include "simulation/report/measures.h"

#include <gtest/gtest.h>

namespace brolgan::simulation {
namespace {

TurnRecord turn(int zone, int monster, int rounds, int before, int after, bool won) {
  TurnRecord record;
  record.zone = zone;
  record.monster = monster;
  record.turn = 1;
  record.rounds = rounds;
  record.enduranceBefore = before;
  record.enduranceAfter = after;
  record.won = won;
  return record;
}

TEST(Measures, ShareHasTheIntervalOfWilson) {
  const Share share{10, 100};
  EXPECT_NEAR(share.low(), 0.0552, 0.0005);
  EXPECT_NEAR(share.high(), 0.1744, 0.0005);
  EXPECT_EQ(Share().low(), 0);
  EXPECT_EQ(Share().high(), 1);
}

TEST(Measures, RankCorrelationSharesTheRanksOfEquals) {
  EXPECT_NEAR(rankCorrelation({1, 2, 3}, {10, 20, 70}), 1, 1e-9);
  EXPECT_NEAR(rankCorrelation({1, 2, 3}, {70, 20, 10}), -1, 1e-9);
  EXPECT_NEAR(rankCorrelation({1, 1, 2}, {1, 2, 3}), 0.866, 0.001);
  EXPECT_EQ(rankCorrelation({1, 1, 1}, {1, 2, 3}), 0);
}

TEST(Measures, CountsWhatFightsCostAndHowLongTheyLast) {
  GameRecord game;
  game.turns = {turn(0, 0, 1, 12, 12, true), turn(0, 0, 3, 12, 5, true), turn(2, 9, 2, 8, -3, false),
                turn(kPandoria, 9, 1, 8, 8, true)};
  const Measures all = measure({game});
  EXPECT_EQ(all.oneRound.value(), 0.5);
  EXPECT_EQ(all.costless.value(), 0.5);
  EXPECT_EQ(all.zones[0].lost.value(), 3.5);
  EXPECT_EQ(all.zones[2].deaths.value(), 1);
  EXPECT_EQ(all.zones[2].lost.value(), 8);
  EXPECT_EQ(all.gambles.value(), 0.25);
  EXPECT_EQ(all.gamblesWon.value(), 1);
  EXPECT_EQ(all.ended.value(), 0);
}

TEST(Measures, NamesTheMonstersThatCannotHurtAUsualArmour) {
  const Knowledge known(loadData(BROLGAN_ASSETS));
  GameRecord game;
  game.turns = {turn(2, 9, 1, 12, 12, true)};
  game.turns[0].armour = 1000;
  EXPECT_EQ(harmlessMonsters(known, measure({game})).size(), 6U);
  game.turns[0].armour = 0;
  EXPECT_TRUE(harmlessMonsters(known, measure({game})).empty());
}

}  // namespace
}  // namespace brolgan::simulation
