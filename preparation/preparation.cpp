#include "preparation/preparation.h"

#include <string>
#include <string_view>

#include "flow/text/number_text.h"
#include "game/names/names.h"
#include "rules/handover.h"
#include "rules/spells.h"

namespace brolgan {

namespace {

constexpr Kostka kFishDice = {1, 6, 2, 0};
constexpr Kostka kSnuffDice = {1, 6, 2, 0};
constexpr int kImmortalityDie = 6;
constexpr int kAutostartDie = 6;

// A number behind a text and in brackets, as the notes of the rolls have it.
std::string withNumber(std::string_view text, Integer number) { return std::string(text) + "(" + str(number) + ")"; }

}  // namespace

Prefight::Prefight(Runtime& runtime, RandomSource& random)
    : Music1(runtime.sounds(), "Music1"), runtime_(runtime), random_(random) {
  Caption = "Przygotowanie przed walką!";
  Heroshow.Click = [this] { Heroshow_Click(); };
  Uzyj.Click = [this] { Uzyj_Click(); };
  Czary.Click = [this] { Czary_Click(); };
  Rzuc.Click = [this] { Rzuc_Click(); };
  Zakoncz.Click = [this] { Zakoncz_Click(); };
}

void Prefight::Form_Load() {
  Music1.FileName = sounds::kMusic;
  Music1.Play();
  random_.seed(runtime_.Timer());
  Zone_Load();
  NrPotwora = Rzut(random_, OdPotwora, DoPotwora) - 1;
  bohater = Player_Load(runtime_.OpenForInput(PlikBohatera));
  Potwory_Load(runtime_.OpenForInput(PlikPotworow), Potwory);
  Potwor_Pokaz();
  Hero_Pokaz();
  Czary_Lista();
  Przedmioty_Lista();
}

void Prefight::Zone_Load() {
  ItemReader in = runtime_.OpenForInput(kPreparationFile);
  PlikBohatera = in.string("PlikBohatera");
  OdPotwora = in.integer("OdPotwora");
  DoPotwora = in.integer("DoPotwora");
  PlikPotworow = in.string("PlikPotworow");
}

// The average is of one monster, with the mean of a die rounded before it is multiplied.
void Prefight::Potwor_Pokaz() {
  const Potwor& monster = Potwory(NrPotwora);
  const double face = round((monster.Atak.kmin + monster.Atak.kmax).value() / 2.0);
  const double average = face * monster.Atak.kile.value() + monster.Atak.dodatek.value();
  Monstat[0].Caption = decimal(monster.Szybkosc);
  Monstat[1].Caption = decimal(static_cast<std::int64_t>(average));
  Monstat[2].Caption = decimal(monster.Wytrzymalosc);
  Monstat[3].Caption = decimal(monster.Pancerz);
  Moname.Caption = monster.Nazwa;
  Potwór.Picture = runtime_.LoadPicture(monster.Obrazek);
}

void Prefight::Hero_Pokaz() {
  for (int i = 0; i < static_cast<int>(stat.size()); ++i) stat[i].Caption = decimal(bohater.Wartosci(i));
  cur[0].Caption = decimal(bohater.AktWytrzymalosc);
  cur[1].Caption = decimal(bohater.AktMoc);
  Inicjatywa = bohater.Wartosci(kSpeed);
  Inic.Caption = decimal(Inicjatywa);
}

// The sheet reads the file, so it does not show what was changed on this screen.
void Prefight::Heroshow_Click() { runtime_.Reopen(screens::kSheet); }

void Prefight::Przedmioty_Lista() {
  while (Przedmioty.ListCount() > 0) Przedmioty.RemoveItem(0);
  if (bohater.Przedmioty(kFishCounter) >= 1) Przedmioty.AddItem(kFish);
  applyHeadStart();
  for (const auto& [counter, name] : kFurtherItems) {
    if (bohater.Przedmioty(counter) > 0) Przedmioty.AddItem(name);
  }
}

// MEANT(one-head-start): the counter is used up at once, whatever it said.
void Prefight::applyHeadStart() {
  if (bohater.Przedmioty(kHeadStartCounter) <= 0) return;
  Inic.Caption = decimal(wholeNumber(Inic.Caption) + kHeadStart);
  Inicjatywa += kHeadStart;
  bohater.Przedmioty(kHeadStartCounter) = 0;
}

void Prefight::Uzyj_Click() {
  const std::string item = Przedmioty.Text();
  if (item == kFish) useFish();
  if (item == kRhubarb) useRhubarb();
  if (item == kSnuff) useSnuff();
  if (item == kBar) useBar();
  if (item == kLamp) useLamp();
  if (item == kImmortality) useImmortality();
}

void Prefight::spend(int counter) {
  bohater.Przedmioty(counter) -= 1;
  if (bohater.Przedmioty(counter) == 0) Przedmioty_Lista();
}

void Prefight::useFish() {
  const Integer roll = Rzuty(random_, kFishDice);
  Potwory(NrPotwora).Wytrzymalosc -= roll;
  spend(kFishCounter);
  Monstat[2].Caption = decimal(Potwory(NrPotwora).Wytrzymalosc);
  note(withNumber("Podłożyłem zatrutą rybę", roll) + " ");
}

void Prefight::useRhubarb() {
  bohater.AktWytrzymalosc = bohater.Wartosci(kEndurance);
  spend(kRhubarbCounter);
  cur[0].Caption = decimal(bohater.AktWytrzymalosc);
  note("Spożyłem Rabarbar de'Cur");
}

void Prefight::useSnuff() {
  const Integer roll = Rzuty(random_, kSnuffDice);
  BonusPancerza += roll;
  spend(kSnuffCounter);
  tabak.Visible = true;
  tabak.Caption = decimal(bohater.Wartosci(kArmour) + BonusPancerza);
  note(withNumber("Spożyłem Tabakę", roll) + " ");
}

void Prefight::useBar() {
  Inicjatywa += kHeadStart;
  spend(kBarCounter);
  Inic.Caption = decimal(Inicjatywa);
  note("Spożyłem Krzepiący Baton");
}

// MEANT(idle-lamp): the lamp costs a use and does nothing else.
void Prefight::useLamp() {
  spend(kLampCounter);
  Inic.Caption = decimal(Inicjatywa);
  note("Wykorzystałem Lampę Sea Archiego");
}

void Prefight::useImmortality() {
  const Integer roll = Rzut(random_, 1, kImmortalityDie);
  RundyNiesmiertelnosci += roll;
  spend(kImmortalityCounter);
  note("Stałem się nieśmiertelny (rund:" + str(roll) + ")");
}

// Notes go behind whatever the box holds, the player's own words included.
void Prefight::note(const std::string& text) { historia.Text += text; }

// Everything about one spell; its effect answers the number for the note.
struct Prefight::Spell {
  std::string_view name;
  bool (*isKnown)(const Bohater& hero);
  int cost;
  Integer (Prefight::*effect)();
};

// In the order of the list.
std::span<const Prefight::Spell> Prefight::spells() {
  static constexpr std::array<Spell, 3> kRows = {{
      {kHealingSpell, knowsSpell<kHealing>, 1, &Prefight::castHealing},
      {kAutostartSpell, knowsSpell<kAutostart>, 3, &Prefight::castAutostart},
      {kStrongHealingSpell, knowsStrongHealing, 2, &Prefight::castStrongHealing},
  }};
  return kRows;
}

void Prefight::Czary_Lista() {
  while (Czary.ListCount() > 0) Czary.RemoveItem(0);
  for (const Spell& spell : spells()) {
    if (spell.isKnown(bohater)) Czary.AddItem(std::string(spell.name));
  }
}

// MEANT(cost-shown-only): what is typed over the cost changes nothing.
void Prefight::Czary_Click() {
  const Spell* const spell = spellNamed(spells(), Czary.Text());
  Koszt.Text = decimal(std::int64_t{spell == nullptr ? 0 : spell->cost});
}

void Prefight::Rzuc_Click() {
  const Spell* const spell = spellNamed(spells(), Czary.Text());
  if (spell != nullptr) cast(*spell);
}

// Nothing at all happens when the magic does not reach.
void Prefight::cast(const Spell& spell) {
  if (bohater.AktMoc < spell.cost) return;
  bohater.AktMoc -= spell.cost;
  const Integer amount = (this->*spell.effect)();
  cur[1].Caption = decimal(bohater.AktMoc);
  note("Rzuciłem " + withNumber(spell.name, amount) + " ");
}

Integer Prefight::castHealing() { return healHero(rollHealing(random_)); }

Integer Prefight::castStrongHealing() { return healHero(rollStrongHealing(random_, bohater)); }

// The note shows all that was rolled, also what the maximum cut.
Integer Prefight::healHero(Integer amount) {
  heal(bohater, amount);
  cur[0].Caption = decimal(bohater.AktWytrzymalosc);
  return amount;
}

Integer Prefight::castAutostart() {
  const Integer gain = Rzut(random_, 1, kAutostartDie);
  Inicjatywa += gain;
  Inic.Caption = decimal(Inicjatywa);
  return gain;
}

void Prefight::Zakoncz_Click() {
  Player_Save(runtime_.OpenForOutput(PlikBohatera), bohater);
  Fight_Start();
}

// MEANT(tie-to-monster): a tie in speed goes to the monster.
void Prefight::Fight_Start() {
  const Potwor& monster = Potwory(NrPotwora);
  const Integer monsterFirst = Inicjatywa > monster.Szybkosc ? 0 : 1;
  writeFight(runtime_.OpenForOutput(kFightFile),
             {monsterFirst, PlikBohatera, BonusPancerza, RundyNiesmiertelnosci, monster, NrPotwora});
  runtime_.Replace(kName, screens::kFight);
}

void Prefight::listControls(ControlTable& table) {
  table.add("Label1", Label1);
  table.add("Heroshow", Heroshow);
  table.add("Moname", Moname);
  table.add("Potwór", Potwór);
  table.add("Monstat", Monstat);
  table.add("Label2", Label2);
  table.add("Statystyki", Statystyki);
  table.add("stat", stat, &Statystyki);
  table.add("label4", label4, &Statystyki);
  table.add("cur", cur, &Statystyki);
  table.add("Inic", Inic, &Statystyki);
  table.add("tabak", tabak, &Statystyki);
  table.add("Frame2", Frame2);
  table.add("Przedmioty", Przedmioty, &Frame2);
  table.add("Uzyj", Uzyj, &Frame2);
  table.add("Frame1", Frame1);
  table.add("Label3", Label3, &Frame1);
  table.add("Czary", Czary, &Frame1);
  table.add("Koszt", Koszt, &Frame1);
  table.add("KosztInfo", KosztInfo, &Frame1);
  table.add("Rzuc", Rzuc, &Frame1);
  table.add("Frame3", Frame3);
  table.add("historia", historia, &Frame3);
  table.add("Zakoncz", Zakoncz);
  table.add("Music1", Music1);
}

}  // namespace brolgan
