#include "departments/development_form.h"

#include "departments/tips.h"
#include "flow/text/number_text.h"

namespace brolgan {

struct DevelopmentForm::Desk {
  ListBox& list;
  Label& nazwa;
  Label& dmg;
  Label& cena;
  Label& opis;
  Integer& chosen;
};

DevelopmentForm::DevelopmentForm(Runtime& runtime) : runtime_(runtime) {
  designLadders();
  designSpells();
  designGear();
  bindWeapons();
}

void DevelopmentForm::designLadders() {
  for (int i = 0; i < kStatistics; ++i) {
    PoziomyMax(i) = kStatisticTable[i].top();
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

void DevelopmentForm::addStep(int statistic, int price) {
  if (points() < price || bohater.Poziomy(statistic) >= PoziomyMax(statistic)) return;
  bohater.Poziomy(statistic) += 1;
  StatMark_Plus(statistic);
  setPoints(points() - price);
}

void DevelopmentForm::Bron_Lista() {
  for (const WeaponKind kind : kWeaponKinds) {
    ListBox& list = desk(kind).list;
    list.Clear();
    for (int i = 0; i < katalog.count(kind).value(); ++i) list.AddItem(katalog.weapons(kind)(i).nazwa);
  }
}

void DevelopmentForm::addSupply(int supply) {
  Label& count = wyp[static_cast<std::size_t>(supply)];
  count.Caption = decimal(number(count) + kSupplyTable[static_cast<std::size_t>(supply)].perPurchase);
  setPoints(points() - kSupplyPrice);
}

// MEANT(values-from-ladders): values come from the ladders and the modifier's dice from its step, whatever a file
// said; only the endurance lost for good is kept.
void DevelopmentForm::writeStatistics(ItemWriter& out, Integer lostEndurance, Integer lives) const {
  for (const Statistic statistic : {kEndurance, kArmour, kPower, kSpeed, kRegeneration}) {
    const Integer step = bohater.Poziomy(statistic);
    const int lost = statistic == kEndurance ? lostEndurance.value() : 0;
    out.integer(step);
    out.rounded(ladderValue(statistic, step).value() - lost, {"Wartosci", statistic});
  }
  out.integer(bohater.Poziomy(kModifier));
  writeOnOneLine(out, modifierDice(bohater.Poziomy(kModifier)));
  out.integer(bohater.Poziomy(kLives));
  out.integer(lives);
}

void DevelopmentForm::writeSupplies(ItemWriter& out) const {
  for (int i = 0; i < kSupplies; ++i) out.rounded(static_cast<double>(number(wyp[i])), {"Wyp", i});
}

void DevelopmentForm::buy(bool& owned, std::int64_t price, Label& mark) {
  if (owned || points() < price) return;
  setPoints(points() - price);
  owned = true;
  mark.ForeColor = Colour::red;
}

void DevelopmentForm::markOwned(Label& label, bool owned) {
  label.ForeColor = owned ? Colour::red : Colour::buttonText;
}

std::int64_t DevelopmentForm::number(const Label& label) { return wholeNumber(label.Caption); }

DevelopmentForm::Desk DevelopmentForm::desk(WeaponKind kind) {
  if (kind == WeaponKind::ranged) return {Lbronss, BSnazwa, BSdmg, BScena, BSopis, WybranaSs};
  return {LBronww, BWnazwa, BWdmg, BWcena, BWopis, WybranaWw};
}

// Finds the record behind the selected row, the first of its name, and shows it.
void DevelopmentForm::chooseWeapon(WeaponKind kind) {
  const Desk at = desk(kind);
  const std::string text = at.list.Text();
  if (text.empty()) return;
  const auto& weapons = katalog.weapons(kind);
  at.chosen = 0;
  while (weapons(at.chosen).nazwa != text) at.chosen += 1;
  const BronRecord& weapon = weapons(at.chosen);
  at.nazwa.Caption = weapon.nazwa;
  at.dmg.Caption = OpisKosci(weapon.kostka);
  at.cena.Caption = decimal(weapon.cena);
  at.opis.Caption = describe(kind, weapon);
  markOwned(at.nazwa, bohater.slots(kind).owned(at.chosen));
}

// MEANT(purchase-unclicked): the selection starts at 0, so a purchase before any click is of the first weapon.
void DevelopmentForm::buyWeapon(WeaponKind kind) {
  const Desk at = desk(kind);
  buy(bohater.slots(kind).owned(at.chosen), katalog.weapons(kind)(at.chosen).cena.value(), at.nazwa);
}

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
