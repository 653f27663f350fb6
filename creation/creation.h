// The creation screen: a budget of points buys class, statistics, weapons, spells and gear, with
// full refunds until the hero is saved. Reads makehro.cfg and bron.cfg; writes the hero file.
#pragma once

#include <array>

#include "departments/development_form.h"
#include "game/names/names.h"

namespace brolgan {

class CTmhero : public DevelopmentForm {
 public:
  static constexpr const char* kName = screens::kCreation;
  explicit CTmhero(Runtime& runtime);

  void Form_Load() override;

  std::array<PictureBox, 3> pics;
  Frame Frame6;
  std::array<OptionButton, kClasses> Klasa;
  std::array<CommandButton, kDevelopmentRows> MINUS;
  CommandButton Sprzedajww{"Sprzedaj"};
  CommandButton Sprzedajss{"Sprzedaj"};

 protected:
  void listControls(ControlTable& table) override;
  std::string describe(WeaponKind kind, const BronRecord& weapon) const override;

 private:
  void Klasa_Click(int index);
  void PLUS_Click(int index) override;
  void MINUS_Click(int index);
  void Sprzedajww_Click();
  void Sprzedajss_Click();
  void Czarn_Click(int index) override;
  void Spec_Click(int index) override;
  void Save_Click();

  void StatMark_Minus(int statistic);
  void takeStep(int statistic, int price);
  void takeSupply(int supply);
  void sell(bool& owned, Integer price, Label& mark);
  void toggle(bool& owned, const Label& price, Label& mark);

  [[nodiscard]] int chosenClass() const;
  void writeBeginning(ItemWriter& out);
  void grantBonuses();
  void writeGoods(ItemWriter& out);
  void writeHistory(ItemWriter& out);

  bool SatrapaDodane = false;
  // The gear of a new hero; the fifth has no control and stays unowned.
  Array<bool, kGear + 1> MaSpec;
};

}  // namespace brolgan
