#include "simulation/search/climb.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numeric>
#include <span>
#include <string>
#include <utility>

#include "simulation/knowledge/knowledge.h"
#include "simulation/report/worth.h"
#include "simulation/search/numbers.h"

namespace brolgan::simulation {

namespace {

constexpr int kFirst = 5;  // the monsters before it are left to the first evening
constexpr int kBand = 6;
constexpr std::size_t kPlusLine = 5;
constexpr std::size_t kPriceLine = 8;

// Rounds of games that a change must stand, and steps after which others are played.
constexpr int kRounds = 3;
constexpr int kStepsADay = 25;
// A first round may be worse by that much; later the change must be better by that much for each round.
constexpr double kPatience = 0.12;
constexpr double kClearly = 0.06;

class Chance {
 public:
  explicit Chance(std::uint64_t& state) : state_(state) {}
  int below(int limit) { return static_cast<int>(nextNumber(state_) % static_cast<std::uint64_t>(limit)); }
  template <class Value>
  Value oneOf(std::initializer_list<Value> values) {
    return values.begin()[below(static_cast<int>(values.size()))];
  }

 private:
  std::uint64_t& state_;
};

int scaled(int value, double by) {
  const int moved = static_cast<int>(std::lround(value * by));
  if (moved == value) return std::max(1, by > 1 ? value + 1 : value - 1);
  return std::max(1, moved);
}

class Nudge {
 public:
  Nudge(const DataFiles& data, std::uint64_t& state)
      : monsters_(linesOf(data.monsters)), weapons_(linesOf(data.weapons)), chance_(state) {}

  DataFiles run() {
    for (int moves = chance_.oneOf({1, 2, 2, 3, 4}); moves > 0; --moves) move();
    return {textOf(weapons_), textOf(monsters_)};
  }

 private:
  void move() {
    switch (chance_.below(6)) {
      case 0:
        return moveCourt();
      case 1:
      case 2:
        return moveWeapon();
      case 3:
        return moveBand();
      default:
        return moveMonster(kFirst + chance_.below(kCourt - kFirst));
    }
  }

  template <class Change>
  void change(int monster, Change change) {
    Numbers numbers = numbersOf(monsters_, firstLineOf(monster));
    change(numbers);
    write(monsters_, firstLineOf(monster), numbers);
  }

  void moveCourt() {
    const int by = chance_.oneOf({-2, -1, 1, 2});
    const int what = chance_.below(3);
    change(kCourt + chance_.below(kMonsters - kCourt), [&](Numbers& numbers) {
      if (what == 0) numbers.life = scaled(numbers.life, 1 + 0.03 * by);
      if (what == 1) numbers.plus = std::max(0, numbers.plus + by);
      if (what == 2) numbers.armour = std::max(0, numbers.armour + by);
    });
  }

  void moveBand() {
    const int first = kFirst + chance_.below(kCourt - kFirst - kBand + 1);
    const double by = chance_.oneOf({0.9, 0.94, 1.06, 1.1});
    for (int i = first; i < first + kBand; ++i) {
      change(i,
             [by](Numbers& numbers) { numbers.life = std::max(1, static_cast<int>(std::lround(numbers.life * by))); });
    }
  }

  // Dice keep an odd number of faces, so that their mean stays a whole number.
  void moveMonster(int monster) {
    const int by = chance_.oneOf({-1, 1});
    const int what = chance_.below(5);
    change(monster, [&](Numbers& numbers) {
      if (what == 0) numbers.plus = std::max(0, numbers.plus + by);
      if (what == 1) numbers.speed = scaled(numbers.speed, 1 + 0.2 * by);
      if (what == 2) numbers.life = scaled(numbers.life, 1 + 0.15 * by);
      if (what == 3) numbers.high = std::max(numbers.low + 2, numbers.high + 2 * by);
      if (what == 4) numbers.armour = std::max(1, numbers.armour + by);
    });
  }

  void moveWeapon() {
    int weapon = 1 + chance_.below(kWeapons - 2);
    if (weapon >= kMelees) ++weapon;
    const std::size_t first = firstLineOfWeapon(weapon);
    const int price = std::stoi(weapons_[first + kPriceLine]);
    if (price >= kDearPrice && chance_.below(3) == 0) {
      weapons_[first + kPriceLine] = std::to_string(std::max(kDearPrice, price + chance_.oneOf({-1, 1})));
      return;
    }
    const int plus = std::stoi(weapons_[first + kPlusLine]) + chance_.oneOf({-2, -1, 1, 2});
    weapons_[first + kPlusLine] = std::to_string(std::max(0, plus));
  }

  std::vector<std::string> monsters_;
  std::vector<std::string> weapons_;
  Chance chance_;
};

double sum(std::span<const double> values) { return std::accumulate(values.begin(), values.end(), 0.0); }

}  // namespace

DataFiles nudged(const DataFiles& data, std::uint64_t& state) { return Nudge(data, state).run(); }

Climber::Climber(DataFiles start, std::uint64_t seed, Judge judge)
    : judge_(std::move(judge)), data_(std::move(start)), random_(seed), games_(seed) {
  renewGames();
}

void Climber::renewGames() {
  games_ = nextNumber(random_);
  scores_.clear();
  for (int round = 0; round < kRounds; ++round) {
    scores_.push_back(judge_(data_, games_ + static_cast<std::uint64_t>(round)));
  }
}

double Climber::score() const { return sum(scores_) / kRounds; }

bool Climber::step() {
  if (++steps_ % kStepsADay == 0) renewGames();
  DataFiles proposed = nudged(data_, random_);
  std::vector<double> scores;
  for (int round = 0; round < kRounds; ++round) {
    scores.push_back(judge_(proposed, games_ + static_cast<std::uint64_t>(round)));
    const double better = sum({scores_.data(), scores.size()}) - sum(scores);
    if (better < (round == 0 ? -kPatience : kClearly * (round + 1))) return false;
  }
  data_ = std::move(proposed);
  scores_ = std::move(scores);
  return true;
}

}  // namespace brolgan::simulation
