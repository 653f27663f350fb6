// What the creation screen and the shop have in common: the departments of statistics, weapons,
// spells and gear with their controls, and the buying that both do alike. Each of the two screens
// adds its own prices, its own way back and its own files.
#pragma once

#include <array>
#include <cstdint>
#include <span>

#include "flow/stage/runtime.h"
#include "rules/development.h"
#include "rules/hero.h"
#include "rules/weapons.h"

namespace brolgan {

// What is bought step by step: the statistics and behind them the supplies.
inline constexpr int kDevelopmentRows = int{kStatistics} + int{kSupplies};

class DevelopmentForm : public Form {
 public:
  Label Label1;
  Label Label2{"Pozostało punktów :"};
  Label Ile_jeszcze{"16"};
  Label Label14;
  Label Label15;
  TextBox Imie{"Kosiarz"};
  std::array<Label, 4> Label4;

  Frame fstat;
  std::array<Label, kStatistics> Label5;
  std::array<Label, 12> stat1;
  std::array<Label, 11> stat2;
  std::array<Label, 8> stat3;
  std::array<Label, 8> stat4;
  std::array<Label, 5> stat5;
  std::array<Label, 5> stat6;
  std::array<Label, 6> stat7;
  std::array<CommandButton, kDevelopmentRows> PLUS;

  Frame fbron;
  Label Label3{"Bronie"};
  std::array<Label, 2> Label7{Label{"Broń do walki wręcz"}, Label{"Broń strzelecka"}};
  std::array<Label, 8> Label6;
  ListBox LBronww;
  ListBox Lbronss;
  Label BWnazwa{"bron1"};
  Label BSnazwa{"bron1"};
  Label BWdmg{"0"};
  Label BSdmg{"0"};
  Label BWcena{"0"};
  Label BScena{"0"};
  Label BWopis{"opis można rzucać czary"};
  Label BSopis{"opis można rzucać czary"};
  CommandButton Kupww{"Kup"};
  CommandButton Kupss{"Kup"};

  Frame fczar;
  std::array<Label, 3> Label11{Label{"Nazwa"}, Label{"Opis"}, Label{"Cena"}};
  std::array<Label, kSpells> Czarn;
  std::array<Label, kSpells> czarc;
  std::array<Label, kSpells> Label13;
  Label Label12;
  std::array<Label, 2> Label10;

  Frame Frame4;
  Label Label17;
  Label ammo;
  std::array<Label, kSupplies> wyp{Label{"0"}, Label{"0"}};
  std::array<Label, kGear> Spec;
  std::array<Label, kGear> Speccena;

  Frame Frame5;
  TextBox Plik;
  CommandButton Save;

 protected:
  explicit DevelopmentForm(Runtime& runtime);

  // The points, which live in the caption of Ile_jeszcze.
  [[nodiscard]] std::int64_t points() const;
  void setPoints(std::int64_t points);

  // The labels of a ladder, by the index of its statistic.
  std::span<Label> ladder(int statistic);
  // Moves the red mark of a ladder to the step that Poziomy holds, from the step below.
  void StatMark_Plus(int statistic);

  // Goes a step up a ladder for that price, if it can be paid and the ladder has one more.
  void addStep(int statistic, int price);

  // Fills the two lists from the catalogue.
  void Bron_Lista();
  // Buys one purchase of a supply by its index in wyp; the points are not tested here.
  void addSupply(int supply);
  // Writes steps and values of all statistics, lines 6 to 19 of the hero file. Raises an overflow
  // for an endurance beyond the range of an Integer.
  void writeStatistics(ItemWriter& out, Integer lostEndurance, Integer lives) const;
  // Writes the counts of the supplies; raises an overflow for one beyond the range of an Integer.
  void writeSupplies(ItemWriter& out) const;
  // Buys what is not owned yet and can be paid.
  void buy(bool& owned, std::int64_t price, Label& mark);
  static void markOwned(Label& label, bool owned);
  static std::int64_t number(const Label& label);

  // Hooks for what differs: the clicks on a spell, an item and a PLUS, and the description of a weapon.
  virtual void Czarn_Click(int index) = 0;
  virtual void Spec_Click(int index) = 0;
  virtual void PLUS_Click(int index) = 0;
  virtual std::string describe(WeaponKind, const BronRecord& weapon) const { return describeWeapon(weapon); }

  // The controls of a department, in the order of the keyboard.
  void listLadders(ControlTable& table);
  void listMelee(ControlTable& table);
  void listRanged(ControlTable& table);
  void listSpells(ControlTable& table);

  Runtime& runtime_;
  Bohater bohater;
  Catalogue<kShelfPlaces> katalog;
  Array<Integer, kStatistics> PoziomyMax;
  Integer WybranaWw;
  Integer WybranaSs;

 private:
  struct Desk;

  void LBronww_Click() { chooseWeapon(WeaponKind::melee); }
  void Lbronss_Click() { chooseWeapon(WeaponKind::ranged); }
  void Kupww_Click() { buyWeapon(WeaponKind::melee); }
  void Kupss_Click() { buyWeapon(WeaponKind::ranged); }

  // The controls and data of one of the two weapon lists, and what is done there.
  Desk desk(WeaponKind kind);
  void chooseWeapon(WeaponKind kind);
  void buyWeapon(WeaponKind kind);

  void designLadders();
  void designSpells();
  void designGear();
  void bindWeapons();
};

}  // namespace brolgan
