// One attack by its mean and spread, and what armour leaves of it.
#pragma once

#include "simulation/knowledge/hero_notes.h"

namespace brolgan::simulation {

// The damage of one attack before armour.
struct Blow {
  double mean = 0;
  double variance = 0;

  friend bool operator==(const Blow&, const Blow&) = default;
};

// What of a hero stands behind a melee blow.
struct Striker {
  int klasa = 0;
  int modifier = 1;  // a step, as speed
  int speed = 1;
  int percent = 0;
};

Blow blowOf(const Striker& striker, const Weapon& weapon);
Blow blowOf(const HeroNotes& hero, const Weapon& weapon, int weaponIndex);

// The rules of practice: a melee blow adds so many percent when its die beats the percent so far, or
// lies at or above a threshold.
inline constexpr int kGrowth = 2;
inline constexpr int kMeleeGrowthDie = 120;
inline constexpr int kMeleeAlwaysGrows = 76;

// By how much the mean of a melee blow rises with one more blow, from the practice that it gives.
double growthOf(const Striker& striker);

// The mean of a damage of that mean and variance once armour is off and nothing is below 0.
double pastArmour(const Blow& blow, double armour);
// The same of a mean that is less the armour already, and of a spread as spreadOf tells it.
double pastArmour(double mean, double spread);
double spreadOf(const Blow& blow);

// The share of a normal distribution below x, to four digits.
double below(double x);

// The magic, at least 2, that a player puts into one "BullShots": enough to fell the target with a poor throw,
// and where that cannot be, everything against thick armour and the least against thin.
int bullMagic(int magic, int life, int armour);

}  // namespace brolgan::simulation
