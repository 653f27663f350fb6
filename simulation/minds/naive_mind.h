// A player without a plan: he buys whatever he can, in any order, stays in the weakest zone until
// it feels safe, and then tries the next.
#pragma once

#include "simulation/minds/mind.h"

namespace brolgan::simulation {

class NaiveMind : public Mind {
 public:
  using Mind::Mind;

  void create(CreationScreen& screen) override;
  int shop(ShopScreen& screen) override;
  void prepare(PreparationScreen& screen) override;
  void enter(FightScreen& screen) override;
  void act(FightScreen& screen) override;
  void hearOutcome(bool won) override;

 private:
  void buyAnything(DepartmentScreen& screen, bool atCreation);

  int zone_ = 0;
  int easyWins_ = 0;
};

}  // namespace brolgan::simulation
