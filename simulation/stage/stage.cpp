#include "simulation/stage/stage.h"

#include <fstream>
#include <iterator>
#include <memory>
#include <stdexcept>

#include "game/game.h"
#include "game/names/names.h"
#include "rules/handover.h"
#include "rules/weapons.h"

namespace brolgan::simulation {

namespace {

std::string bytesOf(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  if (!file) throw std::runtime_error("no file " + path);
  return {std::istreambuf_iterator<char>(file), {}};
}

// Stands where the shop would open after a fight that is fought for its own sake.
class EmptyShop : public Form {
 protected:
  void listControls(ControlTable&) override {}
};

}  // namespace

DataFiles loadData(const std::string& folder) {
  return {bytesOf(folder + "/" + kWeaponsFile), bytesOf(folder + "/" + kMonstersFile)};
}

// The generator known as splitmix64.
std::uint64_t nextNumber(std::uint64_t& state) {
  state += 0x9E3779B97F4A7C15U;
  std::uint64_t z = state;
  z = (z ^ (z >> 30U)) * 0xBF58476D1CE4E5B9U;
  z = (z ^ (z >> 27U)) * 0x94D049BB133111EBU;
  return z ^ (z >> 31U);
}

double SeededClock::timer() {
  constexpr double kSecondsADay = 86400;
  return static_cast<double>(nextNumber(state_) >> 11U) * 0x1p-53 * kSecondsADay;
}

Stage::Stage(const DataFiles& data, std::uint64_t seed, Cast cast)
    : clock(seed), runtime({files, clock, pictures, sounds}) {
  files.contents[kWeaponsFile] = data.weapons;
  files.contents[kMonstersFile] = data.monsters;
  offerScreens(runtime, random);
  if (cast == Cast::fightAlone) {
    runtime.offer(screens::kShop, [](Runtime&) { return std::make_unique<EmptyShop>(); });
  }
}

}  // namespace brolgan::simulation
