// What a player asks of a fight before he goes into it: how he means to fight, and how it will go.
#pragma once

#include <functional>

#include "simulation/knowledge/hero_notes.h"

namespace brolgan::simulation {

// How a player means to fight: what he holds, and what he casts and throws as long as it lasts.
struct Plan {
  int weapon = 0;
  bool shield = false;  // keep up "Klasa III A"
  bool luck = false;    // cast "Kaczy Fart" as long as the magic lasts
  int spell = -1;       // the attacking spell, -1 for none
  int grenades = 0;     // how many to throw, one a round

  friend bool operator==(const Plan&, const Plan&) = default;
};

struct Outlook {
  double win = 0;
  double harm = 0;  // endurance lost on the whole
  double magicLeft = 0;
  double grenadesUsed = 0;
  double ammoUsed = 0;
  double rounds = 0;
};

inline constexpr int kHopelessRounds = 30;

// How a fight with a plan will go; a careful player reckons, a greedy one tries it out in his head.
using Foresight = std::function<Outlook(const HeroNotes&, const Monster&, const Plan&, int initiative)>;

}  // namespace brolgan::simulation
