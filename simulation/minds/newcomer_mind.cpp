#include "simulation/minds/newcomer_mind.h"

#include <algorithm>

#include "fight/choices.h"
#include "simulation/minds/tactics.h"

namespace brolgan::simulation {

namespace {

// Zones that he climbs one by one; the gamble is not among them.
constexpr std::array kClimb = {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, kThroneZone};
constexpr int kTop = static_cast<int>(kClimb.size()) - 1;
// What he develops, over and over in this order.
constexpr std::array kSteps = {kEndurance, kArmour,    kModifier, kEndurance, kArmour,
                               kSpeed,     kEndurance, kArmour,   kPower,     kRegeneration};
// A fight that took less of what he had felt easy; one that took more hurt.
constexpr double kEasy = 0.6;
constexpr double kHurt = 0.9;
// Easy fights in a row that take him one zone on once he has lost a life, or when the throne is next.
constexpr int kSure = 2;
// A weapon that costs little more than his own does not sound stronger.
constexpr int kNoticeable = 2;

}  // namespace

int NewcomerMind::dearestOwned() const {
  int dearest = -1;
  for (int i = 0; i < kWeapons; ++i) {
    const auto price = [this](int weapon) { return known_.weapons[static_cast<std::size_t>(weapon)].price; };
    if (notes_.owned[static_cast<std::size_t>(i)] && (dearest < 0 || price(i) > price(dearest))) dearest = i;
  }
  return dearest;
}

bool NewcomerMind::buyWeapon(DepartmentScreen& screen, int most) {
  int chosen = -1;
  int price = known_.weapons[static_cast<std::size_t>(dearestOwned())].price + kNoticeable - 1;
  for (int i = 0; i < kWeapons; ++i) {
    const Weapon& weapon = known_.weapons[static_cast<std::size_t>(i)];
    if (notes_.owned[static_cast<std::size_t>(i)] || weapon.price <= price || weapon.price > most) continue;
    chosen = i;
    price = weapon.price;
  }
  return chosen >= 0 && buy(screen, {Ware::weapon, chosen, price});
}

bool NewcomerMind::buySpells(DepartmentScreen& screen) {
  if (notes_.spells[kHealing] || notes_.is(kBerserker)) return false;
  return buy(screen, {Ware::spell, kHealing, kSpellTable[kHealing].price});
}

void NewcomerMind::buySteps(DepartmentScreen& screen, int price) {
  for (std::size_t tried = 0; tried < kSteps.size() && screen.points() >= price; ++tried) {
    const int statistic = kSteps[static_cast<std::size_t>(nextStep_)];
    nextStep_ = (nextStep_ + 1) % static_cast<int>(kSteps.size());
    if (notes_.steps[static_cast<std::size_t>(statistic)] < topStep(statistic)) {
      if (buy(screen, {Ware::step, statistic, price})) tried = 0;
    }
  }
}

void NewcomerMind::create(CreationScreen& screen) {
  beginHero(screen);
  constexpr int kMostStepsOfLives = 3;
  const int lives = 1 + below(kMostStepsOfLives);
  for (int i = 0; i < lives; ++i) buy(screen, {Ware::step, kLives, kCreationLifePrice});
  buyWeapon(screen, screen.points() / 2);
  buySpells(screen);
  buySteps(screen, kCreationStepPrice);
}

int NewcomerMind::shop(ShopScreen& screen) {
  screen.read(notes_);
  turn_ = screen.turn();
  if (screen.weaponsOpen()) buyWeapon(screen, screen.points());
  if (screen.spellsOpen()) buySpells(screen);
  if (screen.statisticsOpen()) buySteps(screen, kShopStepPrice);
  const bool weak = notes_.endurance * 2 < notes_.fullEndurance();
  const int step = weak ? std::max(0, zone_ - 2) : zone_;
  return kClimb[static_cast<std::size_t>(step)];
}

void NewcomerMind::prepare(PreparationScreen& screen) {
  while (screen.endurance() + 3 <= notes_.fullEndurance() && screen.magic() >= 1 && screen.cast(kHealingSpell)) {
  }
  begun_ = screen.endurance();
  left_ = begun_;
}

void NewcomerMind::enter(FightScreen& screen) {
  screen.chooseWeapon(known_.weapons[static_cast<std::size_t>(dearestOwned())].name);
}

void NewcomerMind::act(FightScreen& screen) {
  attackOut(screen);
  left_ = screen.endurance();
}

int NewcomerMind::easyFightsNeeded() const {
  const bool throneIsNext = zone_ + 1 >= kTop;
  return burnt_ || throneIsNext ? kSure : 1;
}

void NewcomerMind::hearOutcome(bool won) {
  const double lost = won ? static_cast<double>(begun_ - left_) / std::max(1, begun_) : 1;
  easy_ = lost < kEasy ? easy_ + 1 : 0;
  if (easy_ >= easyFightsNeeded()) {
    zone_ = std::min(kTop, zone_ + 1);
    easy_ = 0;
  }
  if (lost > kHurt) zone_ = std::max(0, zone_ - 1);
  if (!won) burnt_ = true;
}

}  // namespace brolgan::simulation
