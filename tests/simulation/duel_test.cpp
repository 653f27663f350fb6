// One fight, fought often.
#include "simulation/duel/duel.h"

#include <gtest/gtest.h>

#include <stdexcept>

#include "flow/text/item_writer.h"
#include "rules/hero.h"

namespace brolgan::simulation {
namespace {

// A hero with the first steps of all ladders and this much endurance.
std::string heroWith(int endurance) {
  Bohater hero;
  hero.Imie = "Kosiarz";
  hero.Klasa = "Strzelec";
  for (Integer& step : hero.Poziomy) step = 1;
  const std::array values = {endurance, 0, 2, 6, 1};
  for (int i = 0; i < 5; ++i) hero.Wartosci(i) = values[static_cast<std::size_t>(i)];
  hero.AktWytrzymalosc = endurance;
  hero.AktMoc = 2;
  hero.MO = {1, 4, 1, 0};
  hero.Wcielenia = 1;
  hero.MaBronww(0) = true;
  hero.MaBronss(0) = true;
  hero.MaBronss(9) = true;
  hero.Tura = 1;
  MemoryFiles files;
  Player_Save({files, "h"}, hero);
  return files.contents["h"];
}

DuelResult duel(int endurance, int monster, int threads, std::uint64_t seed = 1) {
  const DataFiles data = loadData(BROLGAN_ASSETS);
  return fightDuel(data, {heroWith(endurance), monster, "Nóż", 1200, threads, seed});
}

TEST(Duel, GivesTheSameFiguresOnAnyNumberOfCores) {
  const DuelResult one = duel(12, 2, 1);
  const DuelResult three = duel(12, 2, 3);
  EXPECT_EQ(one.win.mean, three.win.mean);
  EXPECT_EQ(one.rounds.mean, three.rounds.mean);
  EXPECT_EQ(one.takenARound.error, three.takenARound.error);
}

TEST(Duel, OfAGiantWithTheFirstMonsterIsAlwaysWon) {
  const DuelResult result = duel(5000, 0, 1);
  EXPECT_EQ(result.win.mean, 1);
  EXPECT_EQ(result.win.error, 0);
  EXPECT_GT(result.points.mean, 0);
  EXPECT_GT(result.dealtARound.mean, 0);
}

TEST(Duel, OfAWeaklingWithTheLastMonsterIsAlwaysLost) {
  const DuelResult result = duel(1, kMonsters - 1, 1);
  EXPECT_EQ(result.win.mean, 0);
  EXPECT_EQ(result.points.mean, 0);
}

TEST(Duel, TakesAsMuchEnduranceAsIsMissingAfterAWin) {
  const DuelResult result = duel(5000, 2, 1);
  const double lost = 5000 - result.enduranceAfterWin.mean;
  EXPECT_NEAR(lost, result.takenARound.mean * result.rounds.mean, 1e-6);
}

// The hero is slower than the monster and fells it with his first blow: all that he loses, he loses
// before it.
TEST(Duel, CountsTheOpeningStrikeOfTheQuickerMonster) {
  DataFiles data = loadData(BROLGAN_ASSETS);
  data.monsters = "1\r\n1\r\nOsa\r\nosa.jpg\r\n30\r\n7\r\n7\r\n1\r\n0\r\n1\r\n0\r\n";
  const DuelResult result = fightDuel(data, {heroWith(50), 0, "Nóż", 50, 1, 1});
  EXPECT_EQ(result.rounds.mean, 1);
  EXPECT_EQ(result.takenARound.mean, 7);
  EXPECT_EQ(result.enduranceAfterWin.mean, 43);
}

// Each fight is one shot of the "UltiGun", which costs a hero of full endurance 1 in one case of 18.
TEST(Duel, CountsThePriceOfTheLastShotOfTheUltigun) {
  DataFiles data = loadData(BROLGAN_ASSETS);
  data.monsters = "1\r\n1\r\nOsa\r\nosa.jpg\r\n1\r\n7\r\n7\r\n1\r\n0\r\n1\r\n0\r\n";
  const DuelResult result = fightDuel(data, {heroWith(50), 0, "UltiGun", 4000, 1, 1});
  EXPECT_EQ(result.rounds.mean, 1);
  EXPECT_NEAR(50 - result.enduranceAfterWin.mean, 1.0 / 18, 0.02);
  EXPECT_NEAR(result.takenARound.mean, 50 - result.enduranceAfterWin.mean, 1e-9);
}

TEST(Duel, FindsOtherFiguresWithinItsOwnErrorsWithAnotherSeed) {
  const DuelResult one = duel(12, 4, 1, 1);
  const DuelResult other = duel(12, 4, 1, 2);
  EXPECT_NE(one.rounds.mean, other.rounds.mean);
  EXPECT_NEAR(one.rounds.mean, other.rounds.mean, 6 * one.rounds.error);
}

TEST(Duel, RefusesAWeaponThatTheHeroDoesNotOwn) {
  const DataFiles data = loadData(BROLGAN_ASSETS);
  EXPECT_THROW(fightDuel(data, {heroWith(12), 0, "Miecz", 10, 1, 1}), std::invalid_argument);
}

}  // namespace
}  // namespace brolgan::simulation
