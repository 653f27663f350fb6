#include "simulation/minds/careful_mind.h"

#include <algorithm>

#include "fight/choices.h"
#include "simulation/minds/bare_mind.h"

namespace brolgan::simulation {

namespace {

// A purchase at hand is taken when it helps nearly as much as the best that money could buy later.
constexpr double kGoodEnough = 0.5;
constexpr double kUseless = 0.0008;
constexpr int kPatience = 14;
// One visit in so many finds a player in the mood for a gamble.
constexpr int kDaring = 8;

}  // namespace

CarefulMind::CarefulMind(const Knowledge& known, int klasa, std::uint64_t seed, Foresight foresight,
                         Foresight reckoning)
    : Mind(known, klasa, seed), judgement_(known, std::move(foresight), std::move(reckoning), seed) {}

void CarefulMind::create(CreationScreen& screen) {
  beginHero(screen);
  sellSpare(screen);
  const int steps = 1 + below(2);
  for (int i = 0; i < steps; ++i) buy(screen, {Ware::step, kLives, kCreationLifePrice});
  spend(screen, true);
}

// Of the two starting weapons only the stronger is kept.
void CarefulMind::sellSpare(CreationScreen& screen) {
  const double melee = blowOf(notes_, known_.weapons[0], 0).mean * (notes_.is(kBerserker) ? 2 : 1);
  const double ranged = blowOf(notes_, known_.weapons[kMelees], kMelees).mean;
  const int spare = melee >= ranged ? kMelees : 0;
  screen.sellWeapon(spare);
  notes_.points = screen.points();
  notes_.owned[spare] = false;
}

bool CarefulMind::isOpen(const DepartmentScreen& screen, const Offer& offer) {
  if (offer.ware == Ware::step) return screen.statisticsOpen();
  if (offer.ware == Ware::weapon) return screen.weaponsOpen();
  if (offer.ware == Ware::spell) return screen.spellsOpen();
  return true;
}

bool CarefulMind::buyBest(DepartmentScreen& screen, bool atCreation) {
  const auto offers = judgement_.offers(notes_, atCreation);
  const auto atHand = [&](const Offer& offer) { return offer.price <= notes_.points && isOpen(screen, offer); };
  if (std::none_of(offers.begin(), offers.end(), atHand)) return false;
  const int reach = notes_.points + (atCreation || notes_.is(kGambler) ? 0 : kPatience);
  const auto gains = judgement_.gains(notes_, offers, reach);
  double best = 0;
  int chosen = -1;
  for (std::size_t i = 0; i < offers.size(); ++i) {
    if (offers[i].price <= reach) best = std::max(best, gains[i]);
    if (!atHand(offers[i])) continue;
    if (chosen < 0 || gains[i] > gains[chosen]) chosen = static_cast<int>(i);
  }
  if (chosen < 0 || gains[chosen] < kUseless) return false;
  if (!notes_.is(kGambler) && gains[chosen] < kGoodEnough * best) return false;
  return buy(screen, offers[chosen]);
}

void CarefulMind::spend(DepartmentScreen& screen, bool atCreation) {
  while (notes_.points > 0 && buyBest(screen, atCreation)) {
  }
}

int CarefulMind::shop(ShopScreen& screen) {
  screen.read(notes_);
  turn_ = screen.turn();
  spend(screen, false);
  return judgement_.bestZone(notes_, below(kDaring) == 0);
}

double CarefulMind::worthNow(int initiative) const { return judgement_.plan(notes_, *monster_, initiative).worth; }

bool CarefulMind::healIfWorth(PreparationScreen& screen) {
  if (!notes_.spells[kHealing] || notes_.magic < 1 || notes_.endurance + 3 > notes_.fullEndurance()) return false;
  const double before = worthNow(screen.initiative());
  const HeroNotes kept = notes_;
  notes_.endurance = std::min(notes_.endurance + 4, notes_.fullEndurance());
  notes_.magic -= 1;
  const double after = worthNow(screen.initiative());
  notes_ = kept;
  return after > before && screen.cast(kHealingSpell);
}

// "Autostart" when the roll is likely enough to win the first blow.
void CarefulMind::hurryIfWorth(PreparationScreen& screen) {
  const int gap = monster_->speed - screen.initiative();
  if (!notes_.spells[kAutostart] || notes_.magic < 3 || gap < 0 || gap > 5) return;
  const double before = worthNow(screen.initiative());
  notes_.magic -= 3;
  const double chance = 1 - (gap == 0 ? 0 : 0.1 + 0.2 * (gap - 1));
  const double after = chance * worthNow(monster_->speed + 1) + (1 - chance) * worthNow(screen.initiative());
  notes_.magic += 3;
  if (after > before) screen.cast(kAutostartSpell);
}

void CarefulMind::prepare(PreparationScreen& screen) {
  monster_ = &known_.monsterNamed(screen.monsterName());
  do {
    notes_.endurance = screen.endurance();
    notes_.magic = screen.magic();
  } while (healIfWorth(screen));
  hurryIfWorth(screen);
  notes_.magic = screen.magic();
  plan_ = judgement_.plan(notes_, *monster_, screen.initiative()).plan;
}

void CarefulMind::enter(FightScreen& screen) {
  screen.chooseWeapon(known_.weapons[plan_.weapon].name);
  grenadesLeft_ = plan_.grenades;
  lucky_ = false;
  reloading_ = false;
}

bool CarefulMind::castSpell(FightScreen& screen, const char* name) {
  if (!screen.mayCast() || !screen.chooseSpell(name)) return false;
  if (name == kBullShotsSpell) screen.typeMagic(bullMagic(screen.magic(), screen.targetLife(), screen.targetArmour()));
  screen.cast();
  return true;
}

// The spells of the plan, in their order of haste; answers whether one was cast.
bool CarefulMind::castPlanned(FightScreen& screen) {
  const int magic = screen.magic();
  if (notes_.is(kBerserker)) return false;
  if (plan_.shield && magic >= 2 && screen.armour() <= notes_.value(kArmour)) return castSpell(screen, kClass3ASpell);
  if (plan_.luck && magic >= 4 && !lucky_) return lucky_ = castSpell(screen, kLuckSpell);
  if (plan_.spell == kDamage && magic >= 2) return castSpell(screen, kDamageSpell);
  if (plan_.spell == kBoom && magic >= 4) return castSpell(screen, kBoomSpell);
  if (plan_.spell == kBullShots && magic >= 2) return castSpell(screen, kBullShotsSpell);
  const bool hurt = screen.endurance() + 4 <= notes_.fullEndurance();
  if (known_.weapons[plan_.weapon].staff && hurt && magic >= 1) return castSpell(screen, kHealingSpell);
  return false;
}

void CarefulMind::loadAmmo(FightScreen& screen) {
  if (notes_.ammo > 0 && screen.mayUse() && screen.chooseItem(kAmmoItem)) {
    screen.use();
    --notes_.ammo;
  }
}

void CarefulMind::strike(FightScreen& screen) {
  const Weapon& weapon = known_.weapons[plan_.weapon];
  if (!weapon.melee && !reloading_) loadAmmo(screen);
  attackOut(screen);
  if (screen.warned()) ++notes_.lostEndurance;
  reloading_ = weapon.cannon && !reloading_;
  if (weapon.melee) notes_.percent[plan_.weapon] = screen.shownPercent();
}

void CarefulMind::throwGrenade(FightScreen& screen) {
  if (grenadesLeft_ <= 0 || screen.cleared() || !screen.mayUse() || !screen.chooseItem(kGrenadeItem)) return;
  screen.use();
  --grenadesLeft_;
}

void CarefulMind::act(FightScreen& screen) {
  const bool cast = castPlanned(screen);
  if (screen.cleared()) return;
  if (!cast || known_.weapons[plan_.weapon].staff) strike(screen);
  throwGrenade(screen);
  lucky_ = false;
}

}  // namespace brolgan::simulation
