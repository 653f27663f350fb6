// One whole game of two players with a fixed seed, from the set-up to its end.
#include <gtest/gtest.h>

#include <set>
#include <string>

#include "tests/flow/stage.h"
#include "tests/game/replay.h"

namespace brolgan::test {
namespace {

std::string numbered(int step, const std::string& screen) {
  const std::string digits = std::to_string(step);
  return std::string(3 - digits.size(), '0') + digits + "-" + (screen.empty() ? "koniec" : screen);
}

// The clicks stand in tests/data/game/whole-game.txt. After every change of screen and at the end
// all files are compared with those in tests/data/game/whole-game, which BROLGAN_WRITE_EXPECTED=1
// makes anew.
TEST(WholeGame, OfTwoPlayersGivesTheStoredFilesAfterEveryChangeOfScreen) {
  World world(36000);
  useStoredLists(world);
  StoredStates stored("game/whole-game", world.files.contents);
  if (StoredStates::isWriting()) stored.clear();
  start(world);
  std::string screen = screenOf(world);
  int change = 0;
  for (const Act& act : readActs(storedBytes("game/whole-game.txt"))) {
    ASSERT_FALSE(world.runtime.ended()) << "the game ended before " << describe(act);
    world.clock.now += 0.25;
    ASSERT_TRUE(perform(world, act)) << describe(act);
    if (screenOf(world) == screen && !world.runtime.ended()) continue;
    screen = screenOf(world);
    stored.compare(numbered(++change, world.runtime.ended() ? "" : screen), world.files.contents);
    ASSERT_FALSE(HasFatalFailure()) << describe(act);
  }
  EXPECT_TRUE(world.runtime.ended());
  EXPECT_GT(change, 30);
}

TEST(WholeGame, TheSeedDecidesWhatTheDiceShow) {
  const auto firstMode = [](double timer) {
    World world(timer);
    start(world);
    createHero(world, 0);
    world.click("Main", "Start");
    return bytes(world, "sklep.cfg");
  };
  std::set<std::string> modes;
  for (int i = 0; i < 40; ++i) modes.insert(firstMode(36000 + 0.25 * i));
  EXPECT_EQ(firstMode(36000), firstMode(36000));
  EXPECT_EQ(modes.size(), 4U);
}

}  // namespace
}  // namespace brolgan::test
