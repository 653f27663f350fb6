#include "desktop/layouts/layouts.h"

#include <QLayout>
#include <map>

#include "desktop/form_window.h"

namespace brolgan::desktop {

void layOut(const std::string& name, FormWindow& window) {
  static const std::map<std::string, void (*)(FormWindow&)> layouts = {
      {"Brolgan", layOutTitle},        {"Main", layOutSetup},  {"CTmhero", layOutCreation}, {"CTsklep", layOutShop},
      {"Prefight", layOutPreparation}, {"Fight", layOutFight}, {"FHero", layOutSheet},
  };
  const auto found = layouts.find(name);
  if (found == layouts.end()) return;
  found->second(window);
  // All places are worked out at once, so that showing the window takes less time.
  window.layout()->activate();
}

}  // namespace brolgan::desktop
