// The hero's grenades and ammunition in the fight.
#include "fight/choices.h"
#include "fight/fight.h"
#include "flow/text/number_text.h"
#include "game/names/names.h"

namespace brolgan {

void Fight::Uzyj_Click() {
  if (Przedmiot.Text() == kGrenadeItem) useGrenade();
  if (Przedmiot.Text() == kAmmoItem) useAmmo();
  Statystyki();
}

// A grenade ends the hero's round, whatever he did before it.
void Fight::useGrenade() {
  play(sounds::kGrenade);
  bohater.Wyp(kGrenade) -= 1;
  if (bohater.Wyp(kGrenade) == 0) Przedmioty_Lista();
  disableActions();
  const Integer roll = Rzuty(random_, 1, 30, 1);
  if (roll < 2) {
    hurtThrower();
  } else {
    hurtGroup(roll);
  }
}

// MEANT(own-grenade): the figure stands behind those of the last attack, and nobody of the group can fall.
void Fight::hurtThrower() {
  const Integer harm = Rzuty(random_, 1, 30, 1) - bohater.Wartosci(kArmour) - BonusPancerza - Pancerz3A;
  suffer(harm);
}

// MEANT(grenade-armour): the target's armour counts for the whole group.
void Fight::hurtGroup(Integer roll) {
  if (bohater.MaSpec(kMortar)) roll += 8;
  const Integer harm = roll - targetArmour();
  if (harm > 0) {
    IleZad.Caption.clear();
    FZad.Visible = true;
    for (int i = 0; i <= Ostatni.value(); ++i) {
      IleZad.Caption += str(harm) + " ";
      PotworZycie(i) -= harm;
    }
  }
  Zabici();
}

// MEANT(one-ammo): costs no action, and a second one before a shot is spent for nothing.
void Fight::useAmmo() {
  play(sounds::kAmmo);
  AmmoGotowe = true;
  bohater.Wyp(kAmmo) -= 1;
  if (bohater.Wyp(kAmmo) == 0) Przedmioty_Lista();
}

}  // namespace brolgan
