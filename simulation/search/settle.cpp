#include "simulation/search/settle.h"

#include <algorithm>
#include <cmath>

#include "simulation/knowledge/knowledge.h"

namespace brolgan::simulation {

namespace {

constexpr int kFirst = 3;
constexpr int kClimbed = 10;  // zones that follow one another
constexpr int kThirdZone = 2;
constexpr int kLeastMet = 15;
// Of the turns, in percent, that each zone is to have.
constexpr std::array<double, kClimbed> kShares = {17, 17, 13, 13, 7, 7, 4, 3, 4, 7};
constexpr double kDeaths = 2.6;

// How much harder a zone becomes in one move.
double drift(const Measures& all, int zone) {
  const Danger& danger = all.zones[static_cast<std::size_t>(zone)];
  const double share = 100 * danger.deaths.whole / std::max(1.0, all.oneRound.whole);
  const double crowd = std::clamp(0.012 * (share - kShares[static_cast<std::size_t>(zone)]), -0.1, 0.1);
  const double safety = zone < kThirdZone ? 0 : std::clamp(0.03 * (kDeaths - 100 * danger.deaths.value()), -0.05, 0.06);
  return crowd + safety;
}

}  // namespace

Settler::Settler(const DataFiles& data) : given_(data) {
  const auto lines = linesOf(data.monsters);
  for (int i = 0; i < kMonsters; ++i) numbers_.push_back(numbersOf(lines, firstLineOf(i)));
  for (std::size_t i = 0; i < numbers_.size(); ++i) addition_[i] = numbers_[i].plus;
}

int Settler::pay(int monster) const {
  return static_cast<int>(std::lround(numbers_[static_cast<std::size_t>(monster)].reward()));
}

Numbers Settler::settled(int monster) const {
  Numbers numbers = numbers_[static_cast<std::size_t>(monster)];
  const double addition = addition_[static_cast<std::size_t>(monster)];
  numbers.plus = std::max(0, static_cast<int>(std::lround(addition)));
  if (addition >= 0) return numbers;
  const auto shrunk = [addition](int value, double share) {
    return std::max(1, static_cast<int>(std::lround(value * (1 + share * addition))));
  };
  numbers.life = shrunk(numbers.life, 0.04);
  numbers.speed = shrunk(numbers.speed, 0.06);
  return numbers;
}

DataFiles Settler::data() const {
  auto lines = linesOf(given_.monsters);
  for (int i = kFirst; i < kCourt; ++i) write(lines, firstLineOf(i), settled(i));
  return {given_.weapons, textOf(lines)};
}

void Settler::remember(const Measures& measures) {
  constexpr double kNothing = 0.15;
  for (std::size_t i = 0; i < harm_.size(); ++i) {
    const Mean& lost = measures.monsters[i].lost;
    if (lost.count < kLeastMet) continue;
    const double heard = std::log(std::max(kNothing, lost.value()));
    harm_[i] = {true, harm_[i].known ? (harm_[i].value + heard) / 2 : heard};
  }
}

// Of two in a zone the one who pays more shall do clearly more harm.
void Settler::compare(int zone, std::array<double, kMonsters>& pushes) const {
  constexpr double kClearly = 0.08;
  constexpr double kPush = 0.25;
  const Strefa& bounds = kZones[static_cast<std::size_t>(zone)];
  for (int i = bounds.OdPotwora - 1; i < bounds.DoPotwora; ++i) {
    for (int j = bounds.OdPotwora - 1; j < bounds.DoPotwora; ++j) {
      const Harm& more = harm_[static_cast<std::size_t>(i)];
      const Harm& less = harm_[static_cast<std::size_t>(j)];
      if (pay(i) <= pay(j) || !more.known || !less.known) continue;
      const double miss = std::clamp(less.value + kClearly - more.value, 0.0, 1.0);
      pushes[static_cast<std::size_t>(i)] += kPush * miss;
      pushes[static_cast<std::size_t>(j)] -= kPush * miss;
    }
  }
}

void Settler::hear(const Measures& measures) {
  constexpr double kShare = 0.25;
  constexpr double kMost = 0.6;
  constexpr double kWeakest = -8;
  remember(measures);
  std::array<double, kMonsters> pushes{};
  for (int zone = 0; zone < kClimbed; ++zone) {
    compare(zone, pushes);
    const Strefa& bounds = kZones[static_cast<std::size_t>(zone)];
    for (int i = bounds.OdPotwora - 1; i < bounds.DoPotwora; ++i) {
      pushes[static_cast<std::size_t>(i)] += drift(measures, zone);
    }
  }
  for (std::size_t i = kFirst; i < kCourt; ++i) {
    addition_[i] = std::max(kWeakest, addition_[i] + std::clamp(kShare * pushes[i], -kMost, kMost));
  }
}

}  // namespace brolgan::simulation
