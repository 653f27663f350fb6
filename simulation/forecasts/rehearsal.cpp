#include "simulation/forecasts/rehearsal.h"

#include <algorithm>
#include <cmath>
#include <memory>

#include "rules/battle.h"
#include "simulation/forecasts/reckoner.h"

namespace brolgan::simulation {

namespace {

constexpr int kRehearsals = 24;
// What has not happened in a few tries may still happen.
constexpr double kDoubt = 0.01;

class Dice {
 public:
  explicit Dice(std::uint64_t& state) : state_(state) {}

  int roll(int low, int high, int dice = 1) {
    int sum = 0;
    for (int i = 0; i < dice; ++i) {
      const auto share = static_cast<float>(static_cast<double>(nextNumber(state_) >> 40U) * 0x1p-24);
      sum += static_cast<int>(std::nearbyint(share * static_cast<float>(high - low) + static_cast<float>(low)));
    }
    return sum;
  }
  int roll(const Throw& dice) { return roll(dice.low, dice.high, dice.dice) + dice.plus; }

 private:
  std::uint64_t& state_;
};

// The fight with the rules as they are printed.
class Bout {
 public:
  Bout(const Knowledge& known, const HeroNotes& hero, const Monster& monster, const Plan& plan, std::uint64_t& state)
      : hero_(hero),
        monster_(monster),
        plan_(plan),
        weapon_(known.weapons[static_cast<std::size_t>(plan.weapon)]),
        dice_(state),
        percent_(hero.percent[static_cast<std::size_t>(plan.weapon)]),
        endurance_(hero.endurance),
        fullEndurance_(hero.fullEndurance()),
        magic_(hero.magic),
        standing_(monster.count) {
    lives_.fill(monster.life);
    armour_.fill(monster.armour);
  }

  Rehearsed run(bool monstersFirst, int mostRounds) {
    if (monstersFirst) answer();
    while (round_ < mostRounds && endurance_ > 0) {
      ++round_;
      act();
      bury();
      if (standing_ <= 0 || endurance_ <= 0) break;
      if (shieldRounds_ > 0 && --shieldRounds_ == 0) shield_ = 0;
      answer();
      if (hero_.is(kWizard)) regain();
    }
    return {standing_ <= 0, endurance_, magic_, grenades_, ammo_, round_};
  }

 private:
  void act() {
    const bool cleared = cast() && (bury(), standing_ <= 0);
    if (cleared) return;
    if (!castNow_ || weapon_.staff) attack();
    bury();
    if (standing_ > 0) throwGrenade();
  }

  void answer() {
    for (int i = 0; i < standing_; ++i) suffer(dice_.roll(monster_.attack));
  }

  void suffer(int blow) {
    const int harm = blow - hero_.value(kArmour) - shield_;
    if (harm <= 0) return;
    if (luck_ > 0) {
      --luck_;
    } else {
      endurance_ -= harm;
    }
  }

  bool cast() {
    castNow_ = !hero_.is(kBerserker) && castPlanned();
    return castNow_;
  }

  bool castPlanned() {
    if (plan_.shield && magic_ >= 2 && shield_ == 0) {
      pay(2);
      shieldRounds_ = dice_.roll(1, 6, 2);
      shield_ = dice_.roll(1, 10);
    } else if (plan_.luck && magic_ >= 4) {
      pay(4);
      ++luck_;
    } else if (plan_.spell == kDamage && magic_ >= 2) {
      pay(2);
      hit(dice_.roll(1, 6, 3));
    } else if (plan_.spell == kBoom && magic_ >= 4) {
      pay(4);
      hit(dice_.roll(1, 30, 2));
    } else if (plan_.spell == kBullShots && magic_ >= 2) {
      castBullShots();
    } else {
      return heal();
    }
    return true;
  }

  bool heal() {
    if (!weapon_.staff || !hero_.spells[kHealing] || magic_ < 1 || endurance_ + 4 > fullEndurance_) return false;
    pay(1);
    endurance_ = std::min(fullEndurance_, endurance_ + dice_.roll(1, 6));
    return true;
  }

  // A throw below the target's armour does not harm it, and the others gain by it.
  void castBullShots() {
    bury();
    if (standing_ <= 0) return;
    const auto target = static_cast<std::size_t>(standing_ - 1);
    const int used = bullMagic(magic_, lives_[target], armour_[target]);
    const int harm = dice_.roll(1, 6, 3) + (used - 2) * 2 - armour_[target];
    lives_[target] -= std::max(0, harm);
    for (std::size_t i = 0; i < target; ++i) lives_[i] -= harm;
    pay(used);
  }

  void pay(int cost) { magic_ -= cost; }

  void regain() { magic_ = std::min(magic_ + wizardRegain(hero_.value(kRegeneration)).value(), hero_.fullMagic()); }

  void bury() {
    while (standing_ > 0 && lives_[static_cast<std::size_t>(standing_ - 1)] <= 0) --standing_;
  }

  void hit(int damage) {
    bury();
    if (standing_ <= 0) return;
    const auto target = static_cast<std::size_t>(standing_ - 1);
    lives_[target] -= std::max(0, damage - armour_[target]);
  }

  void hitAll(int damage) {
    const int harm = damage - armour_[static_cast<std::size_t>(standing_ - 1)];
    for (int i = 0; harm > 0 && i < standing_; ++i) lives_[static_cast<std::size_t>(i)] -= harm;
  }

  void attack() {
    bury();
    if (standing_ <= 0) return;
    if (!weapon_.melee) {
      shoot();
      if (weapon_.ultimate) payForShot();
      return;
    }
    strike();
    bury();
    if (hero_.is(kBerserker) && standing_ > 0) strike();
  }

  void strike() {
    const int plus = kClassTable[static_cast<std::size_t>(hero_.klasa)].plus;
    const int strength = dice_.roll(modifierThrow(hero_.steps[kModifier])) + plus;
    const double blow = strength * (percent_ / 100.0 + 1) + dice_.roll(weapon_.damage);
    const int witcher = hero_.is(kWitcher) ? witcherBonus(hero_.value(kSpeed)).value() : 0;
    const int growth = dice_.roll(1, kMeleeGrowthDie);
    if (growth > percent_ || growth >= kMeleeAlwaysGrows) percent_ += kGrowth;
    hit(static_cast<int>(std::nearbyint(blow)) + witcher);
  }

  void shoot() {
    if (weapon_.cannon) {
      loaded_ = !loaded_;
      if (!loaded_) return;
    }
    int damage = dice_.roll(weapon_.damage);
    if (ammo_ < hero_.ammo) {
      ++ammo_;
      damage += dice_.roll(1, 6);
    }
    int& armour = armour_[static_cast<std::size_t>(standing_ - 1)];
    if (hero_.sucker && armour > 0) armour = std::max(0, armour - dice_.roll(1, 3));
    if (weapon_.spread) {
      hitAll(damage);
    } else {
      hit(damage);
      if (weapon_.fire) carry();
    }
  }

  void payForShot() {
    if (dice_.roll(1, 10) != 1) return;
    --fullEndurance_;
    endurance_ = std::min(endurance_, fullEndurance_);
  }

  void carry() {
    while (standing_ > 1 && lives_[static_cast<std::size_t>(standing_ - 1)] < 0) {
      const int surplus = -lives_[static_cast<std::size_t>(standing_ - 1)];
      --standing_;
      const auto target = static_cast<std::size_t>(standing_ - 1);
      lives_[target] -= std::max(0, surplus - armour_[target]);
    }
  }

  void throwGrenade() {
    if (grenades_ >= std::min(plan_.grenades, hero_.grenades)) return;
    ++grenades_;
    const int faces = dice_.roll(1, 30);
    if (faces < 2) {
      suffer(dice_.roll(1, 30));
    } else {
      hitAll(faces + (hero_.mortar ? 8 : 0));
    }
  }

  const HeroNotes& hero_;
  const Monster& monster_;
  const Plan& plan_;
  const Weapon& weapon_;
  Dice dice_;
  int percent_;
  int endurance_;
  int fullEndurance_;
  int magic_;
  int standing_;
  std::array<int, 26> lives_{};
  std::array<int, 26> armour_{};
  int shield_ = 0;
  int shieldRounds_ = 0;
  int luck_ = 0;
  int ammo_ = 0;
  int grenades_ = 0;
  int round_ = 0;
  bool loaded_ = false;
  bool castNow_ = false;
};

void add(Outlook& sum, const Rehearsed& one, const HeroNotes& hero, double share) {
  sum.win += one.won ? share : 0;
  sum.harm += (hero.endurance - one.endurance) * share;
  sum.magicLeft += one.magic * share;
  sum.grenadesUsed += one.grenadesUsed * share;
  sum.ammoUsed += one.ammoUsed * share;
  sum.rounds += one.rounds * share;
}

}  // namespace

Rehearsed rehearse(const Knowledge& known, const HeroNotes& hero, const Monster& monster, const Plan& plan,
                   int initiative, std::uint64_t& state, int mostRounds) {
  return Bout(known, hero, monster, plan, state).run(initiative <= monster.speed, mostRounds);
}

Foresight reckoning(const Knowledge& known) {
  const auto reckoner = std::make_shared<Reckoner>(known);
  return [reckoner](const HeroNotes& hero, const Monster& monster, const Plan& plan, int initiative) {
    return (*reckoner)(hero, monster, plan, initiative);
  };
}

Foresight rehearsing(const Knowledge& known, std::uint64_t seed, Foresight reckoning) {
  const auto state = std::make_shared<std::uint64_t>(seed ^ 0x5EEDU);
  return [&known, state, reckoning = std::move(reckoning)](const HeroNotes& hero, const Monster& monster,
                                                           const Plan& plan, int initiative) {
    Outlook sum = reckoning(hero, monster, plan, initiative);
    if (sum.win < 0.3 || sum.win > 0.995) return sum;
    sum = {};
    for (int i = 0; i < kRehearsals; ++i) {
      const Rehearsed one = rehearse(known, hero, monster, plan, initiative, *state, kHopelessRounds);
      add(sum, one, hero, 1.0 / kRehearsals);
    }
    sum.win = std::clamp(sum.win, kDoubt, 1 - kDoubt);
    return sum;
  };
}

}  // namespace brolgan::simulation
