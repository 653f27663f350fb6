// The numbers of the data files as a few groups that a search can turn: by bands of the monster
// list the endurance, the attack, its dice, the armour, the speed; the sizes of groups and what they can; the
// king's court; the damage of each weapon for sale, and the prices of the dearest.
#pragma once

#include <array>
#include <string>
#include <vector>

#include "simulation/stage/stage.h"

namespace brolgan::simulation {

// One group of numbers. Its value 0 leaves the numbers as they are; a step is a change that can be felt.
struct Dial {
  const char* name;
  double step;
  double least;
  double most;
};

inline constexpr int kDials = 46;
extern const std::array<Dial, kDials> kDialTable;

using Shape = std::array<double, kDials>;

// The data files with every dial turned as told. Names, pictures, sounds, the order of the weapons
// and the count of monsters stay, the first three monsters too.
DataFiles shaped(const DataFiles& data, const Shape& shape);

// Raises std::out_of_range when there is no such dial.
int dialNamed(const std::string& name);

}  // namespace brolgan::simulation
