// The weapon catalogue, bron.cfg: melee and ranged weapons, whose place in their list is their
// identity in the hero file. Four screens read it, each with its own capacity and strictness.
#pragma once

#include <array>
#include <cstddef>
#include <string>

#include "flow/text/array.h"
#include "flow/text/item_reader.h"
#include "rules/dice.h"

namespace brolgan {

inline constexpr const char* kWeaponsFile = "bron.cfg";

// One weapon. A melee weapon has czary and rezerwa, a ranged one ogien and wszyscy.
struct BronRecord {
  std::string nazwa;
  std::string dzwiek;
  Kostka kostka;
  bool czary = false;
  Integer ogien;
  Integer rezerwa;
  Integer wszyscy;
  Integer cena;
};

// The names that the fight tells the twenty weapons by, melee first, in catalogue order.
extern const std::array<const char*, 20> kWeaponNames;

// Places of note in the catalogue.
inline constexpr int kFirstStaff = 1;
inline constexpr int kLastStaff = 4;
inline constexpr int kCannon = 4;
inline constexpr const char* kUltiGun = "UltiGun";

// How a screen takes the two counts and the flag czary.
enum class CountReading { variant, integer };
enum class FlagReading { text, boolean };

Integer readCount(ItemReader& in, CountReading reading);
BronRecord readMelee(ItemReader& in, FlagReading reading);
BronRecord readRanged(ItemReader& in);

template <std::size_t Capacity>
struct Catalogue {
  Array<BronRecord, Capacity> KatalogWw;
  Array<BronRecord, Capacity> KatalogSs;
  Integer IleWw;
  Integer IleSs;
};

// Reads the whole catalogue. Raises subscript when a list holds more than Capacity weapons.
template <std::size_t Capacity>
void Bron_Load(ItemReader in, Catalogue<Capacity>& catalogue, CountReading counts, FlagReading flags) {
  catalogue.IleWw = readCount(in, counts);
  for (int i = 0; i < catalogue.IleWw.value(); ++i) {
    if (i >= static_cast<int>(Capacity)) in.fail(ErrorCode::subscript, {"KatalogWw", i});
    catalogue.KatalogWw(i) = readMelee(in, flags);
  }
  catalogue.IleSs = readCount(in, counts);
  for (int i = 0; i < catalogue.IleSs.value(); ++i) {
    if (i >= static_cast<int>(Capacity)) in.fail(ErrorCode::subscript, {"KatalogSs", i});
    catalogue.KatalogSs(i) = readRanged(in);
  }
}

// What a weapon's description says; the pieces keep their trailing blanks. Only the creation
// screen warns of the price of "UltiGun".
std::string describeMelee(const BronRecord& weapon);
std::string describeRanged(const BronRecord& weapon);
inline constexpr const char* kUltiGunWarning = "10 % szans na utratę 1 wytrzymałości na stałe";

}  // namespace brolgan
