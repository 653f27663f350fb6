#include "desktop/layouts/layouts.h"

#include <map>
#include <stdexcept>

#include "game/names/names.h"

namespace brolgan::desktop {

const ScreenLayout& screenLayout(const std::string& name) {
  static const std::map<std::string, ScreenLayout> layouts = {
      {screens::kTitle, {layOutTitle, {1304, 414}, Place::top, {}, {}, true}},
      {screens::kSetUp, {layOutSetup, {760, 376}, Place::bottom}},
      {screens::kCreation, {layOutCreation, kLargestWindow, Place::turn, {}, {"Plik"}}},
      {screens::kShop, {layOutShop, kLargestWindow, Place::turn, {}, {"Plik", "Save"}}},
      {screens::kPreparation, {layOutPreparation, kLargestWindow, Place::turn}},
      {screens::kFight,
       {layOutFight, kLargestWindow, Place::turn, {"Uwaga", "FZad", "FDamage", "Bron", "Czar", "Przedmiot"}}},
      {screens::kSheet, {layOutSheet, {610, 540}, Place::beside}},
  };
  const auto found = layouts.find(name);
  if (found == layouts.end()) throw std::logic_error("no layout for " + name);
  return found->second;
}

}  // namespace brolgan::desktop
