#include "rules/spells.h"

#include <algorithm>

namespace brolgan {

bool knowsStrongHealing(const Bohater& hero) { return hero.Przedmioty(kStrongHealingCounter) >= 1; }

Integer rollHealing(RandomSource& random) { return Rzut(random, 1, 6); }

Integer rollStrongHealing(RandomSource& random, const Bohater& hero) {
  constexpr int kEachFurtherLevel = 2;
  return Rzuty(random, 1, 6, 2) + (hero.Przedmioty(kStrongHealingCounter) - 1) * kEachFurtherLevel;
}

void heal(Bohater& hero, Integer amount) {
  hero.AktWytrzymalosc = std::min(hero.AktWytrzymalosc + amount, hero.Wartosci(kEndurance));
}

}  // namespace brolgan
