#include "creation/creation.h"

#include "departments/tips.h"
#include "flow/text/number_text.h"
#include "game/names/names.h"
#include "rules/handover.h"

namespace brolgan {

namespace {

int stepPrice(int statistic) { return statistic == kLives ? kCreationLifePrice : kCreationStepPrice; }

}  // namespace

CTmhero::CTmhero(Runtime& runtime) : DevelopmentForm(runtime) {
  Caption = "Tworzenie bohatera";
  Label1.Caption = "Tworzenie bohatera";
  Label4 = {Label{"Rozwijanie statystyk:"}, Label{"Czary"}, Label{"Wyposażenie dodatkowe"}, Label{"Zapisywanie"}};
  Label6 = {Label{"Nazwa"}, Label{"Obrażenia"}, Label{"Cena"}, Label{"Opis"},
            Label{"Nazwa"}, Label{"Obrażenia"}, Label{"Cena"}, Label{"Opis"}};
  Label14.Caption = "Klasa bohatera";
  Label15.Caption =
      "Ceny przy tworzeniu bohatera są zazwyczaj niższe od sklepowych. Cechy kosztują w sklepie 2 punkty, moździerz 7, "
      "zasysacz 9. Ceny broni i czarów nie zmieniają się. Po wybraniu klasy bohatera nie będziesz już mógł jej zmienić "
      "do końca gry. Wcielenia możesz kupić tylko teraz. W sklepie nie zawsze znajduje się to, czego potrzebujesz - "
      "często trzeba na to poczekać...";
  Plik = {.Text = "hero.boh", .Visible = false};
  Save.Caption = "Zapisz";
  Save.Click = [this] { Save_Click(); };
  pics[0].Picture = pictures::kCreationSword;
  pics[1].Picture = pictures::kCreationBook;
  pics[2].Picture = pictures::kCreationMug;
  for (int i = 0; i < kStatistics; ++i) ladder(i)[0].ForeColor = Colour::red;
  for (int i = 0; i < kClasses; ++i) {
    Klasa[i] = {kClassTable[i].caption, i == 0, kClassTips[i], [this, i] { Klasa_Click(i); }};
  }
  for (int i = 0; i < static_cast<int>(MINUS.size()); ++i) {
    MINUS[i].Caption = "--";
    MINUS[i].Click = [this, i] { MINUS_Click(i); };
  }
  for (int i = 0; i < kGear; ++i) {
    Spec[i].ToolTipText = kCreationGearTips[i];
    Speccena[i].Caption = decimal(std::int64_t{kGearTable[i].creationPrice});
  }
  Sprzedajww.Click = [this] { Sprzedajww_Click(); };
  Sprzedajss.Click = [this] { Sprzedajss_Click(); };
}

void CTmhero::Form_Load() {
  ItemReader in = runtime_.OpenForInput(kMakeHeroFile);
  Plik.Text = in.string("Plik");
  Ile_jeszcze.Caption = decimal(in.integer("Ile_jeszcze"));
  for (Integer& step : bohater.Poziomy) step = 1;
  bohater.MaBronww(0) = true;
  bohater.MaBronss(0) = true;
  Bron_Load(runtime_.OpenForInput(kWeaponsFile), katalog, CountReading::variant, FlagReading::text);
  Bron_Lista();
}

// MEANT(negative-budget): taking the points of "Satrapa" back is not guarded, so the budget may go below 0.
void CTmhero::Klasa_Click(int index) {
  if (index == kSatrap && !SatrapaDodane) {
    SatrapaDodane = true;
    setPoints(points() + kSatrapPoints);
  }
  if (index != kSatrap && SatrapaDodane) {
    SatrapaDodane = false;
    setPoints(points() - kSatrapPoints);
  }
}

void CTmhero::PLUS_Click(int index) {
  if (points() <= 0) return;
  if (index > kLives) {
    addSupply(index - kStatistics);
  } else {
    addStep(index, stepPrice(index));
  }
}

void CTmhero::MINUS_Click(int index) {
  if (index > kLives) {
    takeSupply(index - kStatistics);
  } else {
    takeStep(index, stepPrice(index));
  }
}

void CTmhero::takeSupply(int supply) {
  Label& count = wyp[static_cast<std::size_t>(supply)];
  if (number(count) <= 0) return;
  count.Caption = decimal(number(count) - kSupplyTable[static_cast<std::size_t>(supply)].perPurchase);
  setPoints(points() + kSupplyPrice);
}

void CTmhero::takeStep(int statistic, int price) {
  if (bohater.Poziomy(statistic) <= 1) return;
  bohater.Poziomy(statistic) -= 1;
  StatMark_Minus(statistic);
  setPoints(points() + price);
}

void CTmhero::StatMark_Minus(int statistic) {
  const auto step = static_cast<std::size_t>(bohater.Poziomy(statistic).value());
  ladder(statistic)[step].ForeColor = Colour::buttonText;
  ladder(statistic)[step - 1].ForeColor = Colour::red;
}

void CTmhero::sell(bool& owned, Integer price, Label& mark) {
  setPoints(points() + price.value());
  owned = false;
  mark.ForeColor = Colour::buttonText;
}

// MEANT(sale-unclicked): the selection starts at 0, so a sale before any click is of the starting weapon.
void CTmhero::Sprzedajww_Click() {
  if (!bohater.MaBronww(WybranaWw)) return;
  sell(bohater.MaBronww(WybranaWw), katalog.KatalogWw(WybranaWw).cena, BWnazwa);
}

// MEANT(sale-by-melee): the sale of a ranged weapon tests the ranged flag at the melee selection, so it can pay
// for one weapon again and again, and refuse another that is owned.
void CTmhero::Sprzedajss_Click() {
  if (!bohater.MaBronss(WybranaWw)) return;
  sell(bohater.MaBronss(WybranaSs), katalog.KatalogSs(WybranaSs).cena, BSnazwa);
}

void CTmhero::toggle(bool& owned, const Label& price, Label& mark) {
  if (!owned) {
    buy(owned, number(price), mark);
    return;
  }
  setPoints(points() + number(price));
  owned = false;
  mark.ForeColor = Colour::buttonText;
}

void CTmhero::Czarn_Click(int index) { toggle(bohater.MaCzar(index), czarc[index], Czarn[index]); }

void CTmhero::Spec_Click(int index) { toggle(MaSpec(index), Speccena[index], Spec[index]); }

std::string CTmhero::describe(WeaponKind kind, const BronRecord& weapon) const {
  const bool warned = kind == WeaponKind::ranged && weapon.nazwa == kUltiGun;
  return describeWeapon(weapon) + (warned ? kUltiGunWarning : "");
}

int CTmhero::chosenClass() const {
  int index = 0;
  while (!Klasa[index].Value) ++index;
  return index;
}

void CTmhero::Save_Click() {
  if (points() < 0) return;
  ItemWriter out = runtime_.OpenForOutput(Plik.Text);
  writeBeginning(out);
  grantBonuses();
  writeWeapons(out, bohater);
  writeGoods(out);
  writeHistory(out);
  out.close();
  runtime_.Hide(kName);
  runtime_.Load(screens::kSetUp);
  runtime_.Show(screens::kSetUp);
  runtime_.Unload(kName);
}

void CTmhero::writeBeginning(ItemWriter& out) {
  out.string(Imie.Text);
  out.rounded(static_cast<double>(points()), "Ile_jeszcze");
  out.string(Klasa[chosenClass()].Caption);
  out.integer(ladderValue(kEndurance, bohater.Poziomy(kEndurance)));
  out.integer(ladderValue(kPower, bohater.Poziomy(kPower)));
  writeStatistics(out, 0, ladderValue(kLives, bohater.Poziomy(kLives)));
}

// MEANT(bonus-on-all): a class's bonus stands on all ten weapons of its kind, owned or not.
void CTmhero::grantBonuses() {
  const ClassRow& grants = kClassTable[chosenClass()];
  for (const WeaponKind kind : kWeaponKinds) {
    const auto slots = bohater.slots(kind);
    for (Integer& percent : slots.percent) percent = grants.percent(kind);
    for (Integer& plus : slots.plus) plus = grants.plus;
  }
}

// MEANT(fifth-flag-written): five gear flags and sixteen zeros stand where readers take four flags and seventeen
// counters; the fifth flag lies on the line of the first counter and reads as 0 there.
void CTmhero::writeGoods(ItemWriter& out) {
  writeFlags(out, bohater.MaCzar);
  writeSupplies(out);
  writeFlags(out, MaSpec);
  for (int i = 1; i < bohater.Przedmioty.size; ++i) out.integer(0);
}

void CTmhero::writeHistory(ItemWriter& out) {
  out.integer(1);
  writeLastChoices(out, bohater);
  writeKills(out, bohater);
}

void CTmhero::listControls(ControlTable& table) {
  table.add("pics", pics);
  table.add("Label1", Label1);
  table.add("Label2", Label2);
  table.add("Ile_jeszcze", Ile_jeszcze);
  table.add("Imie", Imie);
  table.add("Label15", Label15);
  table.add("Frame6", Frame6);
  table.add("Label14", Label14, &Frame6);
  table.add("Klasa", Klasa, &Frame6);
  table.add("fstat", fstat);
  table.addMember("Label4", 0, Label4[0], &fstat);
  listLadders(table);
  for (int i = 0; i < kStatistics; ++i) {
    table.addMember("MINUS", i, MINUS[i], &fstat);
    table.addMember("PLUS", i, PLUS[i], &fstat);
  }
  listMelee(table);
  table.add("Sprzedajww", Sprzedajww, &fbron);
  listRanged(table);
  table.add("Sprzedajss", Sprzedajss, &fbron);
  listSpells(table);
  table.add("Frame4", Frame4);
  table.addMember("Label4", 2, Label4[2], &Frame4);
  table.add("Label17", Label17, &Frame4);
  table.add("ammo", ammo, &Frame4);
  table.add("wyp", wyp, &Frame4);
  for (int i = kStatistics; i < static_cast<int>(PLUS.size()); ++i) {
    table.addMember("MINUS", i, MINUS[i], &Frame4);
    table.addMember("PLUS", i, PLUS[i], &Frame4);
  }
  table.add("Spec", Spec, &Frame4);
  table.add("Speccena", Speccena, &Frame4);
  table.add("Frame5", Frame5);
  table.addMember("Label4", 3, Label4[3], &Frame5);
  table.add("Plik", Plik, &Frame5);
  table.add("Save", Save, &Frame5);
}

}  // namespace brolgan
