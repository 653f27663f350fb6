// Loading, the lists of choices, choosing a weapon, and the figures of the screen.
#include "fight/fight.h"

#include <algorithm>

#include "fight/choices.h"
#include "flow/text/number_text.h"
#include "game/names/names.h"
#include "rules/development.h"

namespace brolgan {

Fight::Fight(Runtime& runtime, RandomSource& random)
    : SFX(runtime.sounds(), "SFX"), runtime_(runtime), random_(random) {
  Caption = "WALKA !";
  Heroshow.Click = [this] { Heroshow_Click(); };
  Bron.Click = [this] { Bron_Click(); };
  Atak.Click = [this] { Atak_Click(); };
  Czar.Click = [this] { Czar_Click(); };
  Rzuc.Click = [this] { Rzuc_Click(); };
  Uzyj.Click = [this] { Uzyj_Click(); };
  NastTura.Click = [this] { NastTura_Click(); };
  CloseZad.Click = [this] { CloseZad_Click(); };
  CloseDMG.Click = [this] { CloseDMG_Click(); };
}

// MEANT(early-strike): the first strike comes before the selections are restored and any figure is shown.
void Fight::Form_Load() {
  random_.seed(runtime_.Timer());
  Fight_Load();
  Player_Load();
  Bron_Load(runtime_.OpenForInput(kWeaponsFile), katalog, CountReading::integer, FlagReading::boolean);
  Bron_Walka();
  Czary_Lista();
  Przedmioty_Lista();
  if (PotworPierwszy == 1) AtakPotwora();
  Wybory_Load();
  Statystyki();
}

void Fight::Fight_Load() {
  const FightSetup setup = readFight(runtime_.OpenForInput(kFightFile));
  PotworPierwszy = setup.PotworPierwszy;
  PlikBohatera = setup.PlikBohatera;
  BonusPancerza = setup.BonusPancerza;
  RundyNiesmiertelnosci = setup.RundyNiesmiertelnosci;
  IlePotworow = setup.potwor.Ilosc;
  PotworNazwa = setup.potwor.Nazwa;
  PotworObraz = setup.potwor.Obrazek;
  PotworSzybkosc = setup.potwor.Szybkosc;
  PotworAtak = setup.potwor.Atak;
  NrPotwora = setup.NrPotwora;
  if (IlePotworow > PotworZycie.size) throw RuntimeError(ErrorCode::subscript, {kFightFile, 5, "Ilosc"});
  Ostatni = IlePotworow - 1;
  PotworZycie(0) = setup.potwor.Wytrzymalosc;
  PotworPancerz(0) = setup.potwor.Pancerz;
  for (int i = 1; i <= Ostatni.value(); ++i) {
    PotworZycie(i) = PotworZycie(0);
    PotworPancerz(i) = PotworPancerz(0);
  }
}

void Fight::Player_Load() { bohater = brolgan::Player_Load(runtime_.OpenForInput(PlikBohatera)); }

void Fight::Bron_Walka() {
  for (int i = 0; i < bohater.MaBronww.size; ++i) {
    if (bohater.MaBronww(i)) Bron.AddItem(katalog.KatalogWw(i).nazwa);
  }
  for (int i = 0; i < bohater.MaBronss.size; ++i) {
    if (bohater.MaBronss(i)) Bron.AddItem(katalog.KatalogSs(i).nazwa);
  }
}

void Fight::Czary_Lista() {
  for (const auto& [index, name] : kFightSpells) {
    if (bohater.MaCzar(index)) Czar.AddItem(name);
  }
  if (bohater.Przedmioty(kStrongHealingCounter) >= 1) Czar.AddItem(kStrongHealingSpell);
}

void Fight::Przedmioty_Lista() {
  while (Przedmiot.ListCount() > 0) Przedmiot.RemoveItem(0);
  if (bohater.Wyp(kGrenade) > 0) Przedmiot.AddItem(kGrenadeItem);
  if (bohater.Wyp(kAmmo) >= 1) Przedmiot.AddItem(kAmmoItem);
}

namespace {

// Selects every row of that name in turn, so that the last of several stays selected.
void restore(Rows& list, const std::string& name) {
  for (int row = 0; row < list.ListCount(); ++row) {
    if (list.List(row) == name) list.ListIndex(row);
  }
}

}  // namespace

void Fight::Wybory_Load() {
  restore(Bron, bohater.OstatniaBron);
  restore(Czar, bohater.OstatniCzar);
  restore(Przedmiot, bohater.OstatniPrzedmiot);
}

Integer Fight::armour() const { return bohater.Wartosci(kArmour) + BonusPancerza + Pancerz3A; }

void Fight::Statystyki() {
  LIle.Caption = decimal(Ostatni + 1);
  Odl.Caption = Blisko ? "BLISKA" : "DALEKA";
  Pstat[0].Caption = decimal(bohater.AktWytrzymalosc);
  Pstat[1].Caption = decimal(armour());
  Pstat[2].Caption = decimal(bohater.AktMoc);
  Pstat[3].Caption = damageText();
  if (Ostatni < 0) return;
  Mstat[0].Caption = decimal(targetLife());
  Mstat[1].Caption = decimal(targetArmour());
  Mstat[2].Caption = decimal(PotworSzybkosc);
  Mstat[3].Caption = OpisKosci(PotworAtak);
  Potwór.Picture = runtime_.LoadPicture(PotworObraz);
}

// MEANT(shown-ranged-bonus): a ranged weapon shows its percent and flat bonus, though its damage never uses them.
std::string Fight::damageText() const {
  const auto bonuses = [](Integer plus, Integer percent) { return "+" + str(plus) + "+" + str(percent) + "%"; };
  if (Bron.Text().empty()) return OpisKosci(bohater.MO);
  if (RodzajBroni == kMelee) {
    return OpisKosci(bohater.MO) + "+" + OpisKosci(BronKostka) +
           bonuses(bohater.BronwwPlus(WybranaBron), bohater.BronwwProc(WybranaBron));
  }
  return OpisKosci(BronKostka) + bonuses(bohater.BronssPlus(WybranaBron), bohater.BronssProc(WybranaBron));
}

// Weapons are told apart by name; a name that the game does not know keeps the place of the
// weapon chosen before it.
void Fight::Bron_Click() {
  const std::string name = Bron.Text();
  const auto* const found = std::find(kWeaponNames.begin(), kWeaponNames.end(), name);
  if (found != kWeaponNames.end()) WybranaBron = static_cast<int>(found - kWeaponNames.begin());
  RodzajBroni = kMelee;
  if (WybranaBron >= 10) {
    RodzajBroni = kRanged;
    WybranaBron -= 10;
  }
  BronKostka = (RodzajBroni == kMelee ? katalog.KatalogWw : katalog.KatalogSs)(WybranaBron).kostka;
  if (!name.empty()) Pstat[3].Caption = damageText();
}

// The sheet reads the file, so it shows the hero as he came from the preparation.
void Fight::Heroshow_Click() { runtime_.Reopen(screens::kSheet); }

void Fight::CloseZad_Click() { FZad.Visible = false; }

void Fight::play(const std::string& file) {
  SFX.FileName = file;
  SFX.Play();
}

void Fight::disableActions() {
  Atak.Enabled = false;
  Rzuc.Enabled = false;
  Uzyj.Enabled = false;
}

void Fight::listControls(ControlTable& table) {
  table.add("Heroshow", Heroshow);
  table.add("Potwór", Potwór);
  table.add("Label1", Label1);
  table.add("Odl", Odl);
  table.add("LIle", LIle);
  table.add("Label2", Label2);
  table.add("Pstat", Pstat);
  table.add("Mstat", Mstat);
  table.add("Bron", Bron);
  table.add("Atak", Atak);
  table.add("Czar", Czar);
  table.add("mana", mana);
  table.add("Rzuc", Rzuc);
  table.add("Przedmiot", Przedmiot);
  table.add("Uzyj", Uzyj);
  table.add("NastTura", NastTura);
  table.add("FZad", FZad);
  table.add("Picture2", Picture2, &FZad);
  table.add("Label4", Label4, &FZad);
  table.add("IleZad", IleZad, &FZad);
  table.add("OpisZad", OpisZad, &FZad);
  table.add("CloseZad", CloseZad, &FZad);
  table.add("FDamage", FDamage);
  table.add("Picture1", Picture1, &FDamage);
  table.add("Label3", Label3, &FDamage);
  table.add("IleDMG", IleDMG, &FDamage);
  table.add("OpisDMG", OpisDMG, &FDamage);
  table.add("CloseDMG", CloseDMG, &FDamage);
  table.add("Uwaga", Uwaga);
  table.add("SFX", SFX);
}

}  // namespace brolgan
