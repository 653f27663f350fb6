// The two kinds of weapons. The hero file and the catalogue have the same fields for either, once
// with the suffix ww and once with ss; whoever needs one of them asks for it by kind.
#pragma once

#include <array>

namespace brolgan {

enum class WeaponKind { none, melee, ranged };

// In the order of the files and of every list.
inline constexpr std::array kWeaponKinds = {WeaponKind::melee, WeaponKind::ranged};

// How many weapons of a kind the game knows and a hero has slots for.
inline constexpr int kWeaponsOfAKind = 10;

}  // namespace brolgan
