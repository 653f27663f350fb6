#include "desktop/layouts/layouts.h"

#include <map>
#include <stdexcept>

namespace brolgan::desktop {

const ScreenLayout& screenLayout(const std::string& name) {
  static const std::map<std::string, ScreenLayout> layouts = {
      {"Brolgan", {layOutTitle, {1304, 420}, Place::top}},
      {"Main", {layOutSetup, {800, 352}, Place::bottom}},
      {"CTmhero", {layOutCreation, kLargestWindow, Place::turn, {}, {"Plik"}}},
      {"CTsklep", {layOutShop, kLargestWindow, Place::turn, {}, {"Plik", "Save"}}},
      {"Prefight", {layOutPreparation, kLargestWindow, Place::turn}},
      {"Fight", {layOutFight, kLargestWindow, Place::turn, {"Uwaga", "FZad", "FDamage", "Bron", "Czar", "Przedmiot"}}},
      {"FHero", {layOutSheet, {610, 540}, Place::beside}},
  };
  const auto found = layouts.find(name);
  if (found == layouts.end()) throw std::logic_error("no layout for " + name);
  return found->second;
}

}  // namespace brolgan::desktop
