#include "simulation/search/shape.h"

#include <algorithm>
#include <cmath>
#include <span>
#include <stdexcept>

#include "fight/choices.h"
#include "flow/text/code_page.h"
#include "simulation/knowledge/knowledge.h"
#include "simulation/search/numbers.h"

namespace brolgan::simulation {

namespace {

// The places of the dials in their table.
constexpr std::size_t kLife = 0;
constexpr std::size_t kAttack = 5;
constexpr std::size_t kDice = 10;
constexpr std::size_t kArmourDial = 13;
constexpr std::size_t kGroupSize = 16;
constexpr std::size_t kGroupAttack = 17;
constexpr std::size_t kGroupLife = 18;
constexpr std::size_t kCourtLife = 19;
constexpr std::size_t kCourtAttack = 20;
constexpr std::size_t kKingLife = 21;
constexpr std::size_t kKingPlace = 22;
constexpr std::size_t kSpeedDial = 23;
constexpr std::size_t kDamageDial = 24;
constexpr std::size_t kPriceDial = 42;

constexpr int kUntouched = 3;
constexpr int kEnd = kMonsters - 1;
constexpr int kLargestGroup = 12;
constexpr int kMostFaces = 61;

// The weapons for sale, in their order, and the dearest of them.
constexpr std::array<int, 18> kSold = {1, 2, 3, 4, 5, 6, 7, 8, 9, 11, 12, 13, 14, 15, 16, 17, 18, 19};
constexpr std::array<int, 4> kDearest = {4, 9, 18, 19};

constexpr std::array<double, 5> kFiveBands = {3, 12, 22, 31, 40};
constexpr std::array<double, 3> kThreeBands = {12, 26, 40};

// The value at a place between bands, straight from one to the next.
double between(std::span<const double> bands, const double* values, double place) {
  if (place <= bands.front()) return values[0];
  for (std::size_t i = 1; i < bands.size(); ++i) {
    if (place > bands[i]) continue;
    const double share = (place - bands[i - 1]) / (bands[i] - bands[i - 1]);
    return values[i - 1] + share * (values[i] - values[i - 1]);
  }
  return values[bands.size() - 1];
}

int whole(double value) { return static_cast<int>(std::lround(value)); }

// Dice with an odd number of faces, one if that will do, whose mean is that.
void throwMean(Numbers& monster, int mean) {
  monster.low = 1;
  for (monster.dice = 1;; ++monster.dice) {
    if (mean % monster.dice != 0) continue;
    monster.high = 2 * mean / monster.dice - 1;
    if (monster.high <= kMostFaces) return;
  }
}

// How far a reward lies from the upper half of a point, where rounding helps those who are paid once.
double offHalf(double reward) {
  constexpr double kLeast = 0.5;
  constexpr double kMost = 0.95;
  const double part = reward - std::floor(reward);
  return part < kLeast ? std::min(kLeast - part, part + 1 - kMost) : std::max(0.0, part - kMost);
}

// The dice throw near what was asked, the addition makes up for the rest of the attack.
void giveAttack(Numbers& monster, double total, double dice) {
  constexpr int kReach = 3;
  Numbers best = monster;
  double least = 10;
  for (int shift = -kReach; shift <= kReach; ++shift) {
    Numbers tried = monster;
    const int mean = std::clamp(whole(dice) + shift, 1, std::max(1, whole(total)));
    throwMean(tried, mean);
    tried.plus = std::max(0, whole(total) - mean);
    const double off = offHalf(tried.reward()) + 0.01 * std::abs(shift) + 0.02 * (tried.dice - 1);
    if (off >= least) continue;
    least = off;
    best = tried;
  }
  monster = best;
}

Numbers turned(Numbers monster, int place, bool king, const Shape& shape) {
  const bool group = monster.count > 1;
  if (place >= kCourt) {
    monster.life = std::max(1, whole(monster.life * std::exp(shape[king ? kKingLife : kCourtLife])));
    const double total = monster.mean() + monster.plus + shape[kCourtAttack];
    monster.plus = std::max(0, whole(total - monster.mean()));
    return monster;
  }
  const double grown = between(kFiveBands, &shape[kLife], place) + (group ? shape[kGroupLife] : 0);
  monster.life = std::max(1, whole(monster.life * std::exp(grown)));
  monster.speed = std::max(1, whole(monster.speed * std::exp(shape[kSpeedDial])));
  if (group) monster.count = std::clamp(whole(monster.count * std::exp(shape[kGroupSize])), 2, kLargestGroup);
  monster.armour = std::max(0, whole(monster.armour + between(kThreeBands, &shape[kArmourDial], place)));
  const double more = between(kFiveBands, &shape[kAttack], place) + (group ? shape[kGroupAttack] : 0);
  const double total = std::max(1.0, monster.mean() + monster.plus + more);
  const double dice = monster.mean() + between(kThreeBands, &shape[kDice], place);
  const bool keepsDice = whole(dice) == whole(monster.mean()) && total >= monster.mean();
  if (keepsDice) {
    monster.plus = whole(total - monster.mean());
  } else {
    giveAttack(monster, total, dice);
  }
  return monster;
}

std::string shapedMonsters(const std::string& text, const Shape& shape) {
  auto lines = linesOf(text);
  const std::string name = toCodePage(kLastMonster);
  int king = kEnd;
  for (int place = kUntouched; place < kMonsters; ++place) {
    const std::size_t first = firstLineOf(place);
    const bool last = lines[first + 1] == name;
    if (last) king = place;
    write(lines, first, turned(numbersOf(lines, first), place, last, shape));
  }
  // The king changes places with one of his court.
  const int place = std::clamp(king - whole(shape[kKingPlace]), kCourt, kEnd);
  const auto lineOf = [&lines](int monster) {
    return lines.begin() + static_cast<std::ptrdiff_t>(firstLineOf(monster));
  };
  if (place != king) std::swap_ranges(lineOf(king), lineOf(king) + kLinesAMonster, lineOf(place));
  return textOf(lines);
}

void raise(std::string& number, double by, int least) {
  number = std::to_string(std::max(least, whole(std::stoi(number) + by)));
}

std::string shapedWeapons(const std::string& text, const Shape& shape) {
  auto lines = linesOf(text);
  for (std::size_t i = 0; i < kSold.size(); ++i)
    raise(lines[firstLineOfWeapon(kSold[i]) + 5], shape[kDamageDial + i], 0);
  for (std::size_t i = 0; i < kDearest.size(); ++i)
    raise(lines[firstLineOfWeapon(kDearest[i]) + 8], shape[kPriceDial + i], 1);
  return textOf(lines);
}

}  // namespace

const std::array<Dial, kDials> kDialTable = {{
    {"life_4", 0.15, -0.3, 1.0},     {"life_13", 0.15, -0.3, 1.0},    {"life_23", 0.15, -0.3, 1.0},
    {"life_32", 0.15, -0.3, 1.0},    {"life_41", 0.15, -0.3, 1.0},    {"attack_4", 0.7, -3, 3},
    {"attack_13", 0.7, -4, 4},       {"attack_23", 0.7, -5, 5},       {"attack_32", 0.7, -6, 6},
    {"attack_41", 0.7, -8, 8},       {"dice_13", 1.0, -3, 14},        {"dice_27", 1.0, -3, 14},
    {"dice_41", 1.0, -3, 14},        {"armour_13", 0.7, -4, 3},       {"armour_27", 0.7, -5, 4},
    {"armour_41", 0.7, -6, 5},       {"group_size", 0.12, -0.7, 0.5}, {"group_attack", 0.5, -3, 6},
    {"group_life", 0.15, -0.5, 1.0}, {"court_life", 0.12, -0.8, 0.4}, {"court_attack", 1.0, -12, 4},
    {"king_life", 0.12, -0.5, 0.6},  {"king_place", 0.4, -2, 2},      {"speed", 0.15, -0.4, 0.7},
    {"damage_2", 0.7, -2, 3},        {"damage_3", 0.7, -3, 4},        {"damage_4", 0.7, -3, 6},
    {"damage_5", 1.0, -5, 8},        {"damage_6", 0.7, -2, 3},        {"damage_7", 0.7, -3, 3},
    {"damage_8", 0.7, -3, 4},        {"damage_9", 1.0, -5, 5},        {"damage_10", 1.2, -9, 8},
    {"damage_12", 0.7, -3, 3},       {"damage_13", 0.7, -3, 3},       {"damage_14", 0.7, -4, 5},
    {"damage_15", 1.2, -8, 8},       {"damage_16", 0.7, -3, 4},       {"damage_17", 0.7, -2, 5},
    {"damage_18", 1.0, -5, 8},       {"damage_19", 1.2, -4, 10},      {"damage_20", 1.2, -6, 12},
    {"price_5", 0.7, -2, 3},         {"price_10", 0.7, -3, 4},        {"price_19", 0.7, -3, 4},
    {"price_20", 0.7, -3, 4},
}};

DataFiles shaped(const DataFiles& data, const Shape& shape) {
  return {shapedWeapons(data.weapons, shape), shapedMonsters(data.monsters, shape)};
}

int dialNamed(const std::string& name) {
  for (int i = 0; i < kDials; ++i) {
    if (name == kDialTable[static_cast<std::size_t>(i)].name) return i;
  }
  throw std::out_of_range("no dial " + name);
}

}  // namespace brolgan::simulation
