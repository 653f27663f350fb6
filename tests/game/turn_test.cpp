// A whole turn of two players, hand-over by hand-over, with written dice.
#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "tests/flow/stage.h"
#include "tests/game/replay.h"

namespace brolgan::test {
namespace {

struct Dice {
  int kmin;
  int kmax;
  std::vector<int> faces;
};

// What a player does on one screen until he leaves it, and the dice that fall: those of the
// screen's load and those of his acts, without the load of the next screen.
struct Stage {
  const char* name;
  const char* screen;
  std::vector<Dice> atLoad;
  std::vector<Dice> later;
  const char* acts;
};

const std::vector<Stage> kTurn = {
    {"01-zofia-setup", "Main", {}, {}, "type Main ile_punktow = 20\nclick Main gracz(0)"},
    {"02-zofia-creation",
     "CTmhero",
     {},
     {},
     "type CTmhero Imie = Zofia z Żar\n"
     "click CTmhero Klasa(1)\n"
     "click CTmhero PLUS(0)\n"
     "click CTmhero PLUS(7)\n"
     "click CTmhero PLUS(8)\n"
     "click CTmhero Czarn(0)\n"
     "click CTmhero Spec(0)\n"
     "click CTmhero Save"},
    {"03-wladek-setup", "Main", {}, {}, "type Main ile_punktow = 18\nclick Main GraczM(1)"},
    {"04-wladek-creation",
     "CTmhero",
     {},
     {},
     "type CTmhero Imie = Władek\n"
     "click CTmhero PLUS(6)\n"
     "click CTmhero PLUS(5)\n"
     "select CTmhero LBronww = Miecz\n"
     "click CTmhero Kupww\n"
     "click CTmhero Czarn(0)\n"
     "click CTmhero Save"},
    {"05-start", "Main", {}, {{1, 4, {1}}}, "click Main Start"},
    {"06-zofia-shop",
     "CTsklep",
     {},
     {},
     "click CTsklep PLUS(1)\n"
     "select CTsklep LBronww = Okuty kij\n"
     "click CTsklep Kupww\n"
     "click CTsklep Czarn(9)\n"
     "click CTsklep w2"},
    {"07-zofia-preparation",
     "Prefight",
     {{4, 9, {9}}},
     {{1, 6, {4}}},
     "select Prefight Czary = Leczenie\n"
     "click Prefight Rzuc\n"
     "select Prefight Czary = Autostart\n"
     "click Prefight Rzuc\n"
     "type Prefight historia = Notatka\n"
     "click Prefight Zakoncz"},
    {"08-zofia-fight",
     "Fight",
     {{1, 4, {1, 2, 4}}},
     {{1, 140, {56}}, {1, 6, {4}}, {1, 6, {5}}, {1, 30, {12}}, {1, 4, {3}}},
     "select Fight Bron = Łuk\n"
     "select Fight Przedmiot = Ammo\n"
     "click Fight Uzyj\n"
     "click Fight Atak\n"
     "click Fight CloseZad\n"
     "select Fight Przedmiot = Granat\n"
     "click Fight Uzyj\n"
     "click Fight NastTura"},
    {"09-wladek-shop", "CTsklep", {}, {}, "click CTsklep Czarn(1)\nclick CTsklep PLUS(8)\nclick CTsklep w1"},
    {"10-wladek-preparation", "Prefight", {{1, 5, {3}}}, {}, "click Prefight Zakoncz"},
    {"11-wladek-fight",
     "Fight",
     {},
     {{1, 6, {1}}, {1, 6, {1, 1}}, {1, 120, {100}}, {1, 4, {2}}, {1, 6, {2, 2, 6}}, {1, 4, {2}}},
     "select Fight Bron = Miecz\n"
     "click Fight Atak\n"
     "click Fight NastTura\n"
     "click Fight CloseDMG\n"
     "select Fight Czar = Damage!\n"
     "click Fight Rzuc\n"
     "click Fight NastTura"},
};

void roll(World& world, const std::vector<Dice>& dice) {
  for (const Dice& row : dice) world.roll(row.kmin, row.kmax, row.faces);
}

void act(World& world, const Stage& stage) {
  for (const Act& step : readActs(stage.acts))
    ASSERT_TRUE(perform(world, step)) << stage.name << ": " << describe(step);
}

// The dice of the acts, and those of the screen that the last act opens.
void rollFor(World& world, std::size_t stage) {
  roll(world, kTurn[stage].later);
  if (stage + 1 < kTurn.size()) roll(world, kTurn[stage + 1].atLoad);
}

StoredStates storedStates(const World& world) { return {"game/turn", world.files.contents}; }

// The stored files stand in tests/data/game/turn; BROLGAN_WRITE_EXPECTED=1 makes them anew.
TEST(Turn, OfTwoPlayersHandsOverTheStoredFilesFromScreenToScreen) {
  World world;
  useStoredLists(world);
  StoredStates stored = storedStates(world);
  if (StoredStates::isWriting()) stored.clear();
  start(world);
  for (std::size_t i = 0; i < kTurn.size(); ++i) {
    ASSERT_EQ(screenOf(world), kTurn[i].screen) << kTurn[i].name;
    rollFor(world, i);
    act(world, kTurn[i]);
    EXPECT_EQ(world.unusedRolls(), 0U) << kTurn[i].name;
    stored.compare(kTurn[i].name, world.files.contents);
  }
  EXPECT_EQ(screenOf(world), "CTsklep");
}

class TurnStage : public testing::TestWithParam<std::size_t> {};

INSTANTIATE_TEST_SUITE_P(Screens, TurnStage, testing::Values(1, 3, 5, 6, 7, 8, 9, 10), [](const auto& stage) {
  std::string name = kTurn[stage.param].name;
  std::replace(name.begin(), name.end(), '-', '_');
  return name;
});

// Nothing but the files of the stage before goes into a screen.
TEST_P(TurnStage, OpenedOnTheFilesOfTheStageBeforeAloneGivesTheSameFiles) {
  const std::size_t i = GetParam();
  World world;
  useStoredLists(world);
  const StoredStates stored = storedStates(world);
  world.files.contents = stored.after(kTurn[i - 1].name);
  roll(world, kTurn[i].atLoad);
  world.runtime.Show(kTurn[i].screen);
  rollFor(world, i);
  act(world, kTurn[i]);
  EXPECT_EQ(world.unusedRolls(), 0U);
  const Contents expected = stored.after(kTurn[i].name);
  for (const auto& [name, bytes] : expected) EXPECT_EQ(world.files.contents[name], bytes) << name;
  EXPECT_EQ(world.files.contents.size(), expected.size());
}

}  // namespace
}  // namespace brolgan::test
