#include "shop/zones.h"

namespace brolgan {

// MEANT(overlapping-zones): the zones overlap, are not of equal width, and "Pandoria" spans the whole list.
const std::array<Strefa, 12> kZones = {{
    {"Jaskinia małych", 1, 5},
    {"Jama średnich", 4, 9},
    {"Pieczara niekiepych", 8, 13},
    {"Galeria mocniejszych", 12, 17},
    {"Huta Zła", 16, 21},
    {"Niszczyciele", 20, 25},
    {"Twardziele", 24, 29},
    {"Mocarze", 27, 33},
    {"Nadmocarze", 32, 37},
    {"PonadNadMocarze", 36, 41},
    {"Pandoria", 1, 45},
    {"Tron Królów", 42, 45},
}};

}  // namespace brolgan
