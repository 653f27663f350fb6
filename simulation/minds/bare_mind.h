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

// Attacks as often as the button lets, at most twice, until the group is gone.
void attackOut(FightScreen& screen);

}  // namespace brolgan::simulation
