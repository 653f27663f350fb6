#include "rules/weapons.h"

#include "rules/dice_items.h"

namespace brolgan {

const std::array<const char*, kWeaponKinds.size()* kWeaponsOfAKind> kWeaponNames = {
    "Nóż",    "Okuty kij",  "Laska",           "Magustaffi",      "Rózgacz",
    "Tasak",  "Miecz",      "Kordelas Chaosu", "Rysik Ślusarski", "Oczożłop",
    "Łuk",    "Pistolet",   "Strzelba",        "Karabin",         "Działo",
    "Marker", "MultiBleed", "Intrusion Rifle", "Reaper Cannon",   kUltiGun};

Integer readCount(ItemReader& in, CountReading reading) {
  const char* const name = "liczba broni";
  return reading == CountReading::variant ? in.variant(name) : in.integer(name);
}

BronRecord readWeapon(ItemReader& in, WeaponKind kind, FlagReading reading) {
  BronRecord weapon;
  weapon.nazwa = in.string("nazwa");
  weapon.dzwiek = in.string("dzwiek");
  weapon.kostka = readDice(in);
  if (kind == WeaponKind::melee) {
    weapon.czary = reading == FlagReading::text ? in.flag("czary") : in.boolean("czary");
    weapon.rezerwa = in.integer("rezerwa");
  } else {
    weapon.ogien = in.integer("ogien");
    weapon.wszyscy = in.integer("wszyscy");
  }
  weapon.cena = in.integer("cena");
  return weapon;
}

std::string describeWeapon(const BronRecord& weapon) {
  std::string text;
  if (weapon.czary) text += "Można rzucać czary i atakować tą bronią. ";
  if (weapon.carriesFire()) text += "Przenoszenie ognia. ";
  if (weapon.hitsAll()) text += "Zadaje wszystkim przeciwnikom. ";
  return text;
}

}  // namespace brolgan
