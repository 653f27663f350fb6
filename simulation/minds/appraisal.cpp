// What a careful player would give for the goods of the shop: how much stronger each would make him
// against the monsters at the edge of his strength.
#include <algorithm>
#include <array>
#include <optional>

#include "rules/weapons.h"
#include "simulation/minds/judgement.h"

namespace brolgan::simulation {

namespace {

// How often a good serves beside a step of a statistic, which works in every fight: a grenade once, shots in a few
// fights, the mortar only with grenades, the sucker only where a shot hardly pierces. Trials at one table led here:
// with a quarter for a grenade, a half for shots and gear counted in full, its owners won less than those without.
double lastingShare(const Offer& offer) {
  if (offer.ware == Ware::gear) return offer.index == kMortar ? 0.35 : 0.3;
  if (offer.ware == Ware::supply) return offer.index == kGrenade ? 0.08 : 0.2;
  return 1;
}

}  // namespace

// Whether what is left of a hero counts after every fight or only as far as he wins it.
enum class Judgement::Credit { always, whenWon };

namespace {

// A spell of one moment delays the end of a hopeless fight without turning it, so it counts only for fights that are
// won; healing and the armour of "Klasa III A" last.
Judgement::Credit creditOf(const Offer& offer) {
  const bool ofAMoment = offer.ware == Ware::spell && offer.index != kHealing && offer.index != kClass3A;
  return ofAMoment ? Judgement::Credit::whenWon : Judgement::Credit::always;
}

// How well a hero would stand: likely to win, and with little harm. Magic that could have healed is endurance too.
double strength(const HeroNotes& hero, const Outlook& outlook, Judgement::Credit credit) {
  constexpr double kHealedByMagic = 2.5;
  const double endurance = std::max(1, hero.endurance);
  const double spent = hero.spells[kHealing] ? kHealedByMagic * std::max(0.0, hero.magic - outlook.magicLeft) : 0;
  const double whole = endurance / (endurance + std::max(0.0, outlook.harm + spent));
  return outlook.win + (credit == Judgement::Credit::whenWon ? outlook.win : 1) * whole;
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

// Goods that only work together: a staff, a spell to cast beside its blows, and regeneration for a
// wizard. Each part is worth as much for its price as the whole.
struct Bundle {
  int staff = 0;
  int spell = 0;
  std::vector<std::size_t> parts;  // of the wares
  HeroNotes owner;                 // the hero with all of it, on an ordinary day
  int price = 0;

  void take(const std::vector<Offer>& wares, std::size_t part, int times = 1) {
    parts.push_back(part);
    for (int i = 0; i < times; ++i) own(owner, wares[part]);
    price += times * wares[part].price;
  }
};

constexpr std::array<int, 6> kStaffSpells = {kHealing, kDamage, kBullShots, kBoom, kClass3A, kLuck};

std::optional<std::size_t> findOffer(const std::vector<Offer>& wares, Ware ware, int index) {
  const auto found =
      std::find_if(wares.begin(), wares.end(), [&](const Offer& o) { return o.ware == ware && o.index == index; });
  if (found == wares.end()) return {};
  return static_cast<std::size_t>(found - wares.begin());
}

// The bundle of that staff and spell and so many steps of regeneration, without what the hero owns.
Bundle bundleOf(const HeroNotes& hero, const std::vector<Offer>& wares, int staff, int spell, int steps) {
  Bundle bundle{staff, spell, {}, hero, 0};
  if (const auto offer = findOffer(wares, Ware::weapon, staff)) bundle.take(wares, *offer);
  if (const auto offer = findOffer(wares, Ware::spell, spell)) bundle.take(wares, *offer);
  const auto regeneration = findOffer(wares, Ware::step, kRegeneration);
  if (steps > 0 && regeneration) bundle.take(wares, *regeneration, steps);
  practise(bundle.owner, staff);
  bundle.price += powerFor(bundle.owner, {Ware::spell, spell, 0});
  bundle.owner = onAnOrdinaryDay(bundle.owner);
  return bundle;
}

std::vector<Bundle> bundlesOf(const HeroNotes& hero, const std::vector<Offer>& wares) {
  std::vector<Bundle> bundles;
  if (hero.is(kBerserker)) return bundles;
  const int most = hero.is(kWizard) ? topStep(kRegeneration) - hero.steps[kRegeneration] : 0;
  for (int staff = kFirstStaff; staff <= kLastStaff; ++staff) {
    for (const int spell : kStaffSpells) {
      for (int steps = 0; steps <= most; ++steps) {
        Bundle bundle = bundleOf(hero, wares, staff, spell, steps);
        const bool alone = bundle.parts.size() == 1 && !hero.owned[staff];
        if (!bundle.parts.empty() && !alone) bundles.push_back(std::move(bundle));
      }
    }
  }
  return bundles;
}

Plan planWith(const Bundle& bundle, Plan plan) {
  plan.weapon = bundle.staff;
  const bool attacks = bundle.spell == kDamage || bundle.spell == kBullShots || bundle.spell == kBoom;
  plan.spell = attacks ? bundle.spell : -1;
  plan.luck = bundle.spell == kLuck;
  plan.shield = bundle.spell == kClass3A;
  return plan;
}

}  // namespace

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
  const Monster* monster = nullptr;
  Plan plan;
  double power = 0;
  double powerWhenWon = 0;

  [[nodiscard]] double of(Credit credit) const { return credit == Credit::whenWon ? powerWhenWon : power; }
};

double Judgement::power(const HeroNotes& hero, const Sight& sight, const Plan& plan, Credit credit) const {
  const Outlook outlook = reckoning_(hero, *sight.monster, plan, hero.value(kSpeed));
  return strength(hero, outlook, credit) - 0.04 * outlook.grenadesUsed;
}

// Heroes grow, so the edge is looked for from where it was found last.
std::vector<Judgement::Sight> Judgement::frontier(const HeroNotes& hero) {
  while (edge_ < kMonsters - 1) {
    const Prospect prospect = plan(hero, known_.monsters[edge_], hero.value(kSpeed));
    if (prospect.outlook.win < 0.85) break;
    edge_ += 2;
  }
  std::vector<Sight> sights;
  for (const int step : {-2, 0, 2, 4, 7, 10}) {
    const int i = std::clamp(edge_ + step, 0, kMonsters - 1);
    const Monster& monster = known_.withTheKingLast(i);
    Sight sight{&monster, plan(hero, monster, hero.value(kSpeed)).plan};
    sight.power = power(hero, sight, sight.plan, Credit::always);
    sight.powerWhenWon = power(hero, sight, sight.plan, Credit::whenWon);
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
    best = std::max(best, power(hero, sight, plan, Credit::always));
  }
  plan.spell = -1;
  plan.luck = hero.spells[kLuck];
  return std::max(best, power(hero, sight, plan, Credit::always));
}

// The power against one monster once the offer is owned, by the old plan or one that uses it.
double Judgement::powerWith(const HeroNotes& hero, const Sight& sight, const Offer& offer) const {
  const Credit credit = creditOf(offer);
  Plan plan = sight.plan;
  if (offer.ware == Ware::spell && offer.index == kClass3A) plan.shield = true;
  if (offer.ware == Ware::spell && offer.index == kLuck) plan.luck = true;
  if (offer.ware == Ware::spell && offer.index <= kBoom && offer.index >= kDamage) plan.spell = offer.index;
  if (offer.ware == Ware::weapon) plan.weapon = offer.index;
  if ((offer.ware == Ware::gear && offer.index == kMortar) || (offer.ware == Ware::supply && offer.index == kGrenade)) {
    plan.grenades = std::min(4, hero.grenades);
  }
  double best = power(hero, sight, plan, credit);
  if (offer.ware == Ware::weapon) best = std::max(best, sight.power);
  if (offer.ware == Ware::spell) best = std::max(best, power(hero, sight, sight.plan, credit));
  if (offer.ware == Ware::step && offer.index == kPower) best = std::max(best, powerWithSpells(hero, sight));
  if (offer.ware == Ware::spell && offer.index == kAutostart && hero.magic >= 3) {
    HeroNotes faster = hero;
    faster.magic -= 3;
    const Outlook outlook = reckoning_(faster, *sight.monster, sight.plan, hero.value(kSpeed) + 3);
    best = std::max(best, strength(hero, outlook, credit));
  }
  return best;
}

void Judgement::creditBundles(const HeroNotes& hero, const std::vector<Offer>& wares, const std::vector<Sight>& sights,
                              int reach, std::vector<double>& gains) const {
  for (const Bundle& bundle : bundlesOf(hero, wares)) {
    if (bundle.price > reach) continue;
    double gain = 0;
    for (const Sight& sight : sights) {
      gain += power(bundle.owner, sight, planWith(bundle, sight.plan), Credit::always) - sight.power;
    }
    for (const std::size_t part : bundle.parts) {
      gains[part] = std::max(gains[part], gain * taste_[wares[part].place()] / bundle.price);
    }
  }
}

std::vector<double> Judgement::gains(const HeroNotes& hero, const std::vector<Offer>& wares, int reach) {
  const HeroNotes today = onAnOrdinaryDay(hero);
  const auto sights = frontier(today);
  std::vector<double> gains;
  for (const Offer& offer : wares) {
    if (offer.price > reach) {
      gains.push_back(0);
      continue;
    }
    HeroNotes later = hero;
    own(later, offer);
    if (offer.ware == Ware::weapon) practise(later, offer.index);
    const int price = offer.price + powerFor(later, offer);
    later = onAnOrdinaryDay(later);
    double gain = 0;
    for (const Sight& sight : sights) gain += powerWith(later, sight, offer) - sight.of(creditOf(offer));
    gains.push_back(gain * lastingShare(offer) * leaning(hero, offer) * taste_[offer.place()] / price);
  }
  creditBundles(hero, wares, sights, reach, gains);
  return gains;
}

}  // namespace brolgan::simulation
