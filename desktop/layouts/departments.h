// The departments that the creation screen and the shop have alike: statistics, weapons, spells
// and gear, each laid out in its frame.
#pragma once

#include "desktop/form_window.h"

namespace brolgan::desktop {

void layOutStatistics(FormWindow& window);
void layOutWeapons(FormWindow& window);
void layOutSpells(FormWindow& window);
void layOutGear(FormWindow& window);

}  // namespace brolgan::desktop
