// The counted items that a hero may carry and the healing spells, by name, and the counters of the
// hero that they live in. The preparation offers them all, the fight the healing alone.
#pragma once

#include <array>
#include <utility>

namespace brolgan {

// Places in Bohater::Przedmioty.
inline constexpr int kFishCounter = 0;
inline constexpr int kHeadStartCounter = 1;
inline constexpr int kStrongHealingCounter = 2;
inline constexpr int kRhubarbCounter = 3;
inline constexpr int kSnuffCounter = 4;
inline constexpr int kBarCounter = 5;
inline constexpr int kLampCounter = 6;
inline constexpr int kImmortalityCounter = 7;
// How many the record has; those behind the last named mean nothing and are carried along.
inline constexpr int kCounters = 17;

inline constexpr const char* kFish = "Zatruta Ryba";
inline constexpr const char* kRhubarb = "Rabarbar de'Cur";
inline constexpr const char* kSnuff = "Tabaka";
inline constexpr const char* kBar = "Krzepiący Baton";
inline constexpr const char* kLamp = "Lampa Sea Archiego";
inline constexpr const char* kImmortality = "Nieśmiertelność";

// The items behind the fish in the list, in their order.
inline constexpr std::array<std::pair<int, const char*>, 5> kFurtherItems = {{{kRhubarbCounter, kRhubarb},
                                                                              {kSnuffCounter, kSnuff},
                                                                              {kBarCounter, kBar},
                                                                              {kLampCounter, kLamp},
                                                                              {kImmortalityCounter, kImmortality}}};

inline constexpr const char* kHealingSpell = "Leczenie";
inline constexpr const char* kAutostartSpell = "Autostart";
inline constexpr const char* kStrongHealingSpell = "Czar Leczniczy";

// What the one-off counter and "Krzepiący Baton" add to the initiative.
inline constexpr int kHeadStart = 10000;

}  // namespace brolgan
