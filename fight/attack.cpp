// The hero's blows and shots.
#include <algorithm>

#include "fight/fight.h"
#include "flow/text/number_text.h"
#include "game/names/names.h"
#include "rules/battle.h"

namespace brolgan {

void Fight::Atak_Click() {
  if (mayStrike()) {
    strike();
  } else if (weapon_.isRanged() && round_.MozeStrzelac) {
    shoot();
  }
  Zabici();
}

// MEANT(always-near): the distance is never far, and still it is asked.
bool Fight::mayStrike() const {
  return weapon_.isMelee() && round_.Blisko && round_.MozeBic && (round_.MozeRzucac || weapon_.isStaff());
}

void Fight::strike() {
  spendBlow();
  const Integer strength = Rzuty(random_, bohater.MO);
  const Integer weaponRoll = Rzuty(random_, weapon_.BronKostka);
  Integer damage = meleeDamage(bohater, weapon_.WybranaBron, strength, weapon_.BronKostka, weaponRoll);
  if (isClass(bohater.Klasa, kWitcher)) damage += witcherBonus(bohater.Wartosci(kSpeed));
  growWeapon(kMeleeGrowth);
  play(katalog.KatalogWw(weapon_.WybranaBron).dzwiek);
  clearReport();
  ZadajObrazenia(damage);
}

// A Berserker's first blow of a round is free.
void Fight::spendBlow() {
  if (isClass(bohater.Klasa, kBerserker) && round_.DrugiCios) {
    round_.DrugiCios = false;
    return;
  }
  round_.MozeBic = false;
  round_.MozeStrzelac = false;
  Atak.Enabled = false;
  if (weapon_.isStaff()) return;
  round_.MozeRzucac = false;
  Rzuc.Enabled = false;
}

void Fight::growWeapon(const Growth& growth) {
  Integer& percent = bohater.slots(weapon_.RodzajBroni).percent(weapon_.WybranaBron);
  if (growth.grows(Rzut(random_, 1, growth.die), percent)) percent += kGrowthStep;
}

void Fight::shoot() {
  round_.MozeBic = false;
  round_.MozeStrzelac = false;
  round_.MozeRzucac = false;
  Rzuc.Enabled = false;
  Atak.Enabled = false;
  if (weapon_.isCannon()) {
    fireCannon();
  } else {
    fire();
  }
  payForUltiGun();
}

// The cannon fires every second time and reloads in between.
void Fight::fireCannon() {
  if (effects_.Przeladowanie) {
    effects_.Przeladowanie = false;
    play(sounds::kAmmo);
    return;
  }
  fire();
  effects_.Przeladowanie = true;
}

// MEANT(idle-ranged-bonus): neither the percent and flat bonus of a ranged weapon nor the hero's strength count.
void Fight::fire() {
  constexpr int kAmmoDie = 6;
  play(katalog.KatalogSs(weapon_.WybranaBron).dzwiek);
  growWeapon(kRangedGrowth);
  Integer damage = Rzuty(random_, weapon_.BronKostka) + weapon_.BronKostka.dodatek;
  if (effects_.AmmoGotowe) damage += Rzut(random_, 1, kAmmoDie);
  if (bohater.MaSpec(kSucker)) suckArmour();
  effects_.AmmoGotowe = false;
  clearReport();
  ZadajObrazenia(damage);
}

// Comes before the damage, so the shot itself profits; only the target's armour falls.
void Fight::suckArmour() {
  constexpr int kSuckerDie = 3;
  Integer& armour = group_.targetArmour();
  if (armour > 0) armour = std::max(armour - Rzut(random_, 1, kSuckerDie), Integer(0));
  Mstat[1].Caption = decimal(armour);
}

// MEANT(rare-price): the die has ten faces but its first comes up once in eighteen.
void Fight::payForUltiGun() {
  constexpr int kPriceDie = 10;
  if (Bron.Text() != kUltiGun) return;
  if (Rzut(random_, 1, kPriceDie) != 1) return;
  Uwaga.Caption = "Straciłeś 1 od Maxa Wytrzymałości";
  Uwaga.Visible = true;
  bohater.Wartosci(kEndurance) -= 1;
  bohater.AktWytrzymalosc = std::min(bohater.AktWytrzymalosc, bohater.Wartosci(kEndurance));
  Pstat[0].Caption = decimal(bohater.AktWytrzymalosc);
  Statystyki();
}

void Fight::clearReport() {
  IleZad.Caption.clear();
  OpisZad.Caption.clear();
}

// Applies a blow or shot to the target, its armour taken off. Figures are appended, so a carried
// shot shows several.
// MEANT(spread-past-armour): only the target's armour is taken off; the others get the same.
void Fight::ZadajObrazenia(Integer damage) {
  const Integer harm = damage - group_.targetArmour();
  if (harm <= 0) return;
  FZad.Visible = true;
  IleZad.Caption += str(harm) + " ";
  group_.targetLife() -= harm;
  if (!weapon_.isRanged()) return;
  if (katalog.KatalogSs(weapon_.WybranaBron).hitsAll()) group_.hurtOthers(harm);
  carryOn();
}

// Fire goes on to the next of the group with what the fallen one did not take.
void Fight::carryOn() {
  const bool carries = katalog.KatalogSs(weapon_.WybranaBron).carriesFire();
  if (group_.targetLife() >= 0 || !carries || group_.Ostatni <= 0) return;
  OpisZad.Caption = "Zabity - przenoszenie";
  const Integer surplus = Integer(0) - group_.targetLife();
  group_.Ostatni -= 1;
  ZadajObrazenia(surplus);
}

}  // namespace brolgan
