#include "simulation/rehearsal.h"

#include <algorithm>
#include <cmath>
#include <memory>

#include "rules/battle.h"

namespace brolgan::simulation {

namespace {

constexpr int kRehearsals = 24;
constexpr int kMostRounds = 30;

class Dice {
 public:
  explicit Dice(std::uint64_t seed) : state_(seed) {}

  int roll(int low, int high, int dice) {
    int sum = 0;
    for (int i = 0; i < dice; ++i) {
      const double share = static_cast<double>(nextNumber(state_) >> 40U) * 0x1p-24;
      sum += static_cast<int>(std::lround(share * (high - low) + low));
    }
    return sum;
  }
  int roll(const Throw& dice) { return roll(dice.low, dice.high, dice.dice) + dice.plus; }

 private:
  std::uint64_t state_;
};

// One fight in the head, with the rules as they are printed.
class Bout {
 public:
  Bout(const Knowledge& known, const HeroNotes& hero, const Monster& monster, const Plan& plan, Dice& dice)
      : hero_(hero),
        monster_(monster),
        plan_(plan),
        weapon_(known.weapons[static_cast<std::size_t>(plan.weapon)]),
        dice_(dice),
        endurance_(hero.endurance),
        magic_(hero.magic),
        standing_(monster.count) {
    lives_.fill(monster.life);
    armour_.fill(monster.armour);
  }

  void run(bool monstersFirst) {
    if (monstersFirst) answer();
    for (; round_ < kMostRounds && endurance_ > 0; ++round_) {
      if (!cast() || weapon_.staff) attack();
      throwGrenade();
      bury();
      if (standing_ <= 0) return;
      if (shieldRounds_ > 0 && --shieldRounds_ == 0) shield_ = 0;
      answer();
      if (hero_.is(kWizard)) regain();
    }
  }

  [[nodiscard]] bool won() const { return standing_ <= 0 && endurance_ > 0; }
  [[nodiscard]] Outlook outlook() const {
    return {won() ? 1.0 : 0.0,           static_cast<double>(hero_.endurance - endurance_),
            static_cast<double>(magic_), static_cast<double>(grenades_),
            static_cast<double>(ammo_),  round_ + 1.0};
  }

 private:
  void answer() {
    for (int i = 0; i < standing_; ++i) {
      const int harm = dice_.roll(monster_.attack) - hero_.value(kArmour) - shield_;
      if (harm <= 0) continue;
      if (luck_ > 0) {
        --luck_;
      } else {
        endurance_ -= harm;
      }
    }
  }

  bool cast() {
    if (hero_.is(kBerserker)) return false;
    if (plan_.shield && shield_ == 0 && magic_ >= 2) return pay(2), raiseShield(), true;
    if (plan_.luck && luck_ == 0 && magic_ >= 4) return pay(4), ++luck_, true;
    if (plan_.spell == kDamage && magic_ >= 2) return pay(2), hit(dice_.roll(1, 6, 3)), true;
    if (plan_.spell == kBoom && magic_ >= 4) return pay(4), hit(dice_.roll(1, 30, 2)), true;
    if (plan_.spell == kBullShots && magic_ >= 2) return castBullShots(), true;
    if (weapon_.staff && hero_.spells[kHealing] && magic_ >= 1 && endurance_ + 4 <= hero_.fullEndurance()) {
      pay(1);
      endurance_ = std::min(hero_.fullEndurance(), endurance_ + dice_.roll(1, 6, 1));
      return true;
    }
    return false;
  }

  void raiseShield() {
    shieldRounds_ = dice_.roll(1, 6, 2);
    shield_ = dice_.roll(1, 10, 1);
  }

  void castBullShots() {
    const int used = bullMagic(magic_, lives_[standing_ - 1], armour_[standing_ - 1]);
    hitAll(dice_.roll(1, 6, 3) + (used - 2) * 2);
    pay(used);
  }

  void pay(int cost) { magic_ -= cost; }

  void regain() { magic_ = std::min(magic_ + wizardRegain(hero_.value(kRegeneration)).value(), hero_.fullMagic()); }

  void bury() {
    while (standing_ > 0 && lives_[standing_ - 1] <= 0) --standing_;
  }

  void hit(int damage) {
    bury();
    if (standing_ > 0) lives_[standing_ - 1] -= std::max(0, damage - armour_[standing_ - 1]);
  }

  void hitAll(int damage) {
    bury();
    if (standing_ <= 0) return;
    const int harm = damage - armour_[standing_ - 1];
    for (int i = 0; harm > 0 && i < standing_; ++i) lives_[i] -= harm;
  }

  void attack() {
    bury();
    if (standing_ <= 0) return;
    if (!weapon_.melee) {
      shoot();
      return;
    }
    for (int i = 0; i < (hero_.is(kBerserker) ? 2 : 1); ++i) hit(blow());
  }

  int blow() {
    const int plus = kClassTable[hero_.klasa].plus;
    const double factor = 1 + hero_.percent[plan_.weapon] / 100.0;
    const double strength = (dice_.roll(modifierThrow(hero_.steps[kModifier])) + plus) * factor;
    const int witcher = hero_.is(kWitcher) ? witcherBonus(hero_.value(kSpeed)).value() : 0;
    return static_cast<int>(std::lround(strength)) + dice_.roll(weapon_.damage) + witcher;
  }

  void shoot() {
    if (weapon_.cannon && (loaded_ = !loaded_, !loaded_)) return;
    int damage = dice_.roll(weapon_.damage);
    if (ammo_ < hero_.ammo) ++ammo_, damage += dice_.roll(1, 6, 1);
    int& armour = armour_[standing_ - 1];
    if (hero_.sucker && armour > 0) armour = std::max(0, armour - dice_.roll(1, 3, 1));
    if (weapon_.spread) {
      hitAll(damage);
    } else {
      hit(damage);
      if (weapon_.fire) carry();
    }
  }

  void carry() {
    while (standing_ > 1 && lives_[standing_ - 1] < 0) {
      const int surplus = -lives_[standing_ - 1];
      --standing_;
      hit(surplus);
    }
  }

  void throwGrenade() {
    if (grenades_ >= std::min(plan_.grenades, hero_.grenades)) return;
    ++grenades_;
    hitAll(dice_.roll(1, 30, 1) + (hero_.mortar ? 8 : 0));
  }

  const HeroNotes& hero_;
  const Monster& monster_;
  const Plan& plan_;
  const Weapon& weapon_;
  Dice& dice_;
  int endurance_;
  int magic_;
  int standing_;
  std::array<int, 26> lives_{};
  std::array<int, 26> armour_{};
  int shield_ = 0;
  int shieldRounds_ = 0;
  int luck_ = 0;
  int ammo_ = 0;
  int grenades_ = 0;
  bool loaded_ = false;
  int round_ = 0;
};

void add(Outlook& sum, const Outlook& one, double share) {
  sum.win += one.win * share;
  sum.harm += one.harm * share;
  sum.magicLeft += one.magicLeft * share;
  sum.grenadesUsed += one.grenadesUsed * share;
  sum.ammoUsed += one.ammoUsed * share;
  sum.rounds += one.rounds * share;
}

// What has not happened in a few tries may still happen.
constexpr double kDoubt = 0.01;

}  // namespace

Foresight reckoning(const Knowledge& known) {
  return [&known](const HeroNotes& hero, const Monster& monster, const Plan& plan, int initiative) {
    return foresee(known, hero, monster, plan, initiative);
  };
}

Foresight rehearsing(const Knowledge& known, std::uint64_t seed) {
  const auto dice = std::make_shared<Dice>(seed ^ 0x5EEDU);
  return [&known, dice](const HeroNotes& hero, const Monster& monster, const Plan& plan, int initiative) {
    Outlook sum = foresee(known, hero, monster, plan, initiative);
    // Walks and suicides need no rehearsal.
    if (sum.win < 0.3 || sum.win > 0.995) return sum;
    sum = {};
    for (int i = 0; i < kRehearsals; ++i) {
      Bout bout(known, hero, monster, plan, *dice);
      bout.run(initiative <= monster.speed);
      add(sum, bout.outlook(), 1.0 / kRehearsals);
    }
    sum.win = std::clamp(sum.win, kDoubt, 1 - kDoubt);
    return sum;
  };
}

}  // namespace brolgan::simulation
