// Every file that the game writes, on a disk that has no room left for it.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tests/flow/stage.h"
#include "tests/game/replay.h"

namespace brolgan::test {
namespace {

// One act that writes files, and which, in order.
struct Writing {
  const char* name;
  void (*prepare)(World& world);
  const char* form;
  const char* control;
  std::vector<std::string> files;
};

void prepareFight(World& world, int endurance, const Bohater& hero = plainHero()) {
  world.writeHero("hero1.boh", hero);
  world.write("gra.cfg", {" 2 ", "hero1.boh", "hero2.boh"});
  world.writeHero("hero2.boh", plainHero());
  FightSetup fight = plainFight();
  fight.potwor.Wytrzymalosc = endurance;
  world.writeFightFile(fight);
  world.runtime.Show("Fight");
}

void prepareSetup(World& world) { start(world); }

void prepareStart(World& world) {
  start(world);
  createHero(world, 0);
  world.roll(1, 4, {1});
}

void prepareCreation(World& world) {
  start(world);
  world.click("Main", "GraczM(0)");
}

void prepareShop(World& world) {
  world.writeHero("hero1.boh", plainHero());
  world.write("sklep.cfg", {"hero1.boh", " 1 "});
  world.runtime.Show("CTsklep");
  world.roll(1, 5, {1});
}

void preparePreparation(World& world) {
  world.writeHero("hero1.boh", plainHero());
  world.write("pref.cfg", {"hero1.boh", " 1 ", " 1 ", "monsters.cfg"});
  world.roll(1, 1, {1});
  world.runtime.Show("Prefight");
}

void prepareVictory(World& world) {
  prepareFight(world, 0);
  world.roll(1, 4, {1});
}

void prepareDeath(World& world, int lives) {
  Bohater hero = plainHero();
  hero.Wcielenia = lives;
  prepareFight(world, 20, hero);
  for (int i = 0; i < 3; ++i) {
    world.roll(1, 4, {4});
    world.click("Fight", "NastTura");
  }
  world.roll(1, 4, {1});
}

void prepareLastDeath(World& world) { prepareDeath(world, 1); }

void prepareDeathWithALifeLeft(World& world) { prepareDeath(world, 2); }

const std::vector<Writing> kWritings = {
    {"Setup", prepareSetup, "Main", "GraczM(0)", {"makehro.cfg"}},
    {"Creation", prepareCreation, "CTmhero", "Save", {"hero1.boh"}},
    {"Start", prepareStart, "Main", "Start", {"gra.cfg", "sklep.cfg"}},
    {"Shop", prepareShop, "CTsklep", "w1", {"pref.cfg", "hero1.boh"}},
    {"Preparation", preparePreparation, "Prefight", "Zakoncz", {"hero1.boh", "fight.cfg"}},
    {"Victory", prepareVictory, "Fight", "NastTura", {"hero1.boh", "gra.cfg", "sklep.cfg"}},
    {"LastDeath", prepareLastDeath, "Fight", "CloseDMG", {"hero1.boh", "gra.cfg", "sklep.cfg"}},
    {"Death", prepareDeathWithALifeLeft, "Fight", "CloseDMG", {"hero1.boh", "hero1.boh", "gra.cfg", "sklep.cfg"}},
};

class FullDisk : public testing::TestWithParam<Writing> {};

INSTANTIATE_TEST_SUITE_P(Screens, FullDisk, testing::ValuesIn(kWritings),
                         [](const auto& writing) { return writing.param.name; });

// The files before the one without room are whole, that one is emptied, those behind are as they were.
TEST_P(FullDisk, IsAnErrorOfTheDeviceThatNamesTheFileWithoutRoom) {
  const std::vector<std::string>& files = GetParam().files;
  World whole;
  GetParam().prepare(whole);
  whole.click(GetParam().form, GetParam().control);
  for (std::size_t i = 0; i < files.size(); ++i) {
    World world;
    GetParam().prepare(world);
    Contents expected = world.files.contents;
    for (std::size_t stored = 0; stored < i; ++stored) expected[files[stored]] = whole.files.contents.at(files[stored]);
    expected[files[i]] = "";
    world.files.room = static_cast<int>(i);
    EXPECT_EQ(errorTextOf([&] { world.click(GetParam().form, GetParam().control); }),
              "Błąd wykonania 57: Błąd wejścia/wyjścia urządzenia\nPlik: " + files[i]);
    EXPECT_EQ(world.files.contents, expected) << files[i];
  }
}

TEST_P(FullDisk, IsNoErrorWithRoomForAllTheFilesOfTheAct) {
  World world;
  GetParam().prepare(world);
  world.files.room = static_cast<int>(GetParam().files.size());
  EXPECT_EQ(errorTextOf([&] { world.click(GetParam().form, GetParam().control); }), "");
  EXPECT_EQ(world.files.room, 0);
}

}  // namespace
}  // namespace brolgan::test
