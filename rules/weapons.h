// The weapon catalogue, bron.cfg: melee and ranged weapons, whose place in their list is their
// identity in the hero file. Four screens read it, each with its own capacity and strictness.
#pragma once

#include <array>
#include <cstddef>
#include <string>

#include "flow/text/array.h"
#include "flow/text/item_reader.h"
#include "rules/dice.h"
#include "rules/weapon_kind.h"

namespace brolgan {

inline constexpr const char* kWeaponsFile = "bron.cfg";

// One weapon. A melee weapon has czary and rezerwa, a ranged one ogien and wszyscy; what the other
// kind has stays False or 0.
struct BronRecord {
  std::string nazwa;
  std::string dzwiek;
  Kostka kostka;
  bool czary = false;
  Integer ogien;
  Integer rezerwa;
  Integer wszyscy;
  Integer cena;

  // Whether its fire goes on to the next of the group, and whether it hits all of them. Any other
  // value of the two fields means nothing.
  [[nodiscard]] bool carriesFire() const { return ogien == 1; }
  [[nodiscard]] bool hitsAll() const { return wszyscy == 2; }
};

// The names that the fight tells the twenty weapons by, melee first, in catalogue order.
extern const std::array<const char*, kWeaponKinds.size() * kWeaponsOfAKind> kWeaponNames;

// Places of note in the catalogue.
inline constexpr int kFirstStaff = 1;
inline constexpr int kLastStaff = 4;
inline constexpr int kCannon = 4;
inline constexpr const char* kUltiGun = "UltiGun";

// How a screen takes the two counts and the flag czary.
enum class CountReading { variant, integer };
enum class FlagReading { text, boolean };

Integer readCount(ItemReader& in, CountReading reading);
BronRecord readWeapon(ItemReader& in, WeaponKind kind, FlagReading reading);

// How many weapons of a kind the screens have places for; the fight has more.
inline constexpr int kShelfPlaces = 11;
inline constexpr int kFightPlaces = 101;

// The weapons of both kinds in the order of the file. Asked by kind, none is a melee list: that is
// where a place without a weapon selected points.
template <std::size_t Capacity>
struct Catalogue {
  Array<BronRecord, Capacity> KatalogWw;
  Array<BronRecord, Capacity> KatalogSs;
  Integer IleWw;
  Integer IleSs;

  [[nodiscard]] auto& weapons(WeaponKind kind) { return kind == WeaponKind::ranged ? KatalogSs : KatalogWw; }
  [[nodiscard]] const auto& weapons(WeaponKind kind) const {
    return kind == WeaponKind::ranged ? KatalogSs : KatalogWw;
  }
  [[nodiscard]] Integer& count(WeaponKind kind) { return kind == WeaponKind::ranged ? IleSs : IleWw; }
};

// Reads the whole catalogue. Raises a subscript error when a list holds more than Capacity weapons.
template <std::size_t Capacity>
void Bron_Load(ItemReader in, Catalogue<Capacity>& catalogue, CountReading counts, FlagReading flags) {
  for (const WeaponKind kind : kWeaponKinds) {
    const char* const name = kind == WeaponKind::melee ? "KatalogWw" : "KatalogSs";
    Integer& count = catalogue.count(kind) = readCount(in, counts);
    for (int i = 0; i < count.value(); ++i) {
      if (i >= static_cast<int>(Capacity)) in.fail(ErrorCode::subscript, {name, i});
      catalogue.weapons(kind)(i) = readWeapon(in, kind, flags);
    }
  }
}

// What the description of a weapon of either kind says; the pieces keep their trailing blanks. Only
// the creation screen warns of the price of "UltiGun".
std::string describeWeapon(const BronRecord& weapon);
inline constexpr const char* kUltiGunWarning = "10 % szans na utratę 1 wytrzymałości na stałe";

}  // namespace brolgan
