#include "simulation/minds/careful_mind.h"

#include <algorithm>

#include "fight/choices.h"

namespace brolgan::simulation {

namespace {

// A purchase at hand is taken when it helps nearly as much as the best that money could buy later.
constexpr double kGoodEnough = 0.5;
constexpr double kUseless = 0.0008;
constexpr int kPatience = 14;

}  // namespace

CarefulMind::CarefulMind(const Knowledge& known, int klasa, std::uint64_t seed, Foresight foresight,
                         Foresight reckoning, const Temper& temper)
    : Mind(known, klasa, seed),
      judgement_(known, std::move(foresight), std::move(reckoning), temper, seed),
      mood_(temper.mood),
      tactics_(known) {}

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
  auto offers = judgement_.offers(notes_, atCreation);
  if (wasDenied_) std::erase_if(offers, [this](const Offer& offer) { return offer.place() == denied_; });
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
  if (chosen < 0) return false;
  const bool isWise = gains[chosen] >= kUseless && (notes_.is(kGambler) || gains[chosen] >= kGoodEnough * best);
  if (!isWise) return buyFromPlenty(screen, offers);
  want(offers[chosen]);
  return take(screen, offers[chosen]);
}

// Buys, or learns that he may not; answers whether it is worth while to go on looking.
bool CarefulMind::take(DepartmentScreen& screen, const Offer& offer) {
  if (offer.place() != denied_) return buy(screen, offer);
  wasDenied_ = true;
  return true;
}

// Whoever has more points than he could want to save, or cannot save any, buys what may help one day.
bool CarefulMind::buyFromPlenty(DepartmentScreen& screen, const std::vector<Offer>& offers) {
  const int reserve = notes_.is(kGambler) ? 0 : kPatience;
  const auto found = std::find_if(offers.begin(), offers.end(), [&](const Offer& offer) {
    const bool lasts = offer.ware == Ware::step || offer.ware == Ware::spell;
    return lasts && notes_.points >= offer.price + reserve && isOpen(screen, offer);
  });
  return found != offers.end() && take(screen, *found);
}

void CarefulMind::spend(DepartmentScreen& screen, bool atCreation) {
  while (notes_.points > 0 && buyBest(screen, atCreation)) {
  }
}

int CarefulMind::shop(ShopScreen& screen) {
  screen.read(notes_);
  turn_ = screen.turn();
  spend(screen, false);
  return judgement_.bestZone(notes_, below(mood_) == 0);
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

void CarefulMind::enter(FightScreen& screen) { tactics_.begin(screen, plan_); }

void CarefulMind::act(FightScreen& screen) { tactics_.act(screen, notes_); }

}  // namespace brolgan::simulation
