#include "simulation/forecasts/course.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cmath>

#include "rules/battle.h"

namespace brolgan::simulation {

namespace {

constexpr double kAmmoMean = 3.5;
constexpr double kHealingMean = 3.5;
// Healing in the midst of blows comes too late at times, so less of it is reckoned with.
constexpr double kHealingBeside = 2.5;
constexpr double kHealingDoubt = 8;
// The shield's one throw, in its worse and its better half.
constexpr double kPoorShield = 3;
constexpr double kGoodShield = 8;
constexpr int kShieldRounds = 7;
constexpr double kGrenadeMean = 15.5;
constexpr double kGrenadeVariance = 70;
constexpr double kGrenadeFaces = 30;
constexpr double kMortarBonus = 8;
constexpr double kMishap = 1.0 / 58;
constexpr double kSuckerMean = 2;
// So many spreads away nothing happens by chance any more.
constexpr double kCertain = 4;
// No hero outlives so much.
constexpr double kDeadly = 150;

bool has(const Situation& at, int flag) { return (at.flags & flag) != 0; }

double mortarBonus(const Situation& at) { return has(at, kHasMortar) ? kMortarBonus : 0; }

// The face of a grenade from which on it fells the whole group at once.
double faceNeeded(const Monster& monster, const Situation& at) {
  return monster.life + monster.armour - mortarBonus(at);
}

Blow anyGrenade(const Situation& at) { return {kGrenadeMean + mortarBonus(at), kGrenadeVariance}; }

Blow firstGrenade(const Monster& monster, const Situation& at) {
  if (at.grenade == Hinge::open) return anyGrenade(at);
  const double edge = faceNeeded(monster, at) - 0.5;
  const double low = at.grenade == Hinge::poor ? 1 : edge;
  const double high = at.grenade == Hinge::poor ? edge : kGrenadeFaces;
  return {(low + high) / 2 + mortarBonus(at), (high - low) * (high - low) / 12};
}

// What was dealt to the target and to all, and what was suffered, round by round.
class Course {
 public:
  Course(const Knowledge& known, const Situation& at)
      : at_(at),
        monster_(known.monsters[static_cast<std::size_t>(at.monster)]),
        weapon_(known.weapons[static_cast<std::size_t>(at.weapon)]),
        grenade_(firstGrenade(monster_, at)),
        magic_(at.magic) {
    const Striker striker{at.klasa, at.modifier, at.speed, at.percent};
    blow_ = blowOf(striker, weapon_);
    blowSpread_ = spreadOf(blow_);
    growth_ = weapon_.melee ? growthOf(striker) : 0;
    regain_ = at.klasa == kWizard ? wizardRegain(kLadderNumbers[kRegeneration][at.regeneration - 1]).value() : 0;
    bare_ = strikeOf(at.armour);
    covered_ =
        has(at, kShielded) ? strikeOf(at.armour + (at.shield == Hinge::good ? kGoodShield : kPoorShield)) : bare_;
  }

  Toll run() {
    if (has(at_, kMonstersFirst)) suffer(monster_.count, bare_);
    int round = 1;
    for (; round <= kHopelessRounds; ++round) {
      if (cast()) attack();
      throwGrenade();
      const double standing = countStanding();
      if (standing < 0.02) break;
      answer(standing, round);
      if (harm_ > kDeadly) break;
    }
    return conclude(round);
  }

 private:
  struct Strike {
    double mean = 0;
    double variance = 0;
  };

  [[nodiscard]] Strike strikeOf(double armour) const {
    const double mean = pastArmour({monster_.attack.mean, monster_.attack.variance}, armour);
    return {mean, mean > 0 ? monster_.attack.variance : 0};
  }

  void suffer(double strikes, const Strike& strike) {
    harm_ += strikes * strike.mean;
    harmVariance_ += strikes * strike.variance;
  }

  // Casts what the plan says; answers whether the weapon may be used in the same round.
  bool cast() {
    if (at_.klasa == kBerserker) return true;
    if (has(at_, kShielded) && shield_ == 0 && magic_ >= 2) {
      magic_ -= 2;
      shield_ = kShieldRounds;
      return weapon_.staff;
    }
    if (has(at_, kLucky) && magic_ >= 4) {
      magic_ -= 4;
      ++luck_;
      return weapon_.staff;
    }
    if (castAttack()) return weapon_.staff;
    healBesideStaff();
    return true;
  }

  bool castAttack() {
    if (at_.spell == kDamage && magic_ >= 2) {
      magic_ -= 2;
      hitTarget({10.5, 8}, monster_.armour);
    } else if (at_.spell == kBoom && magic_ >= 4) {
      magic_ -= 4;
      hitTarget({31, 140}, monster_.armour);
    } else if (at_.spell == kBullShots && magic_ >= 2) {
      const int used = bullMagic(static_cast<int>(magic_), lifeOfLast(), monster_.armour);
      magic_ -= used;
      hitAll({10.5 + (used - 2) * 2, 8}, monster_.armour);
    } else {
      return false;
    }
    return true;
  }

  // A staff strikes in the same round, so healing costs its bearer nothing but magic.
  void healBesideStaff() {
    if (!has(at_, kHeals) || magic_ < 1 || harm_ < kHealingMean) return;
    magic_ -= 1;
    harm_ -= kHealingBeside;
    harmVariance_ += kHealingDoubt;
  }

  void deal(double harm, double variance) {
    dealt_ += harm;
    variance_ += variance;
    ++attacks_;
  }

  void hitTarget(const Blow& blow, double armour) { deal(pastArmour(blow, armour), blow.variance); }

  void hitAll(const Blow& blow, double armour) {
    toAll_ += pastArmour(blow, armour);
    variance_ += blow.variance;
  }

  void attack() {
    if (weapon_.melee) {
      for (int i = 0; i < (at_.klasa == kBerserker ? 2 : 1); ++i) {
        deal(pastArmour(blow_.mean - monster_.armour, blowSpread_), blow_.variance);
        blow_.mean += growth_;
      }
      return;
    }
    if (weapon_.cannon) {
      loaded_ = !loaded_;
      if (!loaded_) return;
    }
    shoot();
  }

  void shoot() {
    Blow shot = blow_;
    if (ammo_ < at_.ammo) {
      ++ammo_;
      shot.mean += kAmmoMean;
      shot.variance += 2.45;
    }
    ++shots_;
    const int onTarget = monster_.count == 1 ? shots_ : std::min(shots_, 2);
    const double armour = std::max(0.0, monster_.armour - (has(at_, kHasSucker) ? kSuckerMean * onTarget : 0));
    if (weapon_.spread) {
      hitAll(shot, armour);
    } else {
      hitTarget(shot, armour);
    }
  }

  void throwGrenade() {
    if (grenadesUsed_ >= at_.grenades) return;
    ++grenadesUsed_;
    hitAll(grenadesUsed_ == 1 ? grenade_ : anyGrenade(at_), monster_.armour);
    const double mishap = std::max(0.0, kGrenadeMean - at_.armour);
    suffer(kMishap, {mishap, mishap * mishap + kGrenadeVariance});
  }

  // How many of the group are likely to stand after what was dealt so far.
  double countStanding() {
    const double life = monster_.life - toAll_;
    const double spread = std::sqrt(variance_ + 1);
    lastStands_ = 0;
    if (life <= -2 * spread) return 0;
    // What struck all of them equally fells all or none.
    if (attacks_ == 0 || life <= 0) {
      lastStands_ = 1 - below((dealt_ + 0.5 - life) / spread);
      return monster_.count * lastStands_;
    }
    const double each = dealt_ / attacks_;
    const double waste = weapon_.fire ? monster_.armour : std::max(each / 2, each - life);
    return countFallingSingly((dealt_ + 0.5 - life) / spread, (life + waste) / spread);
  }

  // How many stand when one after the other falls: the first by so many spreads, each further one by less.
  double countFallingSingly(double margin, double step) {
    double standing = 0;
    for (int left = monster_.count; left > 0; --left, margin -= step) {
      if (margin >= kCertain) continue;
      if (margin <= -kCertain) {
        lastStands_ = 1;
        return standing + left;
      }
      lastStands_ = 1 - below(margin);
      standing += lastStands_;
    }
    return standing;
  }

  void answer(double standing, int round) {
    if (shield_ > 0) --shield_;
    const Strike& strike = shield_ > 0 ? covered_ : bare_;
    double strikes = standing;
    if (luck_ > 0 && strike.mean > 0) {
      const double taken = std::min(strikes, luck_);
      strikes -= taken;
      luck_ -= taken;
    }
    suffer(strikes, strike);
    strikeMean_ = strike.mean;
    sumStanding_ += standing;
    sumLast_ += lastStands_;
    sumLastSquared_ += (2 * round - 1) * lastStands_;
    if (at_.power > 0) magic_ = std::min<double>(magic_ + regain_, at_.power);
  }

  [[nodiscard]] Toll conclude(int round) const {
    const double timeVariance = std::max(0.0, sumLastSquared_ - sumLast_ * sumLast_);
    const double crowd = sumLast_ > 0 ? sumStanding_ / sumLast_ : 0;
    const double spread = std::sqrt(harmVariance_ + strikeMean_ * crowd * strikeMean_ * crowd * timeVariance + 0.01);
    Toll toll;
    toll.harm = static_cast<float>(harm_);
    toll.spread = static_cast<float>(spread);
    toll.magicUsed = static_cast<float>(at_.magic - magic_);
    toll.grenadesUsed = static_cast<float>(grenadesUsed_);
    toll.ammoUsed = static_cast<float>(ammo_);
    toll.rounds = static_cast<float>(sumLast_ + 1);
    toll.hopeless = round > kHopelessRounds;
    return toll;
  }

  // What is left of the front monster's life.
  [[nodiscard]] int lifeOfLast() const { return std::max(1, static_cast<int>(std::lround(monster_.life - toAll_))); }

  const Situation& at_;
  const Monster& monster_;
  const Weapon& weapon_;
  Blow grenade_;
  double magic_;
  Blow blow_;
  double blowSpread_ = 0;
  double growth_ = 0;
  int regain_ = 0;
  Strike bare_;
  Strike covered_;
  double dealt_ = 0;
  double toAll_ = 0;
  double variance_ = 0;
  int attacks_ = 0;
  int shots_ = 0;
  int ammo_ = 0;
  int grenadesUsed_ = 0;
  int shield_ = 0;
  double luck_ = 0;
  bool loaded_ = false;
  double harm_ = 0;
  double harmVariance_ = 0;
  double strikeMean_ = 0;
  double lastStands_ = 0;
  double sumStanding_ = 0;
  double sumLast_ = 0;
  double sumLastSquared_ = 0;
};

std::int16_t small(int value) { return static_cast<std::int16_t>(value); }

void raiseFlag(Situation& at, int flag) { at.flags = small(at.flags | flag); }

void takeWeapon(Situation& at, const HeroNotes& hero, const Weapon& weapon, int index) {
  at.weapon = small(index);
  if (weapon.melee) {
    at.percent = small(hero.percent[static_cast<std::size_t>(index)]);
    at.modifier = small(hero.steps[kModifier]);
    if (hero.is(kWitcher)) at.speed = small(hero.steps[kSpeed]);
  } else {
    at.ammo = small(hero.ammo);
    if (hero.sucker) raiseFlag(at, kHasSucker);
  }
}

// Spells that the hero can never pay for in this fight are left out, and magic that nothing takes.
void takeSpells(Situation& at, const HeroNotes& hero, const Plan& plan, bool staff) {
  if (hero.is(kBerserker)) return;
  const int magic = hero.is(kWizard) ? hero.fullMagic() : hero.magic;
  if (plan.shield && magic >= 2) raiseFlag(at, kShielded);
  if (plan.luck && magic >= 4) raiseFlag(at, kLucky);
  if (plan.spell >= 0 && magic >= (plan.spell == kBoom ? 4 : 2)) at.spell = small(plan.spell);
  if (staff && hero.spells[kHealing]) raiseFlag(at, kHeals);
  if (at.spell < 0 && !has(at, kShielded | kLucky | kHeals)) return;
  at.magic = small(hero.magic);
  if (hero.is(kWizard)) {
    at.regeneration = small(hero.steps[kRegeneration]);
    at.power = small(hero.fullMagic());
  }
}

void addShields(Branches& branches, const Situation& situation, double chance) {
  if (!has(situation, kShielded)) {
    branches.add(situation, chance);
    return;
  }
  Situation hinged = situation;
  hinged.shield = Hinge::poor;
  branches.add(hinged, chance / 2);
  hinged.shield = Hinge::good;
  branches.add(hinged, chance / 2);
}

}  // namespace

Situation situationOf(const Knowledge& known, const HeroNotes& hero, const Monster& monster, const Plan& plan,
                      int initiative) {
  Situation at;
  const Weapon& weapon = known.weapons[static_cast<std::size_t>(plan.weapon)];
  at.monster = small(monster.number);
  at.klasa = small(hero.klasa);
  at.armour = small(hero.value(kArmour));
  at.grenades = small(std::min(plan.grenades, hero.grenades));
  if (at.grenades > 0 && hero.mortar) raiseFlag(at, kHasMortar);
  if (initiative <= monster.speed) raiseFlag(at, kMonstersFirst);
  takeWeapon(at, hero, weapon, plan.weapon);
  takeSpells(at, hero, plan, weapon.staff);
  return at;
}

std::size_t hashOf(const Situation& situation) {
  std::uint64_t hash = 0;
  for (const std::uint64_t word : std::bit_cast<std::array<std::uint64_t, 4>>(situation)) {
    hash = (hash ^ word) * 0x9E3779B97F4A7C15U;
    hash ^= hash >> 32U;
  }
  hash *= 0xBF58476D1CE4E5B9U;
  return static_cast<std::size_t>(hash ^ (hash >> 32U));
}

Toll reckon(const Knowledge& known, const Situation& situation) { return Course(known, situation).run(); }

Branches branchesOf(const Knowledge& known, const Situation& situation) {
  Branches branches;
  const double needed = faceNeeded(known.monsters[static_cast<std::size_t>(situation.monster)], situation);
  if (situation.grenades == 0 || needed <= 1 || needed >= kGrenadeFaces) {
    addShields(branches, situation, 1);
    return branches;
  }
  const double weak = (needed - 1) / (kGrenadeFaces - 1);
  Situation hinged = situation;
  hinged.grenade = Hinge::poor;
  addShields(branches, hinged, weak);
  hinged.grenade = Hinge::good;
  addShields(branches, hinged, 1 - weak);
  return branches;
}

}  // namespace brolgan::simulation
