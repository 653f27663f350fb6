// Two kinds of foresight: reckoning with averages, and rehearsing the fight with dice in the head.
#pragma once

#include "simulation/judgement.h"

namespace brolgan::simulation {

// Averages and spreads.
Foresight reckoning(const Knowledge& known);

// Plays the fight out several times with dice of its own and reports what happened on average.
Foresight rehearsing(const Knowledge& known, std::uint64_t seed);

}  // namespace brolgan::simulation
