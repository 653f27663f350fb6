#include "simulation/minds/tactics.h"

#include "fight/choices.h"
#include "simulation/forecasts/blow.h"

namespace brolgan::simulation {

namespace {

bool castSpell(FightScreen& screen, const char* name) {
  if (!screen.mayCast() || !screen.chooseSpell(name)) return false;
  if (name == kBullShotsSpell) screen.typeMagic(bullMagic(screen.magic(), screen.targetLife(), screen.targetArmour()));
  screen.cast();
  return true;
}

}  // namespace

void attackOut(FightScreen& screen) {
  for (int blow = 0; blow < 2 && screen.mayAttack() && !screen.cleared(); ++blow) screen.attack();
}

void Tactics::begin(FightScreen& screen, const Plan& plan) {
  plan_ = plan;
  grenadesLeft_ = plan.grenades;
  reloading_ = false;
  screen.chooseWeapon(weapon().name);
}

bool Tactics::castPlanned(FightScreen& screen, const HeroNotes& notes) const {
  const int magic = screen.magic();
  if (notes.is(kBerserker)) return false;
  if (plan_.shield && magic >= 2 && screen.armour() <= notes.value(kArmour)) return castSpell(screen, kClass3ASpell);
  if (plan_.luck && magic >= 4) return castSpell(screen, kLuckSpell);
  if (plan_.spell == kDamage && magic >= 2) return castSpell(screen, kDamageSpell);
  if (plan_.spell == kBoom && magic >= 4) return castSpell(screen, kBoomSpell);
  if (plan_.spell == kBullShots && magic >= 2) return castSpell(screen, kBullShotsSpell);
  const bool hurt = screen.endurance() + 4 <= notes.fullEndurance();
  return weapon().staff && hurt && magic >= 1 && castSpell(screen, kHealingSpell);
}

void Tactics::loadAmmo(FightScreen& screen, HeroNotes& notes) {
  if (notes.ammo <= 0 || !screen.mayUse() || !screen.chooseItem(kAmmoItem)) return;
  screen.use();
  --notes.ammo;
}

void Tactics::strike(FightScreen& screen, HeroNotes& notes) {
  if (!weapon().melee && !reloading_) loadAmmo(screen, notes);
  attackOut(screen);
  if (screen.warned()) ++notes.lostEndurance;
  reloading_ = weapon().cannon && !reloading_;
  if (weapon().melee) notes.percent[static_cast<std::size_t>(plan_.weapon)] = screen.shownPercent();
}

void Tactics::throwGrenade(FightScreen& screen) {
  if (grenadesLeft_ <= 0 || screen.cleared() || !screen.mayUse() || !screen.chooseItem(kGrenadeItem)) return;
  screen.use();
  --grenadesLeft_;
}

void Tactics::act(FightScreen& screen, HeroNotes& notes) {
  const bool cast = castPlanned(screen, notes);
  if (screen.cleared()) return;
  if (!cast || weapon().staff) strike(screen, notes);
  throwGrenade(screen);
}

}  // namespace brolgan::simulation
