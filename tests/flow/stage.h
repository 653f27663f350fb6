// The beginning of a game: the stage as it stands when the program has started, and the steps that
// lead on from the set-up.
#pragma once

#include <string>
#include <vector>

#include "tests/support/world.h"

namespace brolgan::test {

// A game whose title and set-up stand on the screen.
inline void start(World& world) { world.runtime.Load("Starter"); }

inline std::string plus(World& world, int player) {
  return world.caption("Main", "Czygra(" + std::to_string(player) + ")");
}

// Takes a player in: opens creation for him and saves the hero as the screen offers him.
inline void createHero(World& world, int player) {
  world.click("Main", "GraczM(" + std::to_string(player) + ")");
  world.click("CTmhero", "Save");
}

inline const std::string& bytes(const World& world, const std::string& file) { return world.files.contents.at(file); }

// Generator that remembers the times of day that it was seeded with.
class SeedRecorder : public RandomSource {
 public:
  void seed(double secondsSinceMidnight) override { seeds.push_back(secondsSinceMidnight); }
  float next() override { return 0.5F; }
  std::vector<double> seeds;
};

}  // namespace brolgan::test
