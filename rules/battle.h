// The arithmetic of the fight that looks at nothing but numbers: damage of a blow, bonuses of the
// classes, reward. All of it in double precision, operation by operation in the order written.
#pragma once

#include "rules/hero.h"

namespace brolgan {

// A melee blow: the percent works on the hero's strength and the flat bonus, and the weapon's own
// dice come on top. strength and weapon are the rolls; raises an overflow outside an Integer.
Integer meleeDamage(const Bohater& hero, Integer weaponIndex, Integer strength, const Kostka& weapon,
                    Integer weaponRoll);

// What a "Wiedźmin" adds to his blow, from his speed.
Integer witcherBonus(Integer speed);

// What a "Czarownik" regains of magic in a round, from his regeneration.
Integer wizardRegain(Integer regeneration);

// How a weapon gets better with use: the better it is, the more seldom, but never less than by the
// sure rolls of its die.
struct Growth {
  int die;       // its highest face
  int sureFrom;  // from this roll on the weapon grows whatever its percent

  // Whether the weapon grows by kGrowthStep percent.
  [[nodiscard]] bool grows(Integer roll, Integer percent) const { return roll > percent || roll >= sureFrom; }
};

inline constexpr Growth kMeleeGrowth = {120, 76};
inline constexpr Growth kRangedGrowth = {140, 86};
inline constexpr int kGrowthStep = 2;

// The points for a beaten group, by class; not rounded but where the class says so.
double reward(std::string_view klasa, Integer groupSize, const Kostka& attack, Integer armour);

}  // namespace brolgan
