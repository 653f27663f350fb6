// The words by which the fight knows its spells, its supplies and the last monster.
#pragma once

#include "rules/consumables.h"

namespace brolgan {

inline constexpr const char* kDamageSpell = "Damage!";
inline constexpr const char* kBullShotsSpell = "BullShots";
inline constexpr const char* kBoomSpell = "BOOM!";
inline constexpr const char* kClass3ASpell = "Klasa III A";
inline constexpr const char* kLuckSpell = "Kaczy Fart";

inline constexpr const char* kGrenadeItem = "Granat";
inline constexpr const char* kAmmoItem = "Ammo";

// The monster whose end is the end of the game.
inline constexpr const char* kLastMonster = "Król Zagłady";

}  // namespace brolgan
