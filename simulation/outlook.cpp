#include "simulation/outlook.h"

#include <algorithm>
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
constexpr double kSuckerMean = 2;

Blow anyGrenade(const HeroNotes& hero) { return {kGrenadeMean + (hero.mortar ? kMortarBonus : 0), kGrenadeVariance}; }

Blow grenadeBetween(double low, double high, double bonus) {
  return {(low + high) / 2 + bonus, (high - low) * (high - low) / 12};
}

// The throws on which a whole fight may hang.
struct Luck {
  Blow grenade;
  double shield = 0;
};

// The course of one fight in means: what was dealt to the target and to all, what was suffered.
class Course {
 public:
  Course(const Knowledge& known, const HeroNotes& hero, const Monster& monster, const Plan& plan, const Luck& luck)
      : hero_(hero),
        grenade_(luck.grenade),
        monster_(monster),
        plan_(plan),
        weapon_(known.weapons[static_cast<std::size_t>(plan.weapon)]),
        blow_(blowOf(hero, weapon_, plan.weapon)),
        magic_(hero.magic),
        grenades_(std::min(plan.grenades, hero.grenades)) {
    bare_ = strikeOf(hero.value(kArmour));
    covered_ = plan.shield ? strikeOf(hero.value(kArmour) + luck.shield) : bare_;
  }

  Outlook run(bool monstersFirst) {
    if (monstersFirst) suffer(monster_.count, bare_);
    int round = 1;
    for (; round <= kHopelessRounds; ++round) {
      const bool attacks = cast();
      if (attacks) attack();
      throwGrenade();
      const double standing = countStanding();
      if (standing < 0.02) break;
      answer(standing, round);
      if (harm_ > 4.0 * hero_.endurance + 40) break;
    }
    return conclude(round);
  }

 private:
  struct Strike {
    double mean = 0;
    double variance = 0;
  };

  [[nodiscard]] Strike strikeOf(double armour) const {
    const Blow attack{monster_.attack.mean, monster_.attack.variance};
    const double mean = pastArmour(attack, armour);
    return {mean, mean > 0 ? attack.variance : 0};
  }

  void suffer(double strikes, const Strike& strike) {
    harm_ += strikes * strike.mean;
    harmVariance_ += strikes * strike.variance;
  }

  // Casts what the plan says; answers whether the weapon may be used in the same round.
  bool cast() {
    if (hero_.is(kBerserker)) return true;
    if (plan_.shield && shield_ == 0 && magic_ >= 2) {
      magic_ -= 2;
      shield_ = kShieldRounds;
      return weapon_.staff;
    }
    if (plan_.luck && luck_ == 0 && magic_ >= 4) {
      magic_ -= 4;
      ++luck_;
      return weapon_.staff;
    }
    if (castAttack()) return weapon_.staff;
    healBesideStaff();
    return true;
  }

  bool castAttack() {
    const double armour = monster_.armour;
    if (plan_.spell == kDamage && magic_ >= 2) return pay(2), hitTarget({10.5, 8 * 1.0}, armour), true;
    if (plan_.spell == kBoom && magic_ >= 4) return pay(4), hitTarget({31, 140}, armour), true;
    if (plan_.spell == kBullShots && magic_ >= 2) {
      const int used = bullMagic(static_cast<int>(magic_), lifeOfLast(), monster_.armour);
      magic_ -= used;
      hitAll({10.5 + (used - 2) * 2, 8}, armour);
      return true;
    }
    return false;
  }

  // A staff strikes in the same round, so healing costs its bearer nothing but magic.
  void healBesideStaff() {
    if (!weapon_.staff || !hero_.spells[kHealing] || magic_ < 1 || harm_ < kHealingMean) return;
    magic_ -= 1;
    harm_ -= kHealingBeside;
    harmVariance_ += kHealingDoubt;
  }

  void pay(double cost) { magic_ -= cost; }

  void hitTarget(const Blow& blow, double armour) {
    const double mean = pastArmour(blow, armour);
    dealt_ += mean;
    variance_ += blow.variance;
    ++attacks_;
  }

  void hitAll(const Blow& blow, double armour) {
    toAll_ += pastArmour(blow, armour);
    variance_ += blow.variance;
  }

  void attack() {
    if (weapon_.melee) {
      hitTarget(blow_, monster_.armour);
      if (hero_.is(kBerserker)) hitTarget(blow_, monster_.armour);
      return;
    }
    if (weapon_.cannon && (loaded_ = !loaded_, !loaded_)) return;
    shoot();
  }

  void shoot() {
    Blow shot = blow_;
    if (ammo_ < hero_.ammo) {
      ++ammo_;
      shot.mean += kAmmoMean;
      shot.variance += 2.45;
    }
    ++shots_;
    const int onTarget = monster_.count == 1 ? shots_ : std::min(shots_, 2);
    const double armour = std::max(0.0, monster_.armour - (hero_.sucker ? kSuckerMean * onTarget : 0));
    if (weapon_.spread) {
      hitAll(shot, armour);
    } else {
      hitTarget(shot, armour);
    }
  }

  void throwGrenade() {
    if (grenadesUsed_ >= grenades_) return;
    ++grenadesUsed_;
    hitAll(grenadesUsed_ == 1 ? grenade_ : anyGrenade(hero_), monster_.armour);
  }

  // How many of the group are likely to stand after what was dealt so far.
  double countStanding() {
    const double life = monster_.life - toAll_;
    const double spread = std::sqrt(variance_ + 1);
    const double each = attacks_ > 0 ? dealt_ / attacks_ : 0;
    const double waste = weapon_.fire ? monster_.armour : std::max(each / 2, each - std::max(life, 0.0));
    // What struck all of them equally fells all or none.
    const bool alike = attacks_ == 0 || life <= 0;
    double standing = 0;
    for (int k = 1; k <= monster_.count; ++k) {
      const double needed = alike ? life : k * life + (k - 1) * waste;
      lastStands_ = life <= -2 * spread ? 0 : 1 - below((dealt_ + 0.5 - needed) / spread);
      standing += lastStands_;
    }
    return standing;
  }

  void answer(double standing, int round) {
    if (shield_ > 0) --shield_;
    const Strike& strike = shield_ > 0 ? covered_ : bare_;
    double strikes = standing;
    if (luck_ > 0 && strike.mean > 0) {
      strikes = std::max(0.0, strikes - 1);
      luck_ = 0;
    }
    suffer(strikes, strike);
    strikeMean_ = strike.mean;
    sumStanding_ += standing;
    sumLast_ += lastStands_;
    sumLastSquared_ += (2 * round - 1) * lastStands_;
    if (hero_.is(kWizard)) {
      magic_ = std::min<double>(magic_ + wizardRegain(hero_.value(kRegeneration)).value(), hero_.fullMagic());
    }
  }

  [[nodiscard]] Outlook conclude(int round) const {
    const double timeVariance = std::max(0.0, sumLastSquared_ - sumLast_ * sumLast_);
    const double crowd = sumLast_ > 0 ? sumStanding_ / sumLast_ : 0;
    const double spread = std::sqrt(harmVariance_ + strikeMean_ * crowd * strikeMean_ * crowd * timeVariance + 0.01);
    const double win = round > kHopelessRounds ? 0 : below((hero_.endurance - 0.5 - harm_) / spread);
    return {win, harm_, magic_, static_cast<double>(grenadesUsed_), static_cast<double>(ammo_), sumLast_ + 1};
  }

  // What is left of the front monster's life.
  [[nodiscard]] int lifeOfLast() const { return std::max(1, static_cast<int>(std::lround(monster_.life - toAll_))); }

  const HeroNotes& hero_;
  Blow grenade_;
  const Monster& monster_;
  const Plan& plan_;
  const Weapon& weapon_;
  Blow blow_;
  Strike bare_;
  Strike covered_;
  double magic_;
  int grenades_;
  double dealt_ = 0;
  double toAll_ = 0;
  double variance_ = 0;
  int attacks_ = 0;
  int shots_ = 0;
  int ammo_ = 0;
  int grenadesUsed_ = 0;
  int shield_ = 0;
  int luck_ = 0;
  bool loaded_ = false;
  double harm_ = 0;
  double harmVariance_ = 0;
  double strikeMean_ = 0;
  double lastStands_ = 0;
  double sumStanding_ = 0;
  double sumLast_ = 0;
  double sumLastSquared_ = 0;
};

// What is to be expected when the first outlook comes true with that chance and else the second.
Outlook mixed(const Outlook& first, double chance, const Outlook& second) {
  const auto mix = [chance](double a, double b) { return chance * a + (1 - chance) * b; };
  return {mix(first.win, second.win),
          mix(first.harm, second.harm),
          mix(first.magicLeft, second.magicLeft),
          mix(first.grenadesUsed, second.grenadesUsed),
          mix(first.ammoUsed, second.ammoUsed),
          mix(first.rounds, second.rounds)};
}

}  // namespace

Blow blowOf(const HeroNotes& hero, const Weapon& weapon, int weaponIndex) {
  if (!weapon.melee) return {weapon.damage.mean, weapon.damage.variance};
  const Throw& strength = modifierThrow(hero.steps[kModifier]);
  const double factor = 1 + hero.percent[static_cast<std::size_t>(weaponIndex)] / 100.0;
  const double plus = kClassTable[static_cast<std::size_t>(hero.klasa)].plus;
  const double witcher = hero.is(kWitcher) ? witcherBonus(hero.value(kSpeed)).value() : 0;
  return {(strength.mean + plus) * factor + weapon.damage.mean + witcher,
          strength.variance * factor * factor + weapon.damage.variance};
}

double pastArmour(const Blow& blow, double armour) {
  const double mean = blow.mean - armour;
  const double spread = std::sqrt(blow.variance + 0.08);
  if (mean > 3 * spread) return mean;
  if (mean < -3 * spread) return 0;
  const double z = mean / spread;
  return mean * below(z) + spread * 0.39894228 * std::exp(-z * z / 2);
}

double below(double x) {
  if (x > 4) return 1;
  if (x < -4) return 0;
  const auto slope = static_cast<float>(-1.5976 * x - 0.07056 * x * x * x);
  return 1 / (1 + std::exp(slope));
}

int bullMagic(int magic, int life, int armour) {
  constexpr int kPoorThrow = 8;
  const int missing = life + armour - kPoorThrow;
  const int wanted = missing <= 0 ? 2 : 2 + (missing + 1) / 2;
  if (wanted <= magic) return wanted;
  return armour < 6 ? 2 : std::max(magic, 2);
}

Outlook foresee(const Knowledge& known, const HeroNotes& hero, const Monster& monster, const Plan& plan,
                int initiative) {
  const bool monstersFirst = initiative <= monster.speed;
  const auto run = [&](const Blow& grenade) {
    const auto shielded = [&](double shield) {
      return Course(known, hero, monster, plan, {grenade, shield}).run(monstersFirst);
    };
    return plan.shield && hero.magic >= 2 ? mixed(shielded(kPoorShield), 0.5, shielded(kGoodShield)) : shielded(0);
  };
  const double bonus = hero.mortar ? kMortarBonus : 0;
  const double needed = monster.life + monster.armour - bonus;
  if (plan.grenades == 0 || hero.grenades == 0 || needed <= 1 || needed >= kGrenadeFaces) return run(anyGrenade(hero));
  const double weak = (needed - 1) / (kGrenadeFaces - 1);
  return mixed(run(grenadeBetween(1, needed - 0.5, bonus)), weak,
               run(grenadeBetween(needed - 0.5, kGrenadeFaces, bonus)));
}

}  // namespace brolgan::simulation
