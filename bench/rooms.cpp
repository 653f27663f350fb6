// How fast the rooms without a window work: whole games of the robot, and the single steps that a
// turn is made of. All files are in memory.
#include <benchmark/benchmark.h>

#include <string>

#include "rules/weapons.h"
#include "tests/robot/robot.h"

namespace {

using namespace brolgan;
using test::World;

constexpr const char* kHeroFile = "hero1.boh";

// What stands on the disk when a screen opens.
void layFiles(World& world) {
  world.writeHero(kHeroFile, test::plainHero());
  world.writeFightFile(test::plainFight());
  world.write("makehro.cfg", {kHeroFile, "12"});
  world.write("gra.cfg", {"1", kHeroFile});
  world.write("sklep.cfg", {kHeroFile, "1"});
  world.write("pref.cfg", {kHeroFile, "1", "5", "monsters.cfg"});
}

// Games from the start of the program to their ends. A turn is a visit to the shop, a preparation
// and a fight; set-up, creation and the robot's own thinking count as well.
void robotTurns(benchmark::State& state) {
  std::uint64_t seed = 1;
  std::int64_t turns = 0;
  std::int64_t clicks = 0;
  for ([[maybe_unused]] auto _ : state) {
    World world(static_cast<double>(seed));
    const robot::Report report = robot::Robot(world, seed++).play();
    turns += report.turns;
    clicks += report.clicks;
  }
  state.counters["turns_per_second"] = benchmark::Counter(static_cast<double>(turns), benchmark::Counter::kIsRate);
  state.counters["clicks_per_second"] = benchmark::Counter(static_cast<double>(clicks), benchmark::Counter::kIsRate);
}
BENCHMARK(robotTurns)->Unit(benchmark::kMicrosecond)->Iterations(2000);

void readHero(benchmark::State& state) {
  World world(1.0);
  layFiles(world);
  for ([[maybe_unused]] auto _ : state) benchmark::DoNotOptimize(world.hero(kHeroFile));
}
BENCHMARK(readHero)->Unit(benchmark::kMicrosecond);

void writeHero(benchmark::State& state) {
  World world(1.0);
  const Bohater hero = test::plainHero();
  for ([[maybe_unused]] auto _ : state) world.writeHero(kHeroFile, hero);
}
BENCHMARK(writeHero)->Unit(benchmark::kMicrosecond);

void loadScreen(benchmark::State& state, const char* form) {
  World world(1.0);
  layFiles(world);
  for ([[maybe_unused]] auto _ : state) world.runtime.Reopen(form);
}
BENCHMARK_CAPTURE(loadScreen, Main, "Main")->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(loadScreen, CTmhero, "CTmhero")->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(loadScreen, CTsklep, "CTsklep")->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(loadScreen, Prefight, "Prefight")->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(loadScreen, Fight, "Fight")->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(loadScreen, FHero, "FHero")->Unit(benchmark::kMicrosecond);

// One blow and the monsters' answer, in a fight that neither side wins.
void fightRound(benchmark::State& state) {
  World world(1.0);
  layFiles(world);
  Bohater hero = test::plainHero();
  hero.AktWytrzymalosc = 30000;
  hero.OstatniaBron = kWeaponNames[0];
  FightSetup fight = test::plainFight();
  fight.potwor.Wytrzymalosc = 30000;
  world.writeHero(kHeroFile, hero);
  world.writeFightFile(fight);
  world.runtime.Show("Fight");
  for ([[maybe_unused]] auto _ : state) {
    world.click("Fight", "Atak");
    world.click("Fight", "NastTura");
  }
}
BENCHMARK(fightRound)->Unit(benchmark::kMicrosecond)->Iterations(1000);

}  // namespace

BENCHMARK_MAIN();
