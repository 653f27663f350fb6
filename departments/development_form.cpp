#include "departments/development_form.h"

#include "departments/tips.h"
#include "flow/text/number_text.h"

namespace brolgan {

// The controls and data of one of the two weapon lists.
struct DevelopmentForm::Desk {
  ListBox& list;
  Label& nazwa;
  Label& dmg;
  Label& cena;
  Array<BronRecord, 11>& catalogue;
  Array<bool, 10>& owned;
  Integer& chosen;

  [[nodiscard]] const BronRecord& weapon() const { return catalogue(chosen); }
};

DevelopmentForm::DevelopmentForm(Runtime& runtime) : runtime_(runtime) {
  designLadders();
  designSpells();
  designGear();
  bindWeapons();
}

void DevelopmentForm::designLadders() {
  for (int i = 0; i < kStatistics; ++i) {
    Label5[i].Caption = kStatisticTable[i].name;
    Label5[i].ToolTipText = kStatisticTips[i];
    const auto labels = ladder(i);
    for (std::size_t step = 0; step < labels.size(); ++step) labels[step].Caption = kStatisticTable[i].ladder[step];
  }
  for (int i = 0; i < static_cast<int>(PLUS.size()); ++i) {
    PLUS[i].Caption = "+";
    PLUS[i].Click = [this, i] { PLUS_Click(i); };
  }
}

void DevelopmentForm::designSpells() {
  for (int i = 0; i < kSpells; ++i) {
    Czarn[i].Caption = kSpellTable[i].name;
    Czarn[i].Enabled = kSpellTable[i].forSale;
    Czarn[i].Click = [this, i] { Czarn_Click(i); };
    czarc[i].Caption = decimal(std::int64_t{kSpellTable[i].price});
    Label13[i].Caption = kSpellTable[i].description;
    Label13[i].ForeColor = colourOf(kSpellTable[i].group);
  }
  Label12 = {"Czar do rzucenia tylko na planszy", colourOf(SpellGroup::board)};
  Label10[0] = {"Czar do rzucenia zawsze", colourOf(SpellGroup::always)};
  Label10[1] = {"Czar do rzucenia tylko podczas walki", colourOf(SpellGroup::fight)};
}

void DevelopmentForm::designGear() {
  Label17.Caption = kSupplyTable[kGrenade].name;
  Label17.ToolTipText = kSupplyTips[kGrenade];
  ammo.Caption = kSupplyTable[kAmmo].name;
  ammo.ToolTipText = kSupplyTips[kAmmo];
  for (int i = 0; i < kGear; ++i) {
    Spec[i].Caption = kGearTable[i].name;
    Spec[i].Enabled = kGearTable[i].forSale;
    Spec[i].Click = [this, i] { Spec_Click(i); };
  }
}

void DevelopmentForm::bindWeapons() {
  LBronww.Click = [this] { LBronww_Click(); };
  Lbronss.Click = [this] { Lbronss_Click(); };
  Kupww.Click = [this] { Kupww_Click(); };
  Kupss.Click = [this] { Kupss_Click(); };
}

std::int64_t DevelopmentForm::points() const { return number(Ile_jeszcze); }

void DevelopmentForm::setPoints(std::int64_t points) { Ile_jeszcze.Caption = decimal(points); }

std::span<Label> DevelopmentForm::ladder(int statistic) {
  const std::array<std::span<Label>, kStatistics> ladders = {stat1, stat2, stat3, stat4, stat5, stat6, stat7};
  return ladders.at(static_cast<std::size_t>(statistic));
}

void DevelopmentForm::StatMark_Plus(int statistic) {
  const auto step = static_cast<std::size_t>(bohater.Poziomy(statistic).value());
  ladder(statistic)[step - 2].ForeColor = Colour::buttonText;
  ladder(statistic)[step - 1].ForeColor = Colour::red;
}

void DevelopmentForm::Bron_Lista() {
  LBronww.Clear();
  for (int i = 0; i < katalog.IleWw.value(); ++i) LBronww.AddItem(katalog.KatalogWw(i).nazwa);
  Lbronss.Clear();
  for (int i = 0; i < katalog.IleSs.value(); ++i) Lbronss.AddItem(katalog.KatalogSs(i).nazwa);
}

void DevelopmentForm::addSupply(int supply) {
  Label& count = wyp[static_cast<std::size_t>(supply)];
  count.Caption = decimal(number(count) + kSupplyTable[static_cast<std::size_t>(supply)].perPurchase);
  setPoints(points() - kSupplyPrice);
}

void DevelopmentForm::writeSupplies(ItemWriter& out) const {
  for (int i = 0; i < kSupplies; ++i) out.rounded(static_cast<double>(number(wyp[i])), {"Wyp", i});
}

bool DevelopmentForm::buy(bool& owned, std::int64_t price, Label& mark) {
  if (owned || points() < price) return false;
  setPoints(points() - price);
  owned = true;
  mark.ForeColor = Colour::red;
  return true;
}

void DevelopmentForm::markOwned(Label& label, bool owned) {
  label.ForeColor = owned ? Colour::red : Colour::buttonText;
}

std::int64_t DevelopmentForm::number(const Label& label) { return wholeNumber(label.Caption); }

DevelopmentForm::Desk DevelopmentForm::meleeDesk() {
  return {LBronww, BWnazwa, BWdmg, BWcena, katalog.KatalogWw, bohater.MaBronww, WybranaWw};
}

DevelopmentForm::Desk DevelopmentForm::rangedDesk() {
  return {Lbronss, BSnazwa, BSdmg, BScena, katalog.KatalogSs, bohater.MaBronss, WybranaSs};
}

// Finds the record behind the selected row, the first of its name, and shows it.
bool DevelopmentForm::choose(Desk desk) {
  const std::string text = desk.list.Text();
  if (text.empty()) return false;
  desk.chosen = 0;
  while (desk.weapon().nazwa != text) desk.chosen += 1;
  desk.nazwa.Caption = desk.weapon().nazwa;
  desk.dmg.Caption = OpisKosci(desk.weapon().kostka);
  desk.cena.Caption = decimal(desk.weapon().cena);
  return true;
}

void DevelopmentForm::LBronww_Click() {
  if (!choose(meleeDesk())) return;
  BWopis.Caption = describeMelee(katalog.KatalogWw(WybranaWw));
  markOwned(BWnazwa, bohater.MaBronww(WybranaWw));
}

void DevelopmentForm::Lbronss_Click() {
  if (!choose(rangedDesk())) return;
  BSopis.Caption = describe(katalog.KatalogSs(WybranaSs));
  markOwned(BSnazwa, bohater.MaBronss(WybranaSs));
}

// MEANT(purchase-unclicked): the selection starts at 0, so a purchase before any click is of the first weapon.
void DevelopmentForm::buyWeapon(const Desk& desk) {
  buy(desk.owned(desk.chosen), desk.weapon().cena.value(), desk.nazwa);
}

void DevelopmentForm::Kupww_Click() { buyWeapon(meleeDesk()); }

void DevelopmentForm::Kupss_Click() { buyWeapon(rangedDesk()); }

void DevelopmentForm::listLadders(ControlTable& table) {
  table.add("Label5", Label5, &fstat);
  table.add("stat1", stat1, &fstat);
  table.add("stat2", stat2, &fstat);
  table.add("stat3", stat3, &fstat);
  table.add("stat4", stat4, &fstat);
  table.add("stat5", stat5, &fstat);
  table.add("stat6", stat6, &fstat);
  table.add("stat7", stat7, &fstat);
}

void DevelopmentForm::listMelee(ControlTable& table) {
  table.add("fbron", fbron);
  table.add("Label3", Label3, &fbron);
  table.add("Label7", Label7, &fbron);
  table.add("Label6", Label6, &fbron);
  table.add("LBronww", LBronww, &fbron);
  table.add("BWnazwa", BWnazwa, &fbron);
  table.add("BWdmg", BWdmg, &fbron);
  table.add("BWcena", BWcena, &fbron);
  table.add("BWopis", BWopis, &fbron);
  table.add("Kupww", Kupww, &fbron);
}

void DevelopmentForm::listRanged(ControlTable& table) {
  table.add("Lbronss", Lbronss, &fbron);
  table.add("BSnazwa", BSnazwa, &fbron);
  table.add("BSdmg", BSdmg, &fbron);
  table.add("BScena", BScena, &fbron);
  table.add("BSopis", BSopis, &fbron);
  table.add("Kupss", Kupss, &fbron);
}

void DevelopmentForm::listSpells(ControlTable& table) {
  table.add("fczar", fczar);
  table.addMember("Label4", 1, Label4[1], &fczar);
  table.add("Label11", Label11, &fczar);
  table.add("Czarn", Czarn, &fczar);
  table.add("czarc", czarc, &fczar);
  table.add("Label13", Label13, &fczar);
  table.add("Label12", Label12, &fczar);
  table.add("Label10", Label10, &fczar);
}

}  // namespace brolgan
