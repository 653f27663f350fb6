// The end of a round, the monsters' answer, and the ways a fight ends.
#include <algorithm>
#include <vector>

#include "fight/fight.h"
#include "flow/text/number_text.h"
#include "game/names/names.h"
#include "rules/battle.h"

namespace brolgan {

namespace {

// The players behind the one whose turn it is, in their order.
std::vector<std::string> othersOf(const PlayerOrder& order) {
  std::vector<std::string> names;
  for (int i = 1; i < order.count.value(); ++i) names.push_back(order.Gracz(i));
  return names;
}

}  // namespace

// MEANT(fallen-goes-on): a fallen hero may press it too; the monsters strike again and he stays fallen.
void Fight::NastTura_Click() {
  if (group_.isGone()) {
    KoniecWalki();
    return;
  }
  effects_.endRound();
  FZad.Visible = false;
  FDamage.Visible = false;
  Uwaga.Visible = false;
  AtakPotwora();
  Atak.Enabled = true;
  Rzuc.Enabled = true;
  Uzyj.Enabled = true;
  if (bohater.AktWytrzymalosc < 1) {
    OpisDMG.Caption = verdicts::kDeath;
    disableActions();
  }
  if (isClass(bohater.Klasa, kWizard)) regainMagic();
  round_ = {};
  if (Bron.Text().empty()) {
    weapon_.RodzajBroni = WeaponKind::none;
    weapon_.WybranaBron = 0;
  }
  Statystyki();
}

void Fight::regainMagic() {
  bohater.AktMoc = std::min(bohater.AktMoc + wizardRegain(bohater.Wartosci(kRegeneration)), bohater.Wartosci(kPower));
}

// Every standing monster strikes once, also when the hero has fallen meanwhile.
void Fight::AtakPotwora() {
  IleDMG.Caption.clear();
  const int last = group_.Ostatni.value();
  for (int i = 0; i <= last; ++i) suffer(Rzuty(random_, group_.PotworAtak) + group_.PotworAtak.dodatek);
}

// A blow to the hero. A charge of "Kaczy Fart" takes one that gets through his armour.
void Fight::suffer(Integer blow) {
  const Integer harm = blow - bohater.Wartosci(kArmour) - handedOver_.BonusPancerza - effects_.Pancerz3A;
  if (harm <= 0 || effects_.takesBlow()) return;
  FDamage.Visible = true;
  IleDMG.Caption += decimal(harm) + " ";
  bohater.AktWytrzymalosc -= harm;
  if (bohater.AktWytrzymalosc >= 1) return;
  disableActions();
  OpisDMG.Caption = verdicts::kDeath;
}

// MEANT(silent-report): writes the report without showing its frame.
// Takes the fallen off the group and announces its end.
void Fight::Zabici() {
  while (group_.hasTarget() && group_.targetLife() <= 0) {
    OpisZad.Caption = "Zabity!";
    group_.Ostatni -= 1;
  }
  if (!group_.isGone()) {
    Statystyki();
    return;
  }
  OpisZad.Caption = verdicts::kGroupGone;
  if (group_.isLastOfTheGame()) {
    OpisZad.Caption = verdicts::kGameWon + str(bohater.Tura);
    play(sounds::kVictory);
  }
  disableActions();
  Statystyki();
}

void Fight::CloseDMG_Click() {
  FDamage.Visible = false;
  if (bohater.AktWytrzymalosc >= 1) return;
  Player_Save();
  Przezyl = false;
  KoniecWalki();
}

void Fight::Player_Save() {
  bohater.OstatniCzar = Czar.Text();
  bohater.OstatniPrzedmiot = Przedmiot.Text();
  bohater.OstatniaBron = Bron.Text();
  brolgan::Player_Save(runtime_.OpenForOutput(handedOver_.PlikBohatera), bohater);
}

void Fight::KoniecWalki() {
  const PlayerOrder order = readPlayerOrder(runtime_.OpenForInput(kGameFile));
  if (!Przezyl) bohater.Wcielenia -= 1;
  if (bohater.Wcielenia < 1) {
    leaveGame(order);
    return;
  }
  if (Przezyl && group_.isLastOfTheGame()) {
    runtime_.End();
    return;
  }
  if (Przezyl) {
    takeReward();
  } else {
    recover();
  }
  Player_Save();
  passTurn(order);
  openShop();
}

// MEANT(life-too-many): the hero file stays as the moment of death left it, with one life more than he has.
void Fight::leaveGame(const PlayerOrder& order) {
  if (order.count <= 1) {
    runtime_.End();
    return;
  }
  writePlayerOrder(runtime_.OpenForOutput(kGameFile), order.count - 1, othersOf(order));
  writeShop(runtime_.OpenForOutput(kShopFile), order.Gracz(1), Rzut(random_, kAllDepartments, kWeaponsAlone));
  openShop();
}

void Fight::recover() {
  bohater.AktWytrzymalosc = bohater.Wartosci(kEndurance);
  bohater.AktMoc = bohater.Wartosci(kPower);
}

// The kill counts once, however many the group had; only the sum of the points is rounded.
void Fight::takeReward() {
  bohater.Stwory(group_.NrPotwora) += 1;
  const double p = reward(bohater.Klasa, group_.IlePotworow, group_.PotworAtak, group_.PotworPancerz(0));
  if (isClass(bohater.Klasa, kMonk)) recover();
  bohater.Ile_jeszcze = toInteger(bohater.Ile_jeszcze.value() + p);
  regenerate();
}

void Fight::regenerate() {
  const Integer gain = bohater.Wartosci(kRegeneration);
  bohater.AktWytrzymalosc = std::min(bohater.AktWytrzymalosc + gain, bohater.Wartosci(kEndurance));
  bohater.AktMoc = std::min(bohater.AktMoc + gain, bohater.Wartosci(kPower));
}

// The hero of this fight goes to the end of the order.
void Fight::passTurn(const PlayerOrder& order) {
  std::vector<std::string> names = othersOf(order);
  names.push_back(order.Gracz(0));
  writePlayerOrder(runtime_.OpenForOutput(kGameFile), order.count, names);
  writeShop(runtime_.OpenForOutput(kShopFile), names.front(), Rzut(random_, kAllDepartments, kWeaponsAlone));
}

void Fight::openShop() { runtime_.Replace(kName, screens::kShop); }

}  // namespace brolgan
