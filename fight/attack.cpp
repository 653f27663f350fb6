// The hero's blows and shots.
#include "fight/choices.h"
#include "fight/fight.h"
#include "flow/text/number_text.h"
#include "game/names/names.h"
#include "rules/battle.h"

namespace brolgan {

void Fight::Atak_Click() {
  if (mayStrike()) {
    strike();
  } else if (RodzajBroni == kRanged && MozeStrzelac) {
    shoot();
  }
  Zabici();
}

// MEANT(always-near): the distance is never far, and still it is asked.
bool Fight::mayStrike() const { return RodzajBroni == kMelee && Blisko && MozeBic && (MozeRzucac || isStaff()); }

// MEANT(staff-by-place): a staff is known by its place in the catalogue, not by its flag.
bool Fight::isStaff() const { return WybranaBron >= kFirstStaff && WybranaBron <= kLastStaff; }

void Fight::strike() {
  spendBlow();
  const Integer strength = Rzuty(random_, bohater.MO);
  const Integer weaponRoll = Rzuty(random_, BronKostka);
  Obrazenia = meleeDamage(bohater, WybranaBron, strength, BronKostka, weaponRoll);
  if (isClass(bohater.Klasa, kWitcher)) Obrazenia += witcherBonus(bohater.Wartosci(kSpeed));
  grow(bohater.BronwwProc(WybranaBron), 120, 76);
  play(katalog.KatalogWw(WybranaBron).dzwiek);
  IleZad.Caption.clear();
  OpisZad.Caption.clear();
  ZadajObrazenia(Obrazenia);
}

// A Berserker's first blow of a round is free.
void Fight::spendBlow() {
  if (isClass(bohater.Klasa, kBerserker) && DrugiCios) {
    DrugiCios = false;
    return;
  }
  MozeBic = false;
  MozeStrzelac = false;
  Atak.Enabled = false;
  if (isStaff()) return;
  MozeRzucac = false;
  Rzuc.Enabled = false;
}

// A weapon gets better with use: the better it is, the more seldom, but never less than by the
// rolls from the threshold on.
void Fight::grow(Integer& percent, Integer die, Integer threshold) {
  const Integer roll = Rzut(random_, 1, die);
  if (roll > percent || roll >= threshold) percent += 2;
}

void Fight::shoot() {
  MozeBic = false;
  MozeStrzelac = false;
  MozeRzucac = false;
  Rzuc.Enabled = false;
  Atak.Enabled = false;
  if (WybranaBron == kCannon) {
    fireCannon();
  } else {
    fire();
  }
  payForUltiGun();
}

// The cannon fires every second time and reloads in between.
void Fight::fireCannon() {
  if (Przeladowanie) {
    Przeladowanie = false;
    play(sounds::kAmmo);
    return;
  }
  fire();
  Przeladowanie = true;
}

// MEANT(idle-ranged-bonus): neither the percent and flat bonus of a ranged weapon nor the hero's strength count.
void Fight::fire() {
  play(katalog.KatalogSs(WybranaBron).dzwiek);
  grow(bohater.BronssProc(WybranaBron), 140, 86);
  Obrazenia = Rzuty(random_, BronKostka) + BronKostka.dodatek;
  if (AmmoGotowe) Obrazenia += Rzut(random_, 1, 6);
  if (bohater.MaSpec(kSucker)) suckArmour();
  AmmoGotowe = false;
  IleZad.Caption.clear();
  OpisZad.Caption.clear();
  ZadajObrazenia(Obrazenia);
}

// Comes before the damage, so the shot itself profits; only the target's armour falls.
void Fight::suckArmour() {
  if (targetArmour() > 0) {
    targetArmour() -= Rzut(random_, 1, 3);
    if (targetArmour() < 0) targetArmour() = 0;
  }
  Mstat[1].Caption = decimal(targetArmour());
}

// MEANT(rare-price): the die has ten faces but its first comes up once in eighteen.
void Fight::payForUltiGun() {
  if (Bron.Text() != kUltiGun) return;
  if (Rzut(random_, 1, 10) != 1) return;
  Uwaga.Caption = "Straciłeś 1 od Maxa Wytrzymałości";
  Uwaga.Visible = true;
  bohater.Wartosci(kEndurance) -= 1;
  if (bohater.AktWytrzymalosc > bohater.Wartosci(kEndurance)) bohater.AktWytrzymalosc = bohater.Wartosci(kEndurance);
  Pstat[0].Caption = decimal(bohater.AktWytrzymalosc);
  Statystyki();
}

// Applies a blow or shot to the target, its armour taken off. Figures are appended, so a carried
// shot shows several.
void Fight::ZadajObrazenia(Integer damage) {
  const Integer harm = damage - targetArmour();
  if (harm <= 0) return;
  FZad.Visible = true;
  IleZad.Caption += str(harm) + " ";
  targetLife() -= harm;
  if (RodzajBroni != kRanged) return;
  spread(harm);
  carryOn();
}

// MEANT(spread-past-armour): only the target's armour is taken off; the others get the same.
void Fight::spread(Integer harm) {
  if (katalog.KatalogSs(WybranaBron).wszyscy != 2) return;
  for (int i = 0; i < Ostatni.value(); ++i) PotworZycie(i) -= harm;
}

// Fire goes on to the next of the group with what the fallen one did not take.
void Fight::carryOn() {
  if (targetLife() >= 0 || katalog.KatalogSs(WybranaBron).ogien != 1 || Ostatni <= 0) return;
  OpisZad.Caption = "Zabity - przenoszenie";
  const Integer surplus = Integer(0) - targetLife();
  Ostatni -= 1;
  ZadajObrazenia(surplus);
}

}  // namespace brolgan
