// What the tool tips of creation and shop say, and the colours of the kinds of spells.
#pragma once

#include <array>

#include "flow/stage/controls.h"
#include "rules/development.h"

namespace brolgan {

extern const std::array<const char*, kStatistics> kStatisticTips;
extern const std::array<const char*, kClasses> kClassTips;
extern const std::array<const char*, kGear> kCreationGearTips;
extern const std::array<const char*, kGear> kShopGearTips;
extern const std::array<const char*, kSupplies> kSupplyTips;

// The colour in which the legend and the description of a spell of that group are set.
Colour colourOf(SpellGroup group);

}  // namespace brolgan
