// What the numbers of the game are meant to reach, each held against a study.
#pragma once

#include <string>
#include <vector>

#include "simulation/report/measures.h"
#include "simulation/report/study.h"
#include "simulation/report/tallies.h"

namespace brolgan::simulation {

// Where weapons and spells begin among the places of the purchases.
inline constexpr int kFirstWeapon = kStatistics;
inline constexpr int kFirstSpell = kFirstWeapon + kWeapons;

struct Aim {
  std::string text;
  std::string wanted;
  std::string found;
  bool reached = false;
  std::string before = "–";  // what it was with the numbers before, where it was measured then
};

// How safe the first fight is.
std::vector<Aim> firstFightAims(const Study& study);
// How long games last and that they end.
std::vector<Aim> lengthAims(const Study& study);
// How much is at stake in a fight, and what for.
std::vector<Aim> tensionAims(const Knowledge& known, const Study& study, const Measures& all);
// All of them, in the order of the report.
std::vector<Aim> allAims(const Knowledge& known, const Study& study, const Tallies& tallies);

// A number with one digit behind the point.
std::string oneDigit(double value);
// What stands at a place of the purchases, "" for what nobody sells.
std::string offerName(const Knowledge& known, int place);

}  // namespace brolgan::simulation
