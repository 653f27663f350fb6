// Whether a dear weapon is worth waiting for: how much oftener a hero who stands before the later zones
// wins there with it than with the best cheaper one.
#pragma once

#include <vector>

#include "simulation/report/measures.h"

namespace brolgan::simulation {

// A weapon of that price or more is dear.
inline constexpr int kDearPrice = 7;

struct WeaponWorth {
  int weapon = 0;
  Mean gain;  // in the chance to win a fight of the later zones, over the heroes
};

// The worth of each dear weapon to the heroes of these games, as they were when they first chose one
// of the later zones; at most so many heroes are looked at. All blades are taken as practised alike.
std::vector<WeaponWorth> worthOfDearWeapons(const Knowledge& known, const std::vector<GameRecord>& games,
                                            int mostHeroes);

}  // namespace brolgan::simulation
