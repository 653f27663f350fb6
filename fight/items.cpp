// The hero's grenades and ammunition in the fight.
#include "fight/choices.h"
#include "fight/fight.h"
#include "flow/text/number_text.h"
#include "game/names/names.h"

namespace brolgan {

namespace {

constexpr Kostka kGrenadeDice = {1, 30, 1, 0};
// The roll with which a grenade goes off in the hero's own hands, the mortar not counted.
constexpr int kOwnHands = 1;
constexpr int kMortarBonus = 8;

}  // namespace

void Fight::Uzyj_Click() {
  if (Przedmiot.Text() == kGrenadeItem) useGrenade();
  if (Przedmiot.Text() == kAmmoItem) useAmmo();
  Statystyki();
}

// A grenade ends the hero's round, whatever he did before it.
// MEANT(own-grenade): the figure stands behind those of the last attack, and nobody of the group can fall.
void Fight::useGrenade() {
  play(sounds::kGrenade);
  bohater.Wyp(kGrenade) -= 1;
  if (bohater.Wyp(kGrenade) == 0) Przedmioty_Lista();
  disableActions();
  const Integer roll = Rzuty(random_, kGrenadeDice);
  if (roll > kOwnHands) {
    hurtGroup(roll);
  } else {
    suffer(Rzuty(random_, kGrenadeDice));
  }
}

// MEANT(grenade-armour): the target's armour counts for the whole group.
void Fight::hurtGroup(Integer roll) {
  if (bohater.MaSpec(kMortar)) roll += kMortarBonus;
  const Integer harm = roll - group_.targetArmour();
  if (harm > 0) {
    IleZad.Caption.clear();
    FZad.Visible = true;
    for (int i = 0; i <= group_.Ostatni.value(); ++i) {
      IleZad.Caption += str(harm) + " ";
      group_.PotworZycie(i) -= harm;
    }
  }
  Zabici();
}

// MEANT(one-ammo): costs no action, and a second one before a shot is spent for nothing.
void Fight::useAmmo() {
  play(sounds::kAmmo);
  effects_.AmmoGotowe = true;
  bohater.Wyp(kAmmo) -= 1;
  if (bohater.Wyp(kAmmo) == 0) Przedmioty_Lista();
}

}  // namespace brolgan
