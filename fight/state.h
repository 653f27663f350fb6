// What a fight knows, grouped by how long it lives: the preparation's hand-over and the monsters for
// the whole fight, the permissions for one round, the effects until they are used up, the weapon in
// hand until the next is chosen. The rules that change them stand with the fight.
#pragma once

#include <string>

#include "flow/text/array.h"
#include "rules/handover.h"
#include "rules/weapons.h"

namespace brolgan {

// What the preparation hands over besides the monsters; nothing changes it.
struct HandedOver {
  Integer PotworPierwszy;
  std::string PlikBohatera;
  Integer BonusPancerza;
  // MEANT(no-immortality): read and never looked at; the item protects nobody in the fight.
  Integer RundyNiesmiertelnosci;

  // Whether the monsters strike before the hero's first round.
  [[nodiscard]] bool monstersFirst() const { return PotworPierwszy == 1; }
};

// The group of like monsters. The target is always the last one still standing.
struct Group {
  static constexpr int kMost = 26;

  std::string PotworNazwa;
  std::string PotworObraz;
  Integer PotworSzybkosc;
  Kostka PotworAtak;
  Integer NrPotwora;
  // How many they were at first; the reward is for all of them.
  Integer IlePotworow;
  Integer Ostatni;
  Array<Integer, kMost> PotworZycie;
  Array<Integer, kMost> PotworPancerz;

  [[nodiscard]] bool hasTarget() const { return Ostatni >= 0; }
  [[nodiscard]] Integer& targetLife() { return PotworZycie(Ostatni); }
  [[nodiscard]] Integer& targetArmour() { return PotworPancerz(Ostatni); }
  // The first of the array is the last to be a target.
  [[nodiscard]] bool isGone() const { return PotworZycie(0) < 1 || !hasTarget(); }
  // Whether its end is the end of the game.
  [[nodiscard]] bool isLastOfTheGame() const;
  // Takes that much life off all that stand before the target.
  void hurtOthers(Integer harm);
};

// Sets up a group, all alike. Raises a subscript error when there are more than it has places for.
Group gather(const FightSetup& setup);

// What the hero may still do before he ends his round; every round starts with all of it.
struct Round {
  // Nothing ever sets it False.
  bool Blisko = true;
  bool MozeRzucac = true;
  bool MozeStrzelac = true;
  bool MozeBic = true;
  // A Berserker's free blow is still to come.
  bool DrugiCios = true;
};

// What outlives the round and dies with the fight.
struct Effects {
  Integer Pancerz3A;
  Integer Tury3A;
  Integer Fart;
  bool AmmoGotowe = false;
  bool Przeladowanie = false;

  // A round less of "Klasa III A", whose armour goes with its last one.
  void endRound();
  // Uses up a charge of "Kaczy Fart", if there is one, and answers whether there was.
  bool takesBlow();
};

// The weapon selected in the list.
struct WeaponInHand {
  Integer WybranaBron;
  WeaponKind RodzajBroni = WeaponKind::none;
  Kostka BronKostka;

  [[nodiscard]] bool isMelee() const { return RodzajBroni == WeaponKind::melee; }
  [[nodiscard]] bool isRanged() const { return RodzajBroni == WeaponKind::ranged; }
  // MEANT(staff-by-place): a staff is known by its place in the catalogue, not by its flag.
  [[nodiscard]] bool isStaff() const { return WybranaBron >= kFirstStaff && WybranaBron <= kLastStaff; }
  [[nodiscard]] bool isCannon() const { return WybranaBron == kCannon; }
};

}  // namespace brolgan
