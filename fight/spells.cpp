// The hero's spells in the fight.
#include <algorithm>
#include <array>
#include <utility>

#include "fight/choices.h"
#include "fight/fight.h"
#include "flow/text/number_text.h"
#include "game/names/names.h"

namespace brolgan {

namespace {

constexpr std::array<std::pair<const char*, const char*>, 7> kCosts = {{{kHealingSpell, "1"},
                                                                        {kDamageSpell, "2"},
                                                                        {kBullShotsSpell, "2"},
                                                                        {kBoomSpell, "4"},
                                                                        {kClass3ASpell, "2"},
                                                                        {kLuckSpell, "4"},
                                                                        {kStrongHealingSpell, "2"}}};

}  // namespace

void Fight::Czar_Click() {
  const std::string spell = Czar.Text();
  for (const auto& [name, cost] : kCosts) {
    if (spell == name) mana.Text = cost;
  }
  mana.Enabled = spell == kBullShotsSpell;
}

// MEANT(berserker-cast): a Berserker's button looks live and does nothing.
void Fight::Rzuc_Click() {
  if (isClass(bohater.Klasa, kBerserker) || !MozeRzucac) return;
  const std::string spell = Czar.Text();
  if (spell == kHealingSpell) castHealing();
  if (spell == kStrongHealingSpell) castStrongHealing();
  if (spell == kDamageSpell) castDamage();
  if (spell == kBullShotsSpell) castBullShots();
  if (spell == kBoomSpell) castBoom();
  if (spell == kClass3ASpell) castClass3A();
  if (spell == kLuckSpell) castLuck();
}

void Fight::castHealing() {
  if (bohater.AktMoc < 1) return;
  heal(Rzut(random_, 1, 6));
  payMagic(1);
  play(sounds::kHealing);
}

void Fight::castStrongHealing() {
  if (bohater.AktMoc < 2) return;
  heal(Rzuty(random_, 1, 6, 2) + (bohater.Przedmioty(kStrongHealingCounter) - 1) * 2);
  payMagic(2);
  play(sounds::kHealing);
}

void Fight::castDamage() {
  if (bohater.AktMoc < 2) return;
  hit(Rzuty(random_, 1, 6, 3));
  payMagic(2);
  finishAttackSpell(sounds::kDamage);
}

void Fight::castBoom() {
  if (bohater.AktMoc < 4) return;
  hit(Rzuty(random_, 1, 30, 2));
  payMagic(4);
  finishAttackSpell(sounds::kBoom);
}

void Fight::castClass3A() {
  if (bohater.AktMoc < 2) return;
  Tury3A = Rzuty(random_, 1, 6, 2);
  Pancerz3A = Rzuty(random_, 1, 10, 1);
  payMagic(2);
  finishSpell(sounds::kClass3A);
}

void Fight::castLuck() {
  if (bohater.AktMoc < 4) return;
  Fart += 1;
  payMagic(4);
  finishSpell(sounds::kLuck);
}

void Fight::castBullShots() {
  const double x = typedMagic();
  if (x < 2 || x > bohater.AktMoc.value()) return;
  spreadBullShots(toInteger(Rzuty(random_, 1, 6, 3).value() + (x - 2) * 2));
  bohater.AktMoc = toInteger(bohater.AktMoc.value() - x);
  spendCast();
  finishAttackSpell(sounds::kBullShots);
}

// The number that the player typed; anything else is a type mismatch that ends the program.
double Fight::typedMagic() const {
  const auto number = parseNumber(trim(mana.Text));
  if (!number) throw RuntimeError(ErrorCode::typeMismatch, {{}, 0, "mana"});
  return *number;
}

// MEANT(negative-spread): the harm to the others is under no test, so a target whose armour stops the shots makes
// them gain endurance; and the weapon's sound is of the melee catalogue whatever is selected.
void Fight::spreadBullShots(Integer damage) {
  const Integer harm = damage - targetArmour();
  if (harm > 0) {
    FZad.Visible = true;
    IleZad.Caption = str(harm) + " wszystkim!";
    targetLife() -= harm;
    play(katalog.KatalogWw(WybranaBron).dzwiek);
  }
  for (int i = 0; i < Ostatni.value(); ++i) PotworZycie(i) -= harm;
}

// The hit of a spell: it replaces the figure shown and never spreads or carries.
void Fight::hit(Integer damage) {
  const Integer harm = damage - targetArmour();
  if (harm <= 0) return;
  FZad.Visible = true;
  IleZad.Caption = str(harm);
  targetLife() -= harm;
}

void Fight::heal(Integer amount) {
  bohater.AktWytrzymalosc = std::min(bohater.AktWytrzymalosc + amount, bohater.Wartosci(kEndurance));
  Pstat[0].Caption = decimal(bohater.AktWytrzymalosc);
}

void Fight::payMagic(Integer cost) {
  bohater.AktMoc -= cost;
  spendCast();
}

// A cast leaves the blow open, which is what lets a staff strike after a spell.
void Fight::spendCast() {
  Pstat[2].Caption = decimal(bohater.AktMoc);
  MozeRzucac = false;
  MozeStrzelac = false;
  Rzuc.Enabled = false;
}

void Fight::finishAttackSpell(const char* sound) {
  Zabici();
  Statystyki();
  play(sound);
}

void Fight::finishSpell(const char* sound) {
  Statystyki();
  play(sound);
}

}  // namespace brolgan
