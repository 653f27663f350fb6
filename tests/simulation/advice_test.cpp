// The advice for a first evening names what the winners of the games carried.
#include "simulation/report/advice.h"

#include <gtest/gtest.h>

#include <array>
#include <string>

namespace brolgan::simulation {
namespace {

// Four games, won with these weapons beside the knife.
Study wonWith(const std::array<int, 4>& weapons) {
  Study study;
  for (const int weapon : weapons) {
    GameRecord game;
    game.seats.resize(2);
    game.winner = 1;
    game.winnerTurn = 20;
    game.seats[1].hero.owned[0] = true;
    game.seats[1].hero.owned[static_cast<std::size_t>(weapon)] = true;
    game.seats[0].hero.owned[kMelees] = true;
    study.games.push_back(game);
  }
  return study;
}

std::string adviceOn(const Knowledge& known, const Study& study) {
  return adviceText(known, study, tally(study.games), measure(study.games));
}

TEST(Advice, NamesTheWeaponsOfTheWinnersTheCommonestFirst) {
  const Knowledge known(loadData(BROLGAN_ASSETS));
  const auto name = [&](int weapon) { return known.weapons[static_cast<std::size_t>(weapon)].name; };
  const std::string text = adviceOn(known, wonWith({19, 9, 9, 9}));
  const std::size_t often = text.find("„" + name(9) + "” (75.0%");
  const std::size_t seldom = text.find("„" + name(19) + "” (25.0%");
  ASSERT_NE(often, std::string::npos) << text;
  ASSERT_NE(seldom, std::string::npos) << text;
  EXPECT_LT(often, seldom);
  EXPECT_EQ(text.find(name(kMelees) + "” ("), std::string::npos);
}

TEST(Advice, TellsTheArmourOfTheKing) {
  Knowledge known(loadData(BROLGAN_ASSETS));
  for (Monster& monster : known.monsters) {
    if (monster.last) monster.armour = 77;
  }
  EXPECT_NE(adviceOn(known, wonWith({4, 4, 4, 4})).find("nosi pancerz 77"), std::string::npos);
}

}  // namespace
}  // namespace brolgan::simulation
