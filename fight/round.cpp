// The end of a round, the monsters' answer, and the ways a fight ends.
#include <algorithm>
#include <vector>

#include "fight/choices.h"
#include "fight/fight.h"
#include "flow/text/number_text.h"
#include "game/names/names.h"
#include "rules/battle.h"

namespace brolgan {

// MEANT(fallen-goes-on): a fallen hero may press it too; the monsters strike again and he stays fallen.
void Fight::NastTura_Click() {
  if (PotworZycie(0) < 1 || Ostatni < 0) {
    KoniecWalki();
    return;
  }
  tickEffects();
  DrugiCios = true;
  FZad.Visible = false;
  FDamage.Visible = false;
  Uwaga.Visible = false;
  Blisko = true;
  AtakPotwora();
  Atak.Enabled = true;
  Rzuc.Enabled = true;
  Uzyj.Enabled = true;
  if (bohater.AktWytrzymalosc < 1) {
    OpisDMG.Caption = kDeath;
    disableActions();
  }
  if (isClass(bohater.Klasa, kWizard)) regainMagic();
  MozeRzucac = true;
  MozeStrzelac = true;
  MozeBic = true;
  if (Bron.Text().empty()) {
    RodzajBroni.clear();
    WybranaBron = 0;
  }
  Statystyki();
}

// The armour of "Klasa III A" ends before the monsters strike.
void Fight::tickEffects() {
  if (Tury3A > 0) Tury3A -= 1;
  if (Tury3A == 0) Pancerz3A = 0;
}

void Fight::regainMagic() {
  bohater.AktMoc = std::min(bohater.AktMoc + wizardRegain(bohater.Wartosci(kRegeneration)), bohater.Wartosci(kPower));
}

// Every standing monster strikes once, also when the hero has fallen meanwhile.
void Fight::AtakPotwora() {
  IleDMG.Caption.clear();
  const int last = Ostatni.value();
  for (int i = 0; i <= last; ++i) {
    const Integer harm =
        Rzuty(random_, PotworAtak) + PotworAtak.dodatek - bohater.Wartosci(kArmour) - BonusPancerza - Pancerz3A;
    suffer(harm);
  }
}

// A blow to the hero, armour already off. A charge of "Kaczy Fart" takes one that got through.
void Fight::suffer(Integer harm) {
  if (harm <= 0) return;
  if (Fart > 0) {
    Fart -= 1;
    return;
  }
  FDamage.Visible = true;
  IleDMG.Caption += decimal(harm) + " ";
  bohater.AktWytrzymalosc -= harm;
  if (bohater.AktWytrzymalosc >= 1) return;
  disableActions();
  OpisDMG.Caption = kDeath;
}

// MEANT(silent-report): writes the report without showing its frame.
// Takes the fallen off the group and announces its end.
void Fight::Zabici() {
  while (Ostatni >= 0 && targetLife() <= 0) {
    OpisZad.Caption = "Zabity!";
    Ostatni -= 1;
  }
  if (PotworZycie(0) > 0 && Ostatni >= 0) {
    Statystyki();
    return;
  }
  OpisZad.Caption = "Czysto!";
  if (PotworNazwa == kLastMonster) {
    OpisZad.Caption = "Wygrałeś - tura " + str(bohater.Tura);
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
  ItemWriter out = runtime_.OpenForOutput(PlikBohatera);
  brolgan::Player_Save(out, bohater);
  out.close();
}

void Fight::KoniecWalki() {
  const PlayerOrder order = readPlayerOrder(runtime_.OpenForInput(kGameFile));
  if (!Przezyl) bohater.Wcielenia -= 1;
  if (bohater.Wcielenia < 1) {
    leaveGame(order);
    return;
  }
  if (Przezyl && PotworNazwa == kLastMonster) {
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
  std::vector<std::string> others;
  for (int i = 1; i < order.count.value(); ++i) others.push_back(order.Gracz(i));
  writePlayerOrder(runtime_.OpenForOutput(kGameFile), order.count - 1, others);
  writeShop(runtime_.OpenForOutput(kShopFile), order.Gracz(1), Rzut(random_, 1, 4));
  openShop();
}

void Fight::recover() {
  bohater.AktWytrzymalosc = bohater.Wartosci(kEndurance);
  bohater.AktMoc = bohater.Wartosci(kPower);
}

// The kill counts once, however many the group had; only the sum of the points is rounded.
void Fight::takeReward() {
  bohater.Stwory(NrPotwora) += 1;
  const double p = reward(bohater.Klasa, IlePotworow, PotworAtak, PotworPancerz(0));
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
  std::vector<std::string> names;
  for (int i = 1; i < order.count.value(); ++i) names.push_back(order.Gracz(i));
  names.push_back(order.Gracz(0));
  writePlayerOrder(runtime_.OpenForOutput(kGameFile), order.count, names);
  writeShop(runtime_.OpenForOutput(kShopFile), names.front(), Rzut(random_, 1, 4));
}

void Fight::openShop() { runtime_.Replace(kName, screens::kShop); }

}  // namespace brolgan
