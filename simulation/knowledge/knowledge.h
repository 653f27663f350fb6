// What an experienced player knows by heart: the weapons, the monsters and the ladders as plain
// numbers, with the mean and spread of their dice.
#pragma once

#include <array>
#include <span>
#include <string>
#include <vector>

#include "rules/development.h"
#include "rules/dice.h"
#include "shop/zones.h"
#include "simulation/stage/stage.h"

namespace brolgan::simulation {

inline constexpr int kWeapons = 20;
inline constexpr int kMelees = 10;
inline constexpr int kMonsters = 45;
inline constexpr int kZoneCount = 12;
// Zones of note, counted from 0: the gamble among all monsters, and where the king is met.
inline constexpr int kPandoria = 10;
inline constexpr int kThroneZone = 11;

// A dice expression with what it gives on average and how far it spreads.
struct Throw {
  int low = 0;
  int high = 0;
  int dice = 0;
  int plus = 0;
  double mean = 0;
  double variance = 0;
};

Throw knowThrow(const Kostka& kostka);

struct Weapon {
  std::string name;
  Throw damage;
  int price = 0;
  bool melee = false;
  bool staff = false;
  bool cannon = false;
  bool fire = false;
  bool spread = false;
  bool ultimate = false;
};

struct Monster {
  std::string name;
  int number = 0;  // its place in the list, counted from 0
  int count = 0;
  int speed = 0;
  Throw attack;
  int life = 0;
  int armour = 0;
  bool last = false;                      // beating it ends the game
  std::array<double, kClasses> points{};  // for beating the group, by class
};

struct Knowledge {
  std::vector<Weapon> weapons;
  std::vector<Monster> monsters;

  explicit Knowledge(const DataFiles& data);

  [[nodiscard]] int weaponNamed(const std::string& name) const;
  // The monster of that place if the king, wherever he stands, changed places with the last of the list.
  [[nodiscard]] const Monster& withTheKingLast(int place) const;
  [[nodiscard]] const Monster& monsterNamed(const std::string& name) const;
};

// The values of the statistics at each step, without looking them up in captions each time.
extern const std::array<std::array<int, 12>, kStatistics> kLadderNumbers;
int topStep(int statistic);
const Throw& modifierThrow(int step);

// How likely a zone draws its monster number, counted from 0.
double drawChance(const Strefa& zone, int monster);

}  // namespace brolgan::simulation
