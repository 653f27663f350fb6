#include "desktop/layouts/layouts.h"

#include <map>

namespace brolgan::desktop {

void layOut(const std::string& name, FormWindow& window) {
  static const std::map<std::string, void (*)(FormWindow&)> layouts = {
      {"Brolgan", layOutTitle},        {"Main", layOutSetup},  {"CTmhero", layOutCreation}, {"CTsklep", layOutShop},
      {"Prefight", layOutPreparation}, {"Fight", layOutFight}, {"FHero", layOutSheet},
  };
  const auto found = layouts.find(name);
  if (found != layouts.end()) found->second(window);
}

}  // namespace brolgan::desktop
