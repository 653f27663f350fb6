// The spells that serve the preparation and the fight alike: what heals, and who knows what.
#pragma once

#include <algorithm>
#include <span>
#include <string_view>

#include "rules/hero.h"
#include "rules/random.h"

namespace brolgan {

// Whether a hero can cast a spell: one that he has a flag for, or "Czar Leczniczy" by its counter.
template <SpellIndex Spell>
bool knowsSpell(const Bohater& hero) {
  return hero.MaCzar(Spell);
}
bool knowsStrongHealing(const Bohater& hero);

// The row of that name in a screen's table of spells, null when it has none.
template <class Row>
const Row* spellNamed(std::span<const Row> rows, std::string_view name) {
  const auto found = std::ranges::find(rows, name, &Row::name);
  return found == rows.end() ? nullptr : &*found;
}

// What "Leczenie" heals: one die of six.
Integer rollHealing(RandomSource& random);
// What "Czar Leczniczy" heals: two dice of six and two more for each level above the first.
Integer rollStrongHealing(RandomSource& random, const Bohater& hero);

// Raises the current endurance and cuts it to the maximum.
void heal(Bohater& hero, Integer amount);

}  // namespace brolgan
