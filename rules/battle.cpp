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

Integer witcherBonus(Integer speed) { return toInteger(speed.value() / 3.4); }

Integer wizardRegain(Integer regeneration) { return toInteger(regeneration.value() / 3.5); }

// MEANT(reward-omits): the monster's dodatek and endurance do not count.
double reward(std::string_view klasa, Integer groupSize, const Kostka& attack, Integer armour) {
  const double g = (groupSize - 1).value() * 0.33 + 1;
  const double average = (attack.kmin + attack.kmax).value() / 2.0;
  const double p = (average * attack.kile.value() + armour.value()) / 10 * g + 1;
  if (isClass(klasa, kAdventurer)) return round(p * 1.45);
  if (isClass(klasa, kGambler)) return p * 3;
  return p;
}

}  // namespace brolgan
