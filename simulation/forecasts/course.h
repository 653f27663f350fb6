// The course of one fight in means and spreads, as a careful player would reckon it with pencil and
// paper: no dice are thrown.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>

#include "simulation/forecasts/blow.h"
#include "simulation/forecasts/outlook.h"

namespace brolgan::simulation {

// The throw on which a whole fight may hang, of the first grenade and of the shield: as likely as
// not, or known to be poor or good.
enum class Hinge : std::int16_t { open, poor, good };

// All that the course of a fight depends on. Whatever cannot matter in it is left at its default, so
// that equal fights have equal situations.
struct Situation {
  std::int16_t monster = 0;  // its number
  std::int16_t weapon = 0;
  std::int16_t klasa = 0;
  std::int16_t percent = 0;
  std::int16_t modifier = 1;  // a step, as speed and regeneration
  std::int16_t speed = 1;
  std::int16_t regeneration = 1;
  std::int16_t armour = 0;
  std::int16_t magic = 0;
  std::int16_t power = 0;
  std::int16_t grenades = 0;
  std::int16_t ammo = 0;
  std::int16_t spell = -1;
  std::int16_t flags = 0;
  Hinge grenade = Hinge::open;
  Hinge shield = Hinge::open;

  friend bool operator==(const Situation&, const Situation&) = default;
};

// The flags of a situation.
inline constexpr int kMonstersFirst = 1;
inline constexpr int kHeals = 2;
inline constexpr int kShielded = 4;
inline constexpr int kLucky = 8;
inline constexpr int kHasMortar = 16;
inline constexpr int kHasSucker = 32;

Situation situationOf(const Knowledge& known, const HeroNotes& hero, const Monster& monster, const Plan& plan,
                      int initiative);
std::size_t hashOf(const Situation& situation);

// What a fight comes to, whoever's endurance it takes.
struct Toll {
  float harm = 0;
  float spread = 0;     // of the harm
  float magicUsed = 0;  // less what came back
  float grenadesUsed = 0;
  float ammoUsed = 0;
  float rounds = 0;
  bool hopeless = false;
};

Toll reckon(const Knowledge& known, const Situation& situation);

// The situations that the first grenade and the shield may make of this one, and how likely each is.
struct Branch {
  Situation situation;
  double chance = 0;
};
class Branches {
 public:
  void add(const Situation& situation, double chance) { all_[count_++] = {situation, chance}; }
  [[nodiscard]] std::span<const Branch> all() const { return {all_.data(), count_}; }

 private:
  std::array<Branch, 4> all_;
  std::size_t count_ = 0;
};
Branches branchesOf(const Knowledge& known, const Situation& situation);

}  // namespace brolgan::simulation
