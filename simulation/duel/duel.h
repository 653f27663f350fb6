// One hero against one monster of the list, fought many times through the fight's own screen.
#pragma once

#include <cstdint>
#include <string>

#include "simulation/knowledge/knowledge.h"

namespace brolgan::simulation {

struct DuelSetup {
  std::string heroFile;  // the bytes of the hero file
  int monster = 0;       // its place in the list, counted from 0
  std::string weapon;
  int fights = 1000;
  int threads = 1;
  std::uint64_t seed = 1;
};

// A mean and how far it may be off.
struct Figure {
  double mean = 0;
  double error = 0;
};

struct DuelResult {
  int fights = 0;
  int undecided = 0;  // neither side could end it
  Figure win;
  Figure rounds;
  Figure enduranceAfterWin;
  Figure points;
  Figure dealtARound;
  Figure takenARound;
};

// Raises std::invalid_argument when the hero does not own the weapon.
DuelResult fightDuel(const DataFiles& data, const DuelSetup& setup);

std::string toJson(const DuelResult& result, const DuelSetup& setup, const std::string& monsterName);

}  // namespace brolgan::simulation
