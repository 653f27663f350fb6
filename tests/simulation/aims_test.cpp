// The numbers of the data files keep first fights safe and games of a good length, on a small
// sample with fixed seeds; the report holds the same aims against a large one.
#include "simulation/report/aims.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <string>

#include "simulation/options.h"

namespace brolgan::simulation {
namespace {

StudySetup sample() {
  StudySetup setup;
  setup.games = 48;
  setup.smaller = 24;
  setup.newcomers = 40;
  setup.rivalries = 0;
  setup.denials = 0;
  setup.trials = 40;
  setup.threads = allCores();
  return setup;
}

const Study& study() {
  static const Study made = makeStudy(loadData(BROLGAN_ASSETS), sample());
  return made;
}

bool anyMissed(const std::vector<Aim>& aims) {
  return std::any_of(aims.begin(), aims.end(), [](const Aim& aim) { return !aim.reached; });
}

// Whether a share found in a few games is lower than chance alone would make it.
bool tooLow(double found, double wanted, std::size_t games) {
  return found < wanted - 2 * std::sqrt(wanted * (1 - wanted) / static_cast<double>(games));
}

// What is wrong with the length of these games, by more than a small sample excuses; empty when all
// is well.
std::string lengthFaults(const std::vector<GameRecord>& games) {
  const auto turns = winningTurns(games);
  if (turns.empty()) return "no game ends; ";
  const auto inside = std::count_if(turns.begin(), turns.end(), [](int turn) { return turn >= 18 && turn <= 30; });
  const double within = static_cast<double>(inside) / static_cast<double>(turns.size());
  const double ended = static_cast<double>(turns.size()) / static_cast<double>(games.size());
  const int middle = quantile(turns, 0.5);
  std::string faults;
  if (tooLow(ended, 0.95, games.size())) faults += "too few games end; ";
  if (tooLow(within, 0.75, turns.size())) faults += "too few games end in turns 18 to 30; ";
  if (middle < 21 || middle > 26) faults += "the median turn is " + std::to_string(middle) + "; ";
  if (turns.front() <= 8) faults += "a game ends in turn " + std::to_string(turns.front()) + "; ";
  return faults;
}

// Games that are all won in one turn.
std::vector<GameRecord> wonIn(int turn) {
  std::vector<GameRecord> games(48);
  for (GameRecord& game : games) {
    game.winner = 0;
    game.winnerTurn = turn;
  }
  return games;
}

// The data files with every weapon's dice made as small as dice can be.
DataFiles withFeebleWeapons() {
  DataFiles data = loadData(BROLGAN_ASSETS);
  std::string text = "10\r\n";
  for (int i = 0; i < kWeapons; ++i) {
    if (i == kMelees) text += "10\r\n";
    text += "W" + std::to_string(i) + "\r\nw.wav\r\n1\r\n1\r\n1\r\n0\r\n";
    text += i < kMelees ? "False\r\n0\r\n1\r\n" : "0\r\n0\r\n1\r\n";
  }
  data.weapons = text;
  return data;
}

TEST(Aims, FirstFightsAreAsSafeAsTheyShouldBe) {
  for (const Aim& aim : firstFightAims(study())) EXPECT_TRUE(aim.reached) << aim.text << ": " << aim.found;
}

TEST(Aims, GamesLastAsLongAsTheyShouldAndEndWithAWinner) { EXPECT_EQ(lengthFaults(study().games), ""); }

// What the numbers reach is held fast, with room for what a small sample may be off; what they miss
// is told in the report.
TEST(Aims, FightsAreNoTamerThanTheyWereMade) {
  const Measures all = measure(study().games);
  EXPECT_LT(all.oneRound.value(), 0.45);
  EXPECT_LT(all.costless.value(), 0.5);
  EXPECT_GT(all.gambles.value(), 0.03);
  EXPECT_LT(all.gamblesWon.value(), 0.88);
  EXPECT_GT(all.gamblesWon.value(), 0.68);
}

TEST(Aims, EveryoneFindsAnEndAndNobodyIsBoundToOneZone) {
  const auto ended = [](const std::vector<GameRecord>& games) { return winningTurns(games).size(); };
  const auto& newcomers = study().newcomers;
  const double share = static_cast<double>(ended(newcomers)) / static_cast<double>(newcomers.size());
  EXPECT_FALSE(tooLow(share, 0.6, newcomers.size())) << share;
  EXPECT_GE(ended(study().smaller[0]), 18U);
  EXPECT_LT(measure(study().games).busiest, 0.21);
}

TEST(Aims, RewardFollowsDangerAndNoMonsterIsHarmless) {
  const Measures all = measure(study().games);
  const Knowledge known(loadData(BROLGAN_ASSETS));
  int follows = 0;
  for (int zone = 0; zone < kPandoria; ++zone) follows += rewardFollowsDanger(known, all, zone) > 0.3 ? 1 : 0;
  EXPECT_GE(follows, 8);
  EXPECT_LE(harmlessMonsters(known, all).size(), 1U);
}

TEST(Aims, FeebleWeaponsWouldBeNoticedInFirstFights) {
  StudySetup setup = sample();
  setup.trials = 20;
  const DataFiles data = withFeebleWeapons();
  const Knowledge known(data);
  Study feeble;
  for (int i = 0; i < kClasses; ++i) feeble.firstFights[i] = tryFirstFights(data, known, i, setup);
  EXPECT_TRUE(anyMissed(firstFightAims(feeble)));
}

TEST(Aims, GamesOfAWrongLengthWouldBeNoticed) {
  EXPECT_EQ(lengthFaults(wonIn(24)), "");
  EXPECT_NE(lengthFaults(wonIn(8)), "");
  EXPECT_NE(lengthFaults(wonIn(35)), "");
  EXPECT_NE(lengthFaults(std::vector<GameRecord>(48)), "");
  Study hurried;
  hurried.games = wonIn(8);
  EXPECT_TRUE(anyMissed(lengthAims(hurried)));
}

}  // namespace
}  // namespace brolgan::simulation
