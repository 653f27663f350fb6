#include "simulation/minds/judgement.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

#include "rules/battle.h"
#include "rules/weapons.h"

namespace brolgan::simulation {

namespace {

constexpr double kHealingMean = 3.5;
constexpr double kVictory = 90;
// So many times his endurance would be taken from a hero whom nothing can save.
constexpr double kSuicide = 4;

double lifeCost(int lives) {
  if (lives <= 1) return 40;
  if (lives == 2) return 14;
  return lives == 3 ? 8 : 5;
}

// How much a hero still gains by points: nothing when all that matters is bought.
double hunger(const HeroNotes& hero) {
  constexpr double kSated = 30;
  int missing = 0;
  for (int i = 0; i < kLives; ++i) missing += kShopStepPrice * (topStep(i) - hero.steps[i]);
  return std::min(1.0, missing / kSated);
}

// What beating a monster is worth to a hero; a gambler cannot save and leaves with what one visit takes.
double prize(const HeroNotes& hero, const Monster& monster) {
  if (monster.last) return kVictory;
  constexpr double kOneVisit = 9;
  const double points = monster.points[hero.klasa];
  return hunger(hero) * (hero.is(kGambler) ? std::min(points, kOneVisit) : points);
}

// Only with a life to spare, and hardly wounded.
bool canGamble(const HeroNotes& hero) { return hero.lives > 1 && hero.endurance * 10 >= hero.fullEndurance() * 9; }

}  // namespace

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
  if (hero.is(kWizard)) hero.magic = std::min(magic, hero.magic + 3 * wizardRegain(regeneration).value());
  return hero;
}

// By the number of rivals. Trials at one table showed that a bolder player wins about as often as a careful one.
Temper sensible(int rivals) {
  constexpr std::array kCourage = {1.1, 1.3, 2.5, 27.0};
  constexpr std::array kCare = {2.5, 2.5, 1.4, 0.6};
  constexpr double kTemptation = 0.61;
  constexpr int kMood = 2;
  const auto table = static_cast<std::size_t>(rivals);
  return {kCourage.at(table), kCare.at(table), kTemptation, kMood};
}

Judgement::Judgement(const Knowledge& known, Foresight foresight, Foresight reckoning, const Temper& temper,
                     std::uint64_t seed)
    : known_(known), foresight_(std::move(foresight)), reckoning_(std::move(reckoning)) {
  const auto share = [&seed] { return static_cast<double>(nextNumber(seed) >> 11U) * 0x1p-53; };
  for (double& liking : taste_) liking = 0.75 + 0.5 * share();
  courage_ = temper.courage * (0.8 + 0.4 * share());
  care_ = temper.care;
  temptation_ = temper.temptation;
}

double Judgement::worth(const HeroNotes& hero, const Monster& monster, const Outlook& outlook) const {
  const double points = prize(hero, monster);
  const double fall = lifeCost(hero.lives) / courage_;
  double worth = outlook.win * points - (1 - outlook.win) * fall;
  worth -= 0.8 * outlook.grenadesUsed + 0.1 * outlook.ammoUsed;
  if (hero.is(kMonk)) return worth;
  const int regeneration = hero.value(kRegeneration);
  const double left = std::max(0.0, hero.endurance - outlook.harm) + regeneration;
  const double missing = std::max(0.0, hero.fullEndurance() - left) / hero.fullEndurance();
  const double magicMissing = std::max(0.0, hero.fullMagic() - outlook.magicLeft - regeneration);
  const double magicWorth = hero.spells[kHealing] ? kHealingMean / hero.fullEndurance() : 0.5 / hero.fullMagic();
  return worth - care_ * outlook.win * (missing * missing + 0.5 * magicMissing * magicWorth * missing);
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
  const bool walk = best.outlook.harm < 0.5 && best.outlook.win > 0.99;
  const bool suicide = best.outlook.win < 0.01 && best.outlook.harm > kSuicide * hero.endurance;
  if (walk || suicide) return best;
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
  // Another grenade is only thought of when the one before it was worth throwing.
  for (int grenades = 1; grenades <= std::min(hero.grenades, 4) && best.plan.grenades == grenades - 1; ++grenades) {
    attempt([grenades](Plan& plan) { plan.grenades = grenades; });
  }
  return best;
}

// What each zone is worth to a hero, found out no further than is needed to see that it is not the best.
class Judgement::Map {
 public:
  Map(const Judgement& judgement, const HeroNotes& hero) : judgement_(judgement), hero_(hero) {
    for (int i = 0; i < kMonsters; ++i) {
      const Monster& monster = judgement.known_.monsters[i];
      worths_[i] = std::max(0.0, prize(hero, monster));
    }
  }

  // What the zone is worth; of one that is worth less than that, only that it is less.
  double worthOf(int zone, double least) {
    const Strefa& bounds = kZones[zone];
    double most = sum(bounds);
    for (int i = bounds.DoPotwora - 1; i >= bounds.OdPotwora - 1 && most >= least; --i) {
      if (std::exchange(seen_[i], true)) continue;
      worths_[i] = judgement_.plan(hero_, judgement_.known_.monsters[i], hero_.value(kSpeed)).worth;
      most = sum(bounds);
    }
    return most;
  }

 private:
  [[nodiscard]] double sum(const Strefa& bounds) const {
    double sum = 0;
    for (int i = bounds.OdPotwora - 1; i < bounds.DoPotwora; ++i) sum += drawChance(bounds, i) * worths_[i];
    return sum;
  }

  const Judgement& judgement_;
  const HeroNotes& hero_;
  std::array<double, kMonsters> worths_{};  // no less than the worth of a monster that was not looked at yet
  std::array<bool, kMonsters> seen_{};
};

// The later zones come first, since they promise more and show soon when they are too strong.
int Judgement::bestZone(const HeroNotes& hero, bool daring) const {
  constexpr std::array<int, kZoneCount> kOrder = {3, 4, 5, 6, 7, 8, 9, kThroneZone, 2, 1, 0, kPandoria};
  Map map(*this, hero);
  int best = 0;
  double most = -std::numeric_limits<double>::infinity();
  const auto consider = [&](int zone) {
    const double worth = map.worthOf(zone, most);
    if (worth < most || (worth == most && zone > best)) return;
    most = worth;
    best = zone;
  };
  for (const int zone : kOrder) consider(zone);
  const bool gambles = daring && canGamble(hero) && map.worthOf(kPandoria, temptation_ * most) > temptation_ * most;
  return gambles ? kPandoria : best;
}

}  // namespace brolgan::simulation
