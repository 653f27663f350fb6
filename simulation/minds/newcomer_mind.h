// A player in his first evening. He buys what sounds strong, learns from each fight whether the
// next zone is for him, and reckons nothing.
#pragma once

#include "simulation/minds/mind.h"

namespace brolgan::simulation {

class NewcomerMind : public Mind {
 public:
  using Mind::Mind;

  void create(CreationScreen& screen) override;
  int shop(ShopScreen& screen) override;
  void prepare(PreparationScreen& screen) override;
  void enter(FightScreen& screen) override;
  void act(FightScreen& screen) override;
  void hearOutcome(bool won) override;

 private:
  // The dearest weapon for that many points at most that is dearer than what he has.
  bool buyWeapon(DepartmentScreen& screen, int most);
  bool buySpells(DepartmentScreen& screen);
  void buySteps(DepartmentScreen& screen, int price);
  [[nodiscard]] int dearestOwned() const;
  [[nodiscard]] int easyFightsNeeded() const;

  int zone_ = 0;
  int easy_ = 0;   // fights in a row that felt so
  int begun_ = 0;  // the endurance that the fight began with
  int left_ = 0;
  int nextStep_ = 0;
  bool burnt_ = false;  // has lost a life
};

}  // namespace brolgan::simulation
