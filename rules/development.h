// The tables of development: statistics and their ladders, classes, spells, gear and supplies, with
// their prices. Constant data, the same for every hero; what a hero has of it stands in his record.
#pragma once

#include <array>
#include <span>
#include <string_view>

#include "flow/text/integer.h"
#include "rules/dice.h"
#include "rules/weapon_kind.h"

namespace brolgan {

// Statistics, in the order of Poziomy.
enum Statistic { kEndurance, kArmour, kPower, kSpeed, kRegeneration, kModifier, kLives, kStatistics };

// The first so many have their value in Wartosci; the modifier has dice and the lives are counted down.
inline constexpr int kValues = kModifier;

struct StatisticRow {
  const char* name;
  std::span<const char* const> ladder;  // the captions, step n at n - 1

  [[nodiscard]] int top() const { return static_cast<int>(ladder.size()); }
};

extern const std::array<StatisticRow, kStatistics> kStatisticTable;

// The number that step stands for on a ladder of numbers. Raises noSuchControl when the ladder has
// no such step: its label does not exist.
Integer ladderValue(Statistic statistic, Integer step);

// The damage modifier's dice at a step from 1 to 5. Raises noSuchControl outside.
Kostka modifierDice(Integer step);

// Classes. A hero's class is its caption, compared to the letter.
enum ClassIndex {
  kWarrior,
  kShooter,
  kWizard,
  kWitcher,
  kAdventurer,
  kSatrap,
  kBerserker,
  kGambler,
  kMonk,
  kHandyman,
  kClasses
};

struct ClassRow {
  const char* caption;
  int meleePercent;
  int rangedPercent;
  int plus;

  // What the class grants of percent on the weapons of a kind.
  [[nodiscard]] int percent(WeaponKind kind) const { return kind == WeaponKind::ranged ? rangedPercent : meleePercent; }
};

extern const std::array<ClassRow, kClasses> kClassTable;

bool isClass(std::string_view klasa, ClassIndex index);

// Spells, in the order of MaCzar.
enum SpellIndex {
  kHealing,
  kDamage,
  kBullShots,
  kBoom,
  kAntiHealing,
  kSummoning,
  kClass3A,
  kLuck,
  kTeleport,
  kAutostart,
  kSpells
};

// When a spell can be cast, as its description is marked.
enum class SpellGroup { always, fight, board };

struct SpellRow {
  const char* name;
  int price;
  const char* description;
  SpellGroup group;
  bool forSale;
};

extern const std::array<SpellRow, kSpells> kSpellTable;

// Gear, in the order of MaSpec.
enum GearIndex { kMortar, kBoarBelt, kSucker, kRummager, kGear };

struct GearRow {
  const char* name;
  int creationPrice;
  int shopPrice;
  bool forSale;
};

extern const std::array<GearRow, kGear> kGearTable;

// Supplies, in the order of Wyp.
enum SupplyIndex { kGrenade, kAmmo, kSupplies };

struct SupplyRow {
  const char* name;
  int perPurchase;
};

extern const std::array<SupplyRow, kSupplies> kSupplyTable;

// What one step costs. On the creation screen a life is dearer; the shop sells none.
inline constexpr int kCreationStepPrice = 1;
inline constexpr int kCreationLifePrice = 2;
inline constexpr int kShopStepPrice = 2;
inline constexpr int kSupplyPrice = 1;

// The points that the class "Satrapa" brings while it is selected at creation.
inline constexpr int kSatrapPoints = 4;

}  // namespace brolgan
