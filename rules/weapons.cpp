#include "rules/weapons.h"

#include "rules/dice_items.h"

namespace brolgan {

const std::array<const char*, 20> kWeaponNames = {
    "Nóż",    "Okuty kij",  "Laska",           "Magustaffi",      "Rózgacz",
    "Tasak",  "Miecz",      "Kordelas Chaosu", "Rysik Ślusarski", "Oczożłop",
    "Łuk",    "Pistolet",   "Strzelba",        "Karabin",         "Działo",
    "Marker", "MultiBleed", "Intrusion Rifle", "Reaper Cannon",   kUltiGun};

Integer readCount(ItemReader& in, CountReading reading) {
  const char* const name = "liczba broni";
  return reading == CountReading::variant ? in.variant(name) : in.integer(name);
}

BronRecord readMelee(ItemReader& in, FlagReading reading) {
  BronRecord weapon;
  weapon.nazwa = in.string("nazwa");
  weapon.dzwiek = in.string("dzwiek");
  weapon.kostka = readDice(in);
  weapon.czary = reading == FlagReading::text ? in.flag("czary") : in.boolean("czary");
  weapon.rezerwa = in.integer("rezerwa");
  weapon.cena = in.integer("cena");
  return weapon;
}

BronRecord readRanged(ItemReader& in) {
  BronRecord weapon;
  weapon.nazwa = in.string("nazwa");
  weapon.dzwiek = in.string("dzwiek");
  weapon.kostka = readDice(in);
  weapon.ogien = in.integer("ogien");
  weapon.wszyscy = in.integer("wszyscy");
  weapon.cena = in.integer("cena");
  return weapon;
}

std::string describeMelee(const BronRecord& weapon) {
  return weapon.czary ? "Można rzucać czary i atakować tą bronią. " : "";
}

std::string describeRanged(const BronRecord& weapon) {
  std::string text;
  if (weapon.ogien == 1) text += "Przenoszenie ognia. ";
  if (weapon.wszyscy == 2) text += "Zadaje wszystkim przeciwnikom. ";
  return text;
}

}  // namespace brolgan
