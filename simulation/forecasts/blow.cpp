#include "simulation/forecasts/blow.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "rules/battle.h"

namespace brolgan::simulation {

namespace {

// A smooth function of a normal deviate, kept as a table from -4 to 4 and read between its entries.
class DeviateTable {
 public:
  explicit DeviateTable(double (*function)(double)) {
    for (int i = 0; i < kEntries; ++i) values_[static_cast<std::size_t>(i)] = function(-kReach + i / kPerUnit);
  }
  // x lies within the reach.
  [[nodiscard]] double at(double x) const {
    const double place = (x + kReach) * kPerUnit;
    const int entry = static_cast<int>(place);
    const double* left = values_.data() + entry;
    return *left + (place - entry) * (left[1] - *left);
  }

  static constexpr double kReach = 4;

 private:
  static constexpr double kPerUnit = 64;
  static constexpr int kEntries = static_cast<int>(2 * kReach * kPerUnit) + 2;
  std::array<double, kEntries> values_{};
};

double normalShare(double x) { return std::erfc(-x / std::sqrt(2.0)) / 2; }

// The mean of a standard normal deviate moved by x and cut off below 0.
double normalExcess(double x) { return x * normalShare(x) + std::exp(-x * x / 2) / std::sqrt(2 * 3.14159265358979); }

const DeviateTable share(normalShare);
const DeviateTable excess(normalExcess);

}  // namespace

Blow blowOf(const Striker& striker, const Weapon& weapon) {
  if (!weapon.melee) return {weapon.damage.mean, weapon.damage.variance};
  const Throw& strength = modifierThrow(striker.modifier);
  const double factor = 1 + striker.percent / 100.0;
  const double plus = kClassTable[static_cast<std::size_t>(striker.klasa)].plus;
  const bool isWitcher = striker.klasa == kWitcher;
  const double witcher = isWitcher ? witcherBonus(kLadderNumbers[kSpeed][striker.speed - 1]).value() : 0;
  return {(strength.mean + plus) * factor + weapon.damage.mean + witcher,
          strength.variance * factor * factor + weapon.damage.variance};
}

Blow blowOf(const HeroNotes& hero, const Weapon& weapon, int weaponIndex) {
  const int percent = hero.percent[static_cast<std::size_t>(weaponIndex)];
  return blowOf({hero.klasa, hero.steps[kModifier], hero.steps[kSpeed], percent}, weapon);
}

double growthOf(const Striker& striker) {
  const int percent = std::min(striker.percent, kMeleeAlwaysGrows - 1);
  const double chance = 1 - percent / static_cast<double>(kMeleeGrowthDie - 1);
  const double plus = kClassTable[static_cast<std::size_t>(striker.klasa)].plus;
  return chance * kGrowth / 100.0 * (modifierThrow(striker.modifier).mean + plus);
}

double spreadOf(const Blow& blow) { return std::sqrt(blow.variance + 0.08); }

double pastArmour(const Blow& blow, double armour) { return pastArmour(blow.mean - armour, spreadOf(blow)); }

double pastArmour(double mean, double spread) {
  if (mean >= 3 * spread) return mean;
  if (mean <= -3 * spread) return 0;
  return spread * excess.at(mean / spread);
}

double below(double x) {
  if (x >= DeviateTable::kReach) return 1;
  if (x <= -DeviateTable::kReach) return 0;
  return share.at(x);
}

int bullMagic(int magic, int life, int armour) {
  constexpr int kPoorThrow = 8;
  const int missing = life + armour - kPoorThrow;
  const int wanted = missing <= 0 ? 2 : 2 + (missing + 1) / 2;
  if (wanted <= magic) return wanted;
  return armour < 6 ? 2 : std::max(magic, 2);
}

}  // namespace brolgan::simulation
