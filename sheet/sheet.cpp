#include "sheet/sheet.h"

#include "flow/text/number_text.h"
#include "rules/handover.h"

namespace brolgan {

FHero::FHero(Runtime& runtime) : runtime_(runtime) {
  Caption = "Bohater";
  HeroClose.Click = [this] { HeroClose_Click(); };
}

void FHero::Form_Load() {
  ItemReader game = runtime_.OpenForInput(kGameFile);
  game.integer("liczba graczy");
  Player_Load(game.string("Gracz(1)"));
  Bron_Load(runtime_.OpenForInput(kWeaponsFile), katalog, CountReading::integer, FlagReading::text);
  Potwory_Load(runtime_.OpenForInput(kMonstersFile), Potwory);
  showHero();
}

void FHero::Player_Load(const std::string& heroFile) {
  bohater = brolgan::Player_Load(runtime_.OpenForInput(heroFile));
}

void FHero::showHero() {
  Imie.Caption = bohater.Imie;
  for (int i = 0; i < bohater.Wartosci.size; ++i) Pstat[i].Caption = decimal(bohater.Wartosci(i));
  Pstat[5].Caption = OpisKosci(bohater.MO);
  listWeapons();
  listKills();
  klasa.Caption = bohater.Klasa;
}

void FHero::listWeapons() {
  const auto entry = [](const BronRecord& weapon, Integer percent) {
    return weapon.nazwa + " (+" + decimal(percent) + "%)";
  };
  for (const WeaponKind kind : kWeaponKinds) {
    const auto slots = bohater.slots(kind);
    for (int i = 0; i < katalog.count(kind).value(); ++i) {
      if (slots.owned(i)) Bron.AddItem(entry(katalog.weapons(kind)(i), slots.percent(i)));
    }
  }
}

// MEANT(nameless-kill): a kill beyond the list shows an empty name.
void FHero::listKills() {
  for (int i = 0; i < bohater.Stwory.size; ++i) {
    if (bohater.Stwory(i) <= 0) continue;
    Stwory.AddItem(Potwory(i).Nazwa + " (" + decimal(bohater.Stwory(i)) + ")");
    kills_.push_back(i);
  }
}

const std::string& FHero::pictureOfKill(int row) const {
  return Potwory(kills_.at(static_cast<std::size_t>(row))).Obrazek;
}

void FHero::HeroClose_Click() {
  runtime_.Hide(kName);
  runtime_.Unload(kName);
}

void FHero::listControls(ControlTable& table) {
  table.add("Imie", Imie);
  table.add("klasa", klasa);
  table.add("pstatl", pstatl);
  table.add("Pstat", Pstat);
  table.add("Label1", Label1);
  table.add("Bron", Bron);
  table.add("Label2", Label2);
  table.add("Stwory", Stwory);
  table.add("HeroClose", HeroClose);
}

}  // namespace brolgan
