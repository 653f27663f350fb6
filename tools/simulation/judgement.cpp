#include "tools/simulation/judgement.h"

#include <algorithm>
#include <cmath>

#include "rules/weapons.h"

namespace brolgan::simulation {

namespace {

constexpr double kHealingMean = 3.5;
constexpr double kVictory = 90;
// The zone of all monsters, and how good it must look beside the best one to tempt.
constexpr int kGamble = 10;
constexpr double kTemptation = 0.6;

double lifeCost(int lives) {
  if (lives <= 1) return 40;
  if (lives == 2) return 14;
  return lives == 3 ? 8 : 5;
}

// A one-off good counts for less than a lasting one.
double lastingShare(const Offer& offer) {
  if (offer.ware != Ware::supply) return 1;
  return offer.index == kGrenade ? 0.25 : 0.5;
}

// How well a hero would stand: likely to win, and with little harm.
double strength(const HeroNotes& hero, const Outlook& outlook) {
  const double endurance = std::max(1, hero.endurance);
  return outlook.win + endurance / (endurance + std::max(0.0, outlook.harm));
}

// A new weapon will be practised too, if never quite as well as the old one.
void practise(HeroNotes& hero, int weapon) {
  constexpr int kShare = 7;
  const int best = *std::max_element(hero.percent.begin(), hero.percent.begin() + kMelees);
  if (weapon < kMelees) hero.percent[weapon] = std::max(hero.percent[weapon], best * kShare / 10);
}

// Strength pays a warrior more than a look at the next fights shows: his percent works on it for good.
double leaning(const HeroNotes& hero, const Offer& offer) {
  const bool strength = offer.ware == Ware::step && offer.index == kModifier;
  return hero.is(kWarrior) && strength ? 1.5 : 1;
}

// What a spell takes at least of the magic of an ordinary day to be of use.
int magicNeeded(const Offer& offer) {
  if (offer.ware != Ware::spell || offer.index == kHealing) return 0;
  if (offer.index == kBoom || offer.index == kLuck) return 4;
  return offer.index == kAutostart ? 3 : 2;
}

// Raises the hero's power until he can cast the spell on an ordinary day; answers what that costs.
int powerFor(HeroNotes& hero, const Offer& offer) {
  int price = 0;
  while (onAnOrdinaryDay(hero).magic < magicNeeded(offer) && hero.steps[kPower] < topStep(kPower)) {
    ++hero.steps[kPower];
    price += kShopStepPrice;
  }
  return price;
}

}  // namespace

int bullMagic(int magic, int armour) { return armour < 6 ? 2 : std::min(magic, 8); }

int Offer::place() const {
  switch (ware) {
    case Ware::step:
      return index;
    case Ware::weapon:
      return kStatistics + index;
    case Ware::spell:
      return kStatistics + kWeapons + index;
    case Ware::gear:
      return kStatistics + kWeapons + kSpells + index;
    case Ware::supply:
      break;
  }
  return kStatistics + kWeapons + kSpells + kGear + index;
}

void own(HeroNotes& hero, const Offer& offer) {
  switch (offer.ware) {
    case Ware::step:
      ++hero.steps[offer.index];
      break;
    case Ware::weapon:
      hero.owned[offer.index] = true;
      break;
    case Ware::spell:
      hero.spells[offer.index] = true;
      break;
    case Ware::gear:
      (offer.index == kMortar ? hero.mortar : hero.sucker) = true;
      break;
    case Ware::supply:
      (offer.index == kGrenade ? hero.grenades : hero.ammo) += kSupplyTable[offer.index].perPurchase;
      break;
  }
}

HeroNotes onAnOrdinaryDay(HeroNotes hero) {
  const int regeneration = hero.value(kRegeneration);
  const int magic = hero.fullMagic();
  if (hero.is(kMonk)) {
    hero.endurance = hero.fullEndurance();
    hero.magic = magic;
    return hero;
  }
  const int healed = hero.spells[kHealing] ? static_cast<int>(kHealingMean * std::min(magic, regeneration)) : 0;
  hero.endurance = std::min(hero.fullEndurance(), hero.fullEndurance() * 6 / 10 + regeneration + healed);
  hero.magic = hero.spells[kHealing] ? magic / 2 : std::min(magic, magic / 2 + regeneration);
  return hero;
}

Judgement::Judgement(const Knowledge& known, Foresight foresight, std::uint64_t seed)
    : known_(known), foresight_(std::move(foresight)) {
  const auto share = [&seed] { return static_cast<double>(nextNumber(seed) >> 11U) * 0x1p-53; };
  for (double& liking : taste_) liking = 0.75 + 0.5 * share();
  courage_ = 0.8 + 0.4 * share();
}

double Judgement::worth(const HeroNotes& hero, const Monster& monster, const Outlook& outlook) const {
  const double points = monster.last ? kVictory : pointsFor(hero.klasa, monster);
  const double fall = lifeCost(hero.lives) / courage_;
  double worth = outlook.win * points - (1 - outlook.win) * fall;
  worth -= 0.8 * outlook.grenadesUsed + 0.1 * outlook.ammoUsed;
  if (hero.is(kMonk)) return worth;
  const int regeneration = hero.value(kRegeneration);
  const double left = std::max(0.0, hero.endurance - outlook.harm) + regeneration;
  const double missing = std::max(0.0, hero.fullEndurance() - left) / hero.fullEndurance();
  const double magicMissing = std::max(0.0, hero.fullMagic() - outlook.magicLeft - regeneration);
  const double magicWorth = hero.spells[kHealing] ? kHealingMean / hero.fullEndurance() : 0.5 / hero.fullMagic();
  return worth - 2.5 * outlook.win * (missing * missing + 0.5 * magicMissing * magicWorth * missing);
}

Prospect Judgement::weigh(const HeroNotes& hero, const Monster& monster, const Plan& plan, int initiative) const {
  Prospect prospect{plan, foresight_(hero, monster, plan, initiative), 0};
  prospect.worth = worth(hero, monster, prospect.outlook);
  return prospect;
}

void Judgement::tryBetter(Prospect& best, const Plan& plan, const HeroNotes& hero, const Monster& monster,
                          int init) const {
  const Prospect other = weigh(hero, monster, plan, init);
  if (other.worth > best.worth) best = other;
}

// The two owned weapons that deal the most a round to that group, and the best staff of a caster.
std::vector<int> Judgement::bestWeapons(const HeroNotes& hero, const Monster& monster) const {
  std::array<std::pair<double, int>, 3> best{{{-1, -1}, {-1, -1}, {-1, -1}}};
  for (int i = 0; i < kWeapons; ++i) {
    if (!hero.owned[i]) continue;
    const Weapon& weapon = known_.weapons[i];
    double harm = pastArmour(blowOf(hero, weapon, i), monster.armour);
    if (weapon.melee && hero.is(kBerserker)) harm *= 2;
    if (weapon.cannon) harm /= 2;
    if (weapon.spread) harm *= monster.count;
    if (harm > best[0].first) {
      best[1] = best[0];
      best[0] = {harm, i};
    } else if (harm > best[1].first) {
      best[1] = {harm, i};
    }
    if (weapon.staff && harm > best[2].first) best[2] = {harm, i};
  }
  std::vector<int> found;
  for (const auto& [harm, i] : best) {
    if (i >= 0 && std::find(found.begin(), found.end(), i) == found.end()) found.push_back(i);
  }
  if (found.empty()) found.push_back(0);
  return found;
}

Prospect Judgement::plan(const HeroNotes& hero, const Monster& monster, int initiative) const {
  const auto weapons = bestWeapons(hero, monster);
  Prospect best = weigh(hero, monster, {.weapon = weapons[0]}, initiative);
  for (std::size_t i = 1; i < weapons.size(); ++i) {
    tryBetter(best, {.weapon = weapons[i]}, hero, monster, initiative);
  }
  const auto attempt = [&](auto change) {
    Plan plan = best.plan;
    change(plan);
    tryBetter(best, plan, hero, monster, initiative);
  };
  if (best.outlook.harm < 0.5 && best.outlook.win > 0.99) return best;
  if (!hero.is(kBerserker) && hero.magic >= 2) {
    if (hero.spells[kClass3A]) attempt([](Plan& plan) { plan.shield = true; });
    for (const int spell : {kDamage, kBullShots, kBoom}) {
      if (!hero.spells[spell]) continue;
      for (const int weapon : weapons) {
        attempt([&](Plan& plan) { plan.spell = spell, plan.weapon = weapon; });
      }
    }
    if (hero.spells[kLuck] && hero.magic >= 4) attempt([](Plan& plan) { plan.luck = true; });
  }
  for (int grenades = 1; grenades <= std::min(hero.grenades, 4); ++grenades) {
    attempt([grenades](Plan& plan) { plan.grenades = grenades; });
  }
  return best;
}

int Judgement::bestZone(const HeroNotes& hero, bool daring) const {
  std::array<double, kMonsters> worths{};
  for (int i = 0; i < kMonsters; ++i) worths[i] = plan(hero, known_.monsters[i], hero.value(kSpeed)).worth;
  std::array<double, kZoneCount> zones{};
  for (int zone = 0; zone < kZoneCount; ++zone) {
    for (int i = kZones[zone].OdPotwora - 1; i < kZones[zone].DoPotwora; ++i) {
      zones[zone] += drawChance(kZones[zone], i) * worths[i];
    }
  }
  const auto best = std::max_element(zones.begin(), zones.end());
  const bool gambles = daring && hero.lives > 1 && zones[kGamble] > kTemptation * *best;
  return gambles ? kGamble : static_cast<int>(best - zones.begin());
}

std::vector<Offer> Judgement::offers(const HeroNotes& hero, bool atCreation) const {
  std::vector<Offer> all;
  for (int i = 0; i < kLives; ++i) {
    if (hero.steps[i] < topStep(i)) all.push_back({Ware::step, i, atCreation ? kCreationStepPrice : kShopStepPrice});
  }
  for (int i = 0; i < kWeapons; ++i) {
    if (!hero.owned[i]) all.push_back({Ware::weapon, i, known_.weapons[i].price});
  }
  for (int i = 0; i < kSpells; ++i) {
    if (kSpellTable[i].forSale && !hero.spells[i]) all.push_back({Ware::spell, i, kSpellTable[i].price});
  }
  for (const int i : {kMortar, kSucker}) {
    const bool has = i == kMortar ? hero.mortar : hero.sucker;
    if (!has) all.push_back({Ware::gear, i, atCreation ? kGearTable[i].creationPrice : kGearTable[i].shopPrice});
  }
  if (hero.grenades < 4) all.push_back({Ware::supply, kGrenade, kSupplyPrice});
  if (hero.ammo < 10) all.push_back({Ware::supply, kAmmo, kSupplyPrice});
  return all;
}

// A monster at the edge of the hero's strength, with the plan that he would fight it by today.
struct Judgement::Sight {
  const Monster* monster;
  Plan plan;
  double power;
};

double Judgement::power(const HeroNotes& hero, const Sight& sight, const Plan& plan) const {
  const Outlook outlook = foresee(known_, hero, *sight.monster, plan, hero.value(kSpeed));
  return strength(hero, outlook) - 0.04 * outlook.grenadesUsed;
}

std::vector<Judgement::Sight> Judgement::frontier(const HeroNotes& hero) const {
  int edge = 0;
  while (edge < kMonsters - 1) {
    const Prospect prospect = plan(hero, known_.monsters[edge], hero.value(kSpeed));
    if (prospect.outlook.win < 0.85) break;
    edge += 2;
  }
  std::vector<Sight> sights;
  for (const int step : {-2, 0, 2, 4, 7, 10}) {
    const int i = std::clamp(edge + step, 0, kMonsters - 1);
    Sight sight{&known_.monsters[i], plan(hero, known_.monsters[i], hero.value(kSpeed)).plan, 0};
    sight.power = power(hero, sight, sight.plan);
    sights.push_back(sight);
  }
  return sights;
}

// The power against one monster with the best use of the spells that the hero owns.
double Judgement::powerWithSpells(const HeroNotes& hero, const Sight& sight) const {
  double best = 0;
  Plan plan = sight.plan;
  plan.shield = hero.spells[kClass3A];
  for (const int spell : {-1, +kDamage, +kBullShots, +kBoom}) {
    if (spell >= 0 && !hero.spells[spell]) continue;
    plan.spell = spell;
    best = std::max(best, power(hero, sight, plan));
  }
  plan.spell = -1;
  plan.luck = hero.spells[kLuck];
  return std::max(best, power(hero, sight, plan));
}

// The power against one monster once the offer is owned, by the old plan or one that uses it.
double Judgement::powerWith(const HeroNotes& hero, const Sight& sight, const Offer& offer) const {
  Plan plan = sight.plan;
  if (offer.ware == Ware::spell && offer.index == kClass3A) plan.shield = true;
  if (offer.ware == Ware::spell && offer.index == kLuck) plan.luck = true;
  if (offer.ware == Ware::spell && offer.index <= kBoom && offer.index >= kDamage) plan.spell = offer.index;
  if (offer.ware == Ware::weapon) plan.weapon = offer.index;
  if ((offer.ware == Ware::gear && offer.index == kMortar) || (offer.ware == Ware::supply && offer.index == kGrenade)) {
    plan.grenades = std::min(4, hero.grenades);
  }
  double best = power(hero, sight, plan);
  if (offer.ware == Ware::spell || offer.ware == Ware::weapon) best = std::max(best, power(hero, sight, sight.plan));
  if (offer.ware == Ware::step && offer.index == kPower) best = std::max(best, powerWithSpells(hero, sight));
  if (offer.ware == Ware::spell && offer.index == kAutostart && hero.magic >= 3) {
    HeroNotes faster = hero;
    faster.magic -= 3;
    const Outlook outlook = foresee(known_, faster, *sight.monster, sight.plan, hero.value(kSpeed) + 3);
    best = std::max(best, strength(faster, outlook));
  }
  return best;
}

std::vector<double> Judgement::gains(const HeroNotes& hero, const std::vector<Offer>& wares) const {
  const HeroNotes today = onAnOrdinaryDay(hero);
  const auto sights = frontier(today);
  std::vector<double> gains;
  for (const Offer& offer : wares) {
    HeroNotes later = hero;
    own(later, offer);
    if (offer.ware == Ware::weapon) practise(later, offer.index);
    const int price = offer.price + powerFor(later, offer);
    later = onAnOrdinaryDay(later);
    double gain = 0;
    for (const Sight& sight : sights) gain += powerWith(later, sight, offer) - sight.power;
    gains.push_back(gain * lastingShare(offer) * leaning(hero, offer) * taste_[offer.place()] / price);
  }
  return gains;
}

}  // namespace brolgan::simulation
