// How a fight is likely to go, reckoned from averages and spreads as a careful player would with
// pencil and paper: no dice are thrown.
#pragma once

#include "simulation/hero_notes.h"

namespace brolgan::simulation {

// How a player means to fight: what he holds, and what he casts and throws as long as it lasts.
struct Plan {
  int weapon = 0;
  bool shield = false;  // keep up "Klasa III A"
  bool luck = false;    // keep up "Kaczy Fart"
  int spell = -1;       // the attacking spell, -1 for none
  int grenades = 0;     // how many to throw, one a round
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

// The damage of one attack before armour.
struct Blow {
  double mean = 0;
  double variance = 0;
};
Blow blowOf(const HeroNotes& hero, const Weapon& weapon, int weaponIndex);

// The mean of a damage of that mean and variance once armour is off and nothing is below 0.
double pastArmour(const Blow& blow, double armour);

// The share of a normal distribution below x.
double below(double x);

// The magic, at least 2, that a player puts into one "BullShots": enough to fell the target with a poor throw,
// and where that cannot be, everything against thick armour and the least against thin.
int bullMagic(int magic, int life, int armour);

// Reckons the fight that the hero would have with that initiative.
Outlook foresee(const Knowledge& known, const HeroNotes& hero, const Monster& monster, const Plan& plan,
                int initiative);

}  // namespace brolgan::simulation
