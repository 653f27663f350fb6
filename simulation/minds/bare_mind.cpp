#include "simulation/minds/bare_mind.h"

#include "simulation/forecasts/blow.h"
#include "simulation/minds/tactics.h"

namespace brolgan::simulation {

void BareMind::enter(FightScreen& screen) {
  const double melee = blowOf(notes_, known_.weapons[0], 0).mean;
  const double ranged = blowOf(notes_, known_.weapons[kMelees], kMelees).mean;
  const double twice = notes_.is(kBerserker) ? 2 : 1;
  screen.chooseWeapon(known_.weapons[melee * twice >= ranged ? 0 : kMelees].name);
}

void BareMind::act(FightScreen& screen) { attackOut(screen); }

}  // namespace brolgan::simulation
