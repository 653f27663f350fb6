// What a player keeps in mind of his hero: what the screens have shown him and what he has bought.
#pragma once

#include <array>

#include "simulation/knowledge/knowledge.h"

namespace brolgan::simulation {

struct HeroNotes {
  int klasa = 0;
  std::array<int, kStatistics> steps{1, 1, 1, 1, 1, 1, 1};
  int endurance = 12;
  int magic = 2;
  int points = 0;
  int lives = 1;
  int lostEndurance = 0;
  std::array<bool, kWeapons> owned{};
  std::array<int, kWeapons> percent{};
  std::array<bool, kSpells> spells{};
  bool mortar = false;
  bool sucker = false;
  int grenades = 0;
  int ammo = 0;

  [[nodiscard]] int value(int statistic) const { return kLadderNumbers[statistic][steps[statistic] - 1]; }
  [[nodiscard]] int fullEndurance() const { return value(kEndurance) - lostEndurance; }
  [[nodiscard]] int fullMagic() const { return value(kPower); }
  [[nodiscard]] bool is(ClassIndex index) const { return klasa == index; }
};

}  // namespace brolgan::simulation
