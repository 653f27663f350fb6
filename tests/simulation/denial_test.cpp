// What a good is worth is told by those who wanted it: some got it, others were denied it by chance.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

#include "simulation/report/aims.h"
#include "simulation/report/report.h"

namespace brolgan::simulation {
namespace {

constexpr int kNever = -1;

int placeOfHealing() { return Offer{Ware::spell, kHealing}.place(); }

SeatRecord seatOf(int denied, int wantedAt) {
  SeatRecord seat;
  seat.seat.denied = denied;
  seat.wantedAt.fill(kNever);
  seat.wantedAt[static_cast<std::size_t>(placeOfHealing())] = wantedAt;
  return seat;
}

GameRecord gameOf(const std::vector<SeatRecord>& seats, int winner) {
  GameRecord game;
  game.seats = seats;
  game.winner = winner;
  return game;
}

Denial denialOfHealing(const std::vector<GameRecord>& games) {
  const auto denials = denialsOf(games);
  const auto found =
      std::find_if(denials.begin(), denials.end(), [](const Denial& d) { return d.place == placeOfHealing(); });
  return found == denials.end() ? Denial{} : *found;
}

TEST(Denials, AreCountedOnlyAmongThoseWhoWantedTheGood) {
  const int healing = placeOfHealing();
  const std::vector<SeatRecord> seats = {seatOf(kNever, 3), seatOf(kNever, kNever), seatOf(healing, 0),
                                         seatOf(healing, kNever)};
  const Denial denial = denialOfHealing({gameOf(seats, 0), gameOf(seats, 2), gameOf(seats, 0), gameOf(seats, 3)});
  EXPECT_DOUBLE_EQ(denial.wanted.value(), 0.5);
  EXPECT_DOUBLE_EQ(denial.with.whole, 4);
  EXPECT_DOUBLE_EQ(denial.with.part, 2);
  EXPECT_DOUBLE_EQ(denial.without.whole, 4);
  EXPECT_DOUBLE_EQ(denial.without.part, 1);
  EXPECT_DOUBLE_EQ(denial.loss(), 25);
}

TEST(Denials, OfOtherGoodsDoNotCount) {
  const int other = Offer{Ware::spell, kBoom}.place();
  const Denial denial = denialOfHealing({gameOf({seatOf(other, 0), seatOf(kNever, 0)}, 0)});
  EXPECT_DOUBLE_EQ(denial.with.whole, 1);
  EXPECT_DOUBLE_EQ(denial.without.whole, 0);
}

TEST(Denials, OfUndecidedGamesDoNotCount) {
  const Denial denial = denialOfHealing({gameOf({seatOf(kNever, 0), seatOf(placeOfHealing(), 0)}, kNever)});
  EXPECT_DOUBLE_EQ(denial.with.whole + denial.without.whole, 0);
}

TEST(Denials, HaveTheMarginOfTwoShares) {
  Denial denial;
  denial.with = {50, 100};
  denial.without = {50, 100};
  EXPECT_NEAR(denial.margin(), 196 * std::sqrt(0.005), 1e-9);
}

// The same table twice: all may buy, or all are denied the spell that nearly everybody wants.
TEST(Denials, LeaveAHeroWithoutTheGoodThatHeWanted) {
  const DataFiles data = loadData(BROLGAN_ASSETS);
  const Knowledge known(data);
  const auto healing = static_cast<std::size_t>(placeOfHealing());
  int wanted = 0;
  for (int i = 0; i < 4; ++i) {
    GameSetup setup = randomTable(seedOf(8, i), 4, {MindKind::sensible});
    setup.mostTurns = 6;
    for (Seat& seat : setup.seats) seat.denied = placeOfHealing();
    for (const SeatRecord& seat : playGame(data, known, setup).seats) {
      EXPECT_EQ(seat.boughtAt[healing], kNever);
      EXPECT_FALSE(seat.hero.spells[kHealing]);
      wanted += seat.wantedAt[healing] >= 0 ? 1 : 0;
    }
  }
  EXPECT_GT(wanted, 8);
}

TEST(Denials, ChangeNothingUntilTheGoodIsWanted) {
  const DataFiles data = loadData(BROLGAN_ASSETS);
  const Knowledge known(data);
  const auto healing = static_cast<std::size_t>(placeOfHealing());
  GameSetup setup = randomTable(seedOf(8, 1), 4, {MindKind::sensible});
  setup.mostTurns = 6;
  const GameRecord free = playGame(data, known, setup);
  for (Seat& seat : setup.seats) seat.denied = placeOfHealing();
  const GameRecord denied = playGame(data, known, setup);
  int first = setup.mostTurns;
  for (std::size_t i = 0; i < 4; ++i) {
    if (free.seats[i].wantedAt[healing] >= 0) first = std::min(first, free.seats[i].wantedAt[healing]);
  }
  int early = 0;
  for (std::size_t i = 0; i < 4; ++i) {
    if (free.seats[i].wantedAt[healing] != first) continue;
    ++early;
    EXPECT_EQ(free.seats[i].boughtAt[healing], first);
    EXPECT_EQ(denied.seats[i].wantedAt[healing], first);
  }
  EXPECT_GT(early, 0);
}

Denial denialOf(int spell, double wonWith, double wonWithout) {
  return {Offer{Ware::spell, spell}.place(), {50, 100}, {wonWith, 1000}, {wonWithout, 1000}};
}

// A few played games, and beside them what is said of the worth of goods.
Study studyWith(const std::vector<Denial>& denials) {
  const DataFiles data = loadData(BROLGAN_ASSETS);
  static const auto games = playGames(data, Knowledge(data), 12, 1,
                                      [](int i) { return randomTable(seedOf(21, i), 4, {MindKind::sensible}); });
  Study study;
  study.games = games;
  study.denials = denials;
  return study;
}

bool isReached(const std::vector<Denial>& denials) {
  const Study study = studyWith(denials);
  const auto aims = allAims(Knowledge(loadData(BROLGAN_ASSETS)), study, tally(study.games));
  const auto found =
      std::find_if(aims.begin(), aims.end(), [](const Aim& aim) { return aim.text.starts_with("Bez czaru"); });
  EXPECT_NE(found, aims.end());
  return found != aims.end() && found->reached;
}

TEST(Denials, MeetTheAimWhenEveryGoodIsShownToBeWorthItsPrice) {
  EXPECT_TRUE(isReached({denialOf(kHealing, 300, 200), denialOf(kBoom, 280, 220)}));
  EXPECT_FALSE(isReached({denialOf(kHealing, 300, 200), denialOf(kBoom, 255, 250)}));
  EXPECT_FALSE(isReached({denialOf(kHealing, 300, 200), denialOf(kBoom, 200, 300)}));
}

std::string reportOn(const Study& study) {
  const auto folder = std::filesystem::path(testing::TempDir()) / "denials";
  std::filesystem::create_directories(folder / "balans");
  writeReport(folder.string(), loadData(BROLGAN_ASSETS), study);
  std::ifstream file(folder / "balans.md", std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

TEST(Denials, TellWhichGoodsAreBoughtToTheBuyersOwnLoss) {
  const std::string harmful = "na własną szkodę, bo wyceniają za wysoko: „BOOM !”. Kto";
  EXPECT_NE(reportOn(studyWith({denialOf(kHealing, 255, 250), denialOf(kBoom, 200, 300)})).find(harmful),
            std::string::npos);
  EXPECT_EQ(reportOn(studyWith({denialOf(kHealing, 300, 200), denialOf(kBoom, 250, 255)})).find("na własną szkodę"),
            std::string::npos);
}

}  // namespace
}  // namespace brolgan::simulation
