// The hero's spells in the fight.
#include "rules/spells.h"

#include <array>
#include <string_view>

#include "fight/choices.h"
#include "fight/fight.h"
#include "flow/text/number_text.h"
#include "game/names/names.h"

namespace brolgan {

// Everything about one spell. BullShots costs what the player typed, the cost being the least.
struct Fight::Spell {
  std::string_view name;
  bool (*isKnown)(const Bohater& hero);
  int cost;
  void (Fight::*effect)();
  void (Fight::*afterwards)();
  const char* sound;
};

// In the order of the list.
std::span<const Fight::Spell> Fight::spells() {
  static constexpr std::array<Spell, 7> kRows = {{
      {kHealingSpell, knowsSpell<kHealing>, 1, &Fight::castHealing, nullptr, sounds::kHealing},
      {kDamageSpell, knowsSpell<kDamage>, 2, &Fight::castDamage, &Fight::removeFallen, sounds::kDamage},
      {kBullShotsSpell, knowsSpell<kBullShots>, 2, &Fight::castBullShots, &Fight::removeFallen, sounds::kBullShots},
      {kBoomSpell, knowsSpell<kBoom>, 4, &Fight::castBoom, &Fight::removeFallen, sounds::kBoom},
      {kClass3ASpell, knowsSpell<kClass3A>, 2, &Fight::castClass3A, &Fight::Statystyki, sounds::kClass3A},
      {kLuckSpell, knowsSpell<kLuck>, 4, &Fight::castLuck, &Fight::Statystyki, sounds::kLuck},
      {kStrongHealingSpell, knowsStrongHealing, 2, &Fight::castStrongHealing, nullptr, sounds::kHealing},
  }};
  return kRows;
}

void Fight::Czary_Lista() {
  for (const Spell& spell : spells()) {
    if (spell.isKnown(bohater)) Czar.AddItem(std::string(spell.name));
  }
}

void Fight::Czar_Click() {
  const Spell* const spell = spellNamed(spells(), Czar.Text());
  if (spell != nullptr) mana.Text = decimal(std::int64_t{spell->cost});
  mana.Enabled = Czar.Text() == kBullShotsSpell;
}

// MEANT(berserker-cast): a Berserker's button looks live and does nothing.
void Fight::Rzuc_Click() {
  if (isClass(bohater.Klasa, kBerserker) || !round_.MozeRzucac) return;
  const Spell* const spell = spellNamed(spells(), Czar.Text());
  if (spell != nullptr) cast(*spell);
}

// Nothing at all happens when the magic does not reach. A cast leaves the blow open, which is what
// lets a staff strike after a spell.
void Fight::cast(const Spell& spell) {
  const double price = spell.name == kBullShotsSpell ? typedMagic() : spell.cost;
  if (price < spell.cost || price > bohater.AktMoc.value()) return;
  (this->*spell.effect)();
  bohater.AktMoc = toInteger(bohater.AktMoc.value() - price);
  Pstat[2].Caption = decimal(bohater.AktMoc);
  round_.MozeRzucac = false;
  round_.MozeStrzelac = false;
  Rzuc.Enabled = false;
  if (spell.afterwards != nullptr) (this->*spell.afterwards)();
  play(spell.sound);
}

// The number that the player typed; anything else is a type mismatch that ends the program.
double Fight::typedMagic() const {
  const auto number = parseNumber(trim(mana.Text));
  if (!number) throw RuntimeError(ErrorCode::typeMismatch, {{}, 0, "mana"});
  return *number;
}

void Fight::castHealing() { healHero(rollHealing(random_)); }

void Fight::castStrongHealing() { healHero(rollStrongHealing(random_, bohater)); }

void Fight::healHero(Integer amount) {
  heal(bohater, amount);
  Pstat[0].Caption = decimal(bohater.AktWytrzymalosc);
}

void Fight::castDamage() { hit(Rzuty(random_, 1, 6, 3)); }

void Fight::castBoom() { hit(Rzuty(random_, 1, 30, 2)); }

// The hit of a spell: it replaces the figure shown and never spreads or carries.
void Fight::hit(Integer damage) {
  const Integer harm = damage - group_.targetArmour();
  if (harm <= 0) return;
  FZad.Visible = true;
  IleZad.Caption = str(harm);
  group_.targetLife() -= harm;
}

// MEANT(negative-spread): the harm to the others is under no test, so a target whose armour stops the shots makes
// them gain endurance; and the weapon's sound is of the melee catalogue whatever is selected.
void Fight::castBullShots() {
  constexpr int kIncluded = 2;
  constexpr int kEachFurther = 2;
  const Integer roll = Rzuty(random_, 1, 6, 3);
  const Integer damage = toInteger(roll.value() + (typedMagic() - kIncluded) * kEachFurther);
  const Integer harm = damage - group_.targetArmour();
  if (harm > 0) {
    FZad.Visible = true;
    IleZad.Caption = str(harm) + " wszystkim!";
    group_.targetLife() -= harm;
    play(katalog.weapons(WeaponKind::melee)(weapon_.WybranaBron).dzwiek);
  }
  group_.hurtOthers(harm);
}

void Fight::castClass3A() {
  effects_.Tury3A = Rzuty(random_, 1, 6, 2);
  effects_.Pancerz3A = Rzuty(random_, 1, 10, 1);
}

void Fight::castLuck() { effects_.Fart += 1; }

void Fight::removeFallen() {
  Zabici();
  Statystyki();
}

}  // namespace brolgan
