#include "game/game.h"

#include <memory>
#include <type_traits>

#include "creation/creation.h"
#include "fight/fight.h"
#include "flow/setup.h"
#include "flow/starter.h"
#include "flow/title.h"
#include "preparation/preparation.h"
#include "sheet/sheet.h"
#include "shop/shop.h"

namespace brolgan {

namespace {

template <class Screen>
void offer(Runtime& runtime, RandomSource& random) {
  runtime.offer(Screen::kName, [&random](Runtime& owner) -> std::unique_ptr<Form> {
    if constexpr (std::is_constructible_v<Screen, Runtime&, RandomSource&>) {
      return std::make_unique<Screen>(owner, random);
    } else {
      static_cast<void>(random);  // A screen without dice.
      return std::make_unique<Screen>(owner);
    }
  });
}

}  // namespace

void offerScreens(Runtime& runtime, RandomSource& random) {
  offer<Starter>(runtime, random);
  offer<Brolgan>(runtime, random);
  offer<Main>(runtime, random);
  offer<CTmhero>(runtime, random);
  offer<CTsklep>(runtime, random);
  offer<Prefight>(runtime, random);
  offer<Fight>(runtime, random);
  offer<FHero>(runtime, random);
}

}  // namespace brolgan
