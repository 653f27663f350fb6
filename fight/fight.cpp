// Loading, the lists of choices, choosing a weapon, and the figures of the screen.
#include "fight/fight.h"

#include <algorithm>

#include "fight/choices.h"
#include "flow/text/number_text.h"
#include "game/names/names.h"

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
  if (handedOver_.monstersFirst()) AtakPotwora();
  Wybory_Load();
  Statystyki();
}

void Fight::Fight_Load() {
  const FightSetup setup = readFight(runtime_.OpenForInput(kFightFile));
  handedOver_ = {setup.PotworPierwszy, setup.PlikBohatera, setup.BonusPancerza, setup.RundyNiesmiertelnosci};
  group_ = gather(setup);
}

void Fight::Player_Load() { bohater = brolgan::Player_Load(runtime_.OpenForInput(handedOver_.PlikBohatera)); }

void Fight::Bron_Walka() {
  for (const WeaponKind kind : kWeaponKinds) {
    for (int i = 0; i < kWeaponsOfAKind; ++i) {
      if (bohater.slots(kind).owned(i)) Bron.AddItem(katalog.weapons(kind)(i).nazwa);
    }
  }
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

void Fight::Statystyki() {
  LIle.Caption = decimal(group_.Ostatni + 1);
  Odl.Caption = round_.Blisko ? "BLISKA" : "DALEKA";
  Pstat[0].Caption = decimal(bohater.AktWytrzymalosc);
  Pstat[1].Caption = decimal(bohater.Wartosci(kArmour) + handedOver_.BonusPancerza + effects_.Pancerz3A);
  Pstat[2].Caption = decimal(bohater.AktMoc);
  Pstat[3].Caption = damageText();
  if (!group_.hasTarget()) return;
  Mstat[0].Caption = decimal(group_.targetLife());
  Mstat[1].Caption = decimal(group_.targetArmour());
  Mstat[2].Caption = decimal(group_.PotworSzybkosc);
  Mstat[3].Caption = OpisKosci(group_.PotworAtak);
  Potwór.Picture = runtime_.LoadPicture(group_.PotworObraz);
}

// MEANT(shown-ranged-bonus): a ranged weapon shows its percent and flat bonus, though its damage never uses them.
std::string Fight::damageText() const {
  if (Bron.Text().empty()) return OpisKosci(bohater.MO);
  const auto slots = bohater.slots(weapon_.RodzajBroni);
  const std::string strength = weapon_.isMelee() ? OpisKosci(bohater.MO) + "+" : "";
  return strength + OpisKosci(weapon_.BronKostka) + "+" + str(slots.plus(weapon_.WybranaBron)) + "+" +
         str(slots.percent(weapon_.WybranaBron)) + "%";
}

// Weapons are told apart by name; a name that the game does not know keeps the place of the
// weapon chosen before it.
void Fight::Bron_Click() {
  const std::string name = Bron.Text();
  const auto* const found = std::find(kWeaponNames.begin(), kWeaponNames.end(), name);
  if (found != kWeaponNames.end()) weapon_.WybranaBron = static_cast<int>(found - kWeaponNames.begin());
  weapon_.RodzajBroni = WeaponKind::melee;
  if (weapon_.WybranaBron >= kWeaponsOfAKind) {
    weapon_.RodzajBroni = WeaponKind::ranged;
    weapon_.WybranaBron -= kWeaponsOfAKind;
  }
  weapon_.BronKostka = katalog.weapons(weapon_.RodzajBroni)(weapon_.WybranaBron).kostka;
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
