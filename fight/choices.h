// What the lists of the fight offer, by name, and the two kinds of weapons.
#pragma once

#include <array>
#include <utility>

#include "rules/consumables.h"
#include "rules/development.h"

namespace brolgan {

inline constexpr const char* kMelee = "w";
inline constexpr const char* kRanged = "s";

inline constexpr const char* kDamageSpell = "Damage!";
inline constexpr const char* kBullShotsSpell = "BullShots";
inline constexpr const char* kBoomSpell = "BOOM!";
inline constexpr const char* kClass3ASpell = "Klasa III A";
inline constexpr const char* kLuckSpell = "Kaczy Fart";

// The spells that a flag of the hero puts on the list, in the order of the list.
inline constexpr std::array<std::pair<int, const char*>, 6> kFightSpells = {{{kHealing, kHealingSpell},
                                                                             {kDamage, kDamageSpell},
                                                                             {kBullShots, kBullShotsSpell},
                                                                             {kBoom, kBoomSpell},
                                                                             {kClass3A, kClass3ASpell},
                                                                             {kLuck, kLuckSpell}}};

inline constexpr const char* kGrenadeItem = "Granat";
inline constexpr const char* kAmmoItem = "Ammo";

// The monster whose end is the end of the game.
inline constexpr const char* kLastMonster = "Król Zagłady";

inline constexpr const char* kDeath = "Śmierć!";

}  // namespace brolgan
