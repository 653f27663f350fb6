// Two kinds of foresight: reckoning with averages, and rehearsing the fight with dice in the head.
#pragma once

#include "simulation/forecasts/outlook.h"

namespace brolgan::simulation {

// Averages and spreads.
Foresight reckoning(const Knowledge& known);

// Plays the fight out several times with dice of its own and reports what happened on average; what
// the reckoning calls a walk or a suicide is not played out.
Foresight rehearsing(const Knowledge& known, std::uint64_t seed, Foresight reckoning);

// One fight in the head: whether it is won, what is left of the hero, how many rounds he acted in.
struct Rehearsed {
  bool won = false;
  int endurance = 0;
  int magic = 0;
  int grenadesUsed = 0;
  int ammoUsed = 0;
  int rounds = 0;
};

// Plays a fight out once; state is that of the dice. Gives up after mostRounds.
Rehearsed rehearse(const Knowledge& known, const HeroNotes& hero, const Monster& monster, const Plan& plan,
                   int initiative, std::uint64_t& state, int mostRounds);

}  // namespace brolgan::simulation
