// The departments that the creation screen and the shop have alike: statistics, weapons, spells
// and gear, each laid out in its frame.
#pragma once

#include <array>

#include "desktop/form_window.h"

namespace brolgan::desktop {

// Which members of "Label6" head the name, the damage, the price and the description of a weapon; the
// two screens count those of the second desk in opposite ways.
struct WeaponHeadings {
  std::array<int, 4> melee;
  std::array<int, 4> ranged;
};

void layOutStatistics(FormWindow& window);
void layOutWeapons(FormWindow& window, const WeaponHeadings& headings);
// The legend takes that height at least.
void layOutSpells(FormWindow& window, int legendHeight = 0);
void layOutGear(FormWindow& window);

}  // namespace brolgan::desktop
