// Carries a plan out in the fight, round by round.
#pragma once

#include "simulation/forecasts/outlook.h"
#include "simulation/stage/screens.h"

namespace brolgan::simulation {

class Tactics {
 public:
  explicit Tactics(const Knowledge& known) : known_(known) {}

  // Takes the plan's weapon in hand.
  void begin(FightScreen& screen, const Plan& plan);
  // Does what is to be done in one round, all but ending it, and notes what the screen tells of it.
  void act(FightScreen& screen, HeroNotes& notes);

 private:
  [[nodiscard]] const Weapon& weapon() const { return known_.weapons[static_cast<std::size_t>(plan_.weapon)]; }
  // The spells of the plan, in their order of haste; answers whether one was cast.
  bool castPlanned(FightScreen& screen, const HeroNotes& notes) const;
  void strike(FightScreen& screen, HeroNotes& notes);
  static void loadAmmo(FightScreen& screen, HeroNotes& notes);
  void throwGrenade(FightScreen& screen);

  const Knowledge& known_;
  Plan plan_;
  int grenadesLeft_ = 0;
  bool reloading_ = false;
};

// Attacks as often as the button lets, at most twice, until the group is gone.
void attackOut(FightScreen& screen);

}  // namespace brolgan::simulation
