#include "rules/battle.h"

#include "flow/text/number_text.h"
#include "rules/development.h"

namespace brolgan {

Integer meleeDamage(const Bohater& hero, Integer weaponIndex, Integer strength, const Kostka& weapon,
                    Integer weaponRoll) {
  const double m = hero.BronwwProc(weaponIndex).value() / 100.0 + 1;
  const Integer base = strength + hero.BronwwPlus(weaponIndex) + hero.MO.dodatek;
  return toInteger(base.value() * m + weaponRoll.value() + weapon.dodatek.value());
}

Integer witcherBonus(Integer speed) {
  constexpr double kSpeedForOne = 3.4;
  return toInteger(speed.value() / kSpeedForOne);
}

Integer wizardRegain(Integer regeneration) {
  constexpr double kRegenerationForOne = 3.5;
  return toInteger(regeneration.value() / kRegenerationForOne);
}

// MEANT(reward-omits): the monster's dodatek and endurance do not count.
double reward(std::string_view klasa, Integer groupSize, const Kostka& attack, Integer armour) {
  constexpr double kEachFurtherMonster = 0.33;
  constexpr double kAdventurersShare = 1.45;
  constexpr double kGamblersShare = 3;
  const double g = (groupSize - 1).value() * kEachFurtherMonster + 1;
  const double average = (static_cast<double>(attack.kmin.value()) + attack.kmax.value()) / 2;
  const double p = (average * attack.kile.value() + armour.value()) / 10 * g + 1;
  if (isClass(klasa, kAdventurer)) return round(p * kAdventurersShare);
  if (isClass(klasa, kGambler)) return p * kGamblersShare;
  return p;
}

}  // namespace brolgan
