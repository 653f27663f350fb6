// A player who spends nothing: he saves the hero as he stands, goes to the first zone and fights
// with the better of the two weapons that every hero has.
#pragma once

#include "simulation/minds/mind.h"

namespace brolgan::simulation {

class BareMind : public Mind {
 public:
  using Mind::Mind;

  void create(CreationScreen& screen) override { beginHero(screen); }
  int shop(ShopScreen&) override { return 0; }
  void prepare(PreparationScreen&) override {}
  void enter(FightScreen& screen) override;
  void act(FightScreen& screen) override;
};

}  // namespace brolgan::simulation
