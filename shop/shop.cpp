#include "shop/shop.h"

#include <string>

#include "departments/tips.h"
#include "flow/text/number_text.h"
#include "game/names/names.h"
#include "rules/handover.h"

namespace brolgan {

CTsklep::CTsklep(Runtime& runtime) : DevelopmentForm(runtime) {
  Caption = "Sklep ";
  Label1.Caption = "Sklep";
  Label4 = {Label{"Rozwijanie statystyk:"}, Label{"Czary"}, Label{"Wyposażenie dodatkowe"}, Label{}};
  Label6 = {Label{"Nazwa"}, Label{"Obrażenia"}, Label{"Cena"},      Label{"Opis"},
            Label{"Opis"},  Label{"Cena"},      Label{"Obrażenia"}, Label{"Nazwa"}};
  Label14.Caption = "Towar raz kupiony nie podlega zwrotowi !!!";
  Label15.Caption = "Tura numer:";
  Imie.Locked = true;
  Imie.TabStop = false;
  Plik = {.Visible = false, .Locked = true};
  Save = {.Caption = "Tak, Koniec", .Visible = false, .Enabled = false, .Click = [this] { Save_Click(); }};
  Heroshow.Click = [this] { Heroshow_Click(); };
  pics[0].Picture = pictures::kSignBoard;
  pics[1].Picture = pictures::kShutSpells;
  pics[2].Picture = pictures::kShutWeapons;
  pics[3].Picture = pictures::kShutStatistics;
  pics[4].Picture = pictures::kLantern;
  for (int i = 0; i < kGear; ++i) {
    Spec[i].ToolTipText = kShopGearTips[i];
    Speccena[i].Caption = decimal(std::int64_t{kGearTable[i].shopPrice});
  }
  const auto buttons = zoneButtons();
  for (std::size_t i = 0; i < buttons.size(); ++i) {
    buttons[i]->Caption = kZones[i].caption;
    buttons[i]->Click = [this, i] { zone_Click(kZones[i]); };
  }
}

std::array<CommandButton*, 12> CTsklep::zoneButtons() {
  return {&w1, &w2, &w3, &w4, &w5, &w6, &w7, &w8, &w9, &w10, &w11, &w12};
}

void CTsklep::Form_Load() {
  Sklep_Load();
  Bron_Load(runtime_.OpenForInput(kWeaponsFile), katalog, CountReading::integer, FlagReading::text);
  Bron_Lista();
}

void CTsklep::Sklep_Load() {
  ItemReader in = runtime_.OpenForInput(kShopFile);
  Plik.Text = in.string("Plik");
  openDepartments(in.integer("TrybSklepu"));
  readHero(runtime_.OpenForInput(Plik.Text));
}

// MEANT(odd-mode): any mode but the four leaves all departments open.
void CTsklep::openDepartments(Integer mode) {
  const bool oneAlone = mode >= kStatisticsAlone && mode <= kWeaponsAlone;
  fstat.Visible = !oneAlone || mode == kStatisticsAlone;
  fczar.Visible = !oneAlone || mode == kSpellsAlone;
  fbron.Visible = !oneAlone || mode == kWeaponsAlone;
}

void CTsklep::readHero(ItemReader in) {
  readPerson(in, bohater);
  Imie.Text = bohater.Imie;
  Ile_jeszcze.Caption = decimal(bohater.Ile_jeszcze);
  akt[0].Caption = decimal(bohater.AktWytrzymalosc);
  akt[1].Caption = decimal(bohater.AktMoc);
  readStatistics(in, bohater, stepLines_);
  rememberLostEndurance();
  readModifier(in, bohater, stepLines_);
  akt[2].Caption = decimal(bohater.Wcielenia);
  markLadders();
  readWeapons(in, bohater);
  readGoods(in, bohater);
  readHistory(in, bohater);
  showGoods();
}

// The place of the hero's step on a ladder; a step that the ladder does not have has no label.
std::size_t CTsklep::stepPlace(int statistic) {
  const Integer index = bohater.Poziomy(statistic) - 1;
  if (index < 0 || index.value() >= PoziomyMax(statistic).value()) {
    const int line = stepLines_[static_cast<std::size_t>(statistic)];
    throw RuntimeError(ErrorCode::noSuchControl, {Plik.Text, line, Field("Poziomy", statistic).text()});
  }
  return static_cast<std::size_t>(index.value());
}

// What the hero has lost of his maximum endurance for good; it survives every later rise.
void CTsklep::rememberLostEndurance() {
  const std::int64_t value = number(stat1[stepPlace(kEndurance)]);
  UbytekWytrzymalosci = toInteger(static_cast<double>(value)) - bohater.Wartosci(kEndurance);
}

void CTsklep::markLadders() {
  for (int i = 0; i < kStatistics; ++i) ladder(i)[stepPlace(i)].ForeColor = Colour::red;
}

void CTsklep::showGoods() {
  for (int i = 0; i < kSpells; ++i) markOwned(Czarn[i], bohater.MaCzar(i));
  for (int i = 0; i < kGear; ++i) markOwned(Spec[i], bohater.MaSpec(i));
  for (int i = 0; i < kSupplies; ++i) wyp[i].Caption = decimal(bohater.Wyp(i));
  Tura.Caption = decimal(bohater.Tura);
}

// The sheet reads the file, so it does not show what was bought on this visit.
void CTsklep::Heroshow_Click() { runtime_.Reopen(screens::kSheet); }

void CTsklep::PLUS_Click(int index) {
  if (points() <= 0) return;
  if (index > kLives) {
    addSupply(index - kStatistics);
  } else {
    addStep(index, kShopStepPrice);
  }
}

void CTsklep::Czarn_Click(int index) { buy(bohater.MaCzar(index), number(czarc[index]), Czarn[index]); }

void CTsklep::Spec_Click(int index) { buy(bohater.MaSpec(index), number(Speccena[index]), Spec[index]); }

void CTsklep::zone_Click(const Strefa& zone) {
  writeZone(runtime_.OpenForOutput(kPreparationFile), Plik.Text, zone.OdPotwora, zone.DoPotwora);
  Save_Click();
}

// MEANT(hidden-save): the leaving routine; its button is never shown; only the zones call it.
void CTsklep::Save_Click() {
  ItemWriter out = runtime_.OpenForOutput(Plik.Text);
  writeBeginning(out);
  writeStatistics(out, UbytekWytrzymalosci, bohater.Wcielenia);
  writeWeapons(out, bohater);
  writeGoods(out);
  out.rounded(bohater.Tura.value() + 1, "Tura");
  writeLastChoices(out, bohater);
  writeKills(out, bohater);
  out.close();
  runtime_.Replace(kName, screens::kPreparation);
}

void CTsklep::writeBeginning(ItemWriter& out) {
  out.string(Imie.Text);
  if (isClass(bohater.Klasa, kGambler)) setPoints(0);
  out.rounded(static_cast<double>(points()), "Ile_jeszcze");
  out.string(bohater.Klasa);
  out.integer(bohater.AktWytrzymalosc);
  out.integer(bohater.AktMoc);
}

void CTsklep::writeGoods(ItemWriter& out) {
  writeFlags(out, bohater.MaCzar);
  writeSupplies(out);
  writeFlags(out, bohater.MaSpec);
  writeItems(out, bohater);
}

void CTsklep::listControls(ControlTable& table) {
  table.add("pics", pics);
  table.add("Label1", Label1);
  table.add("Label2", Label2);
  table.add("Ile_jeszcze", Ile_jeszcze);
  table.add("Label15", Label15);
  table.add("Tura", Tura);
  table.add("Label14", Label14);
  table.add("Imie", Imie);
  table.add("Heroshow", Heroshow);
  table.add("fstat", fstat);
  table.addMember("Label4", 0, Label4[0], &fstat);
  listLadders(table);
  for (int i = 0; i < kLives; ++i) table.addMember("PLUS", i, PLUS[i], &fstat);
  table.add("akt", akt, &fstat);
  listMelee(table);
  listRanged(table);
  listSpells(table);
  table.add("Frame4", Frame4);
  table.addMember("Label4", 2, Label4[2], &Frame4);
  table.add("Label17", Label17, &Frame4);
  table.add("ammo", ammo, &Frame4);
  table.add("wyp", wyp, &Frame4);
  for (int i = kStatistics; i < static_cast<int>(PLUS.size()); ++i) table.addMember("PLUS", i, PLUS[i], &Frame4);
  table.add("Spec", Spec, &Frame4);
  table.add("Speccena", Speccena, &Frame4);
  table.add("Frame5", Frame5);
  const auto buttons = zoneButtons();
  for (std::size_t i = 0; i < buttons.size(); ++i) {
    table.add(("w" + std::to_string(i + 1)).c_str(), *buttons[i], &Frame5);
  }
  table.add("Save", Save, &Frame5);
  table.add("Plik", Plik);
}

}  // namespace brolgan
