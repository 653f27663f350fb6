#include "rules/hero.h"

namespace brolgan {

namespace {

// What the fields of the weapon slots of a kind are called.
struct SlotNames {
  const char* owned;
  const char* percent;
  const char* plus;
};

constexpr SlotNames kMeleeNames = {"MaBronww", "BronwwProc", "BronwwPlus"};
constexpr SlotNames kRangedNames = {"MaBronss", "BronssProc", "BronssPlus"};

template <class Numbers>
void readIntegers(ItemReader& in, Numbers& numbers, const char* name) {
  for (int i = 0; i < Numbers::size; ++i) numbers(i) = in.integer({name, i});
}

template <class Flags>
void readFlags(ItemReader& in, Flags& flags, const char* name) {
  for (int i = 0; i < Flags::size; ++i) flags(i) = in.flag({name, i});
}

void readStep(ItemReader& in, Bohater& hero, int statistic, StepLines& lines) {
  hero.Poziomy(statistic) = in.integer({"Poziomy", statistic});
  lines[static_cast<std::size_t>(statistic)] = in.line();
}

template <class Numbers>
void writeIntegers(ItemWriter& out, const Numbers& numbers) {
  for (const Integer number : numbers) out.integer(number);
}

void writeBeginning(ItemWriter& out, const Bohater& hero) {
  out.string(hero.Imie);
  out.integer(hero.Ile_jeszcze);
  out.string(hero.Klasa);
  out.integer(hero.AktWytrzymalosc);
  out.integer(hero.AktMoc);
  for (int i = 0; i < kValues; ++i) {
    out.integer(hero.Poziomy(i));
    out.integer(hero.Wartosci(i));
  }
  out.integer(hero.Poziomy(kModifier));
  writeOnOneLine(out, hero.MO);
  out.integer(hero.Poziomy(kLives));
  out.integer(hero.Wcielenia);
}

}  // namespace

void readPerson(ItemReader& in, Bohater& hero) {
  hero.Imie = in.string("Imie");
  hero.Ile_jeszcze = in.integer("Ile_jeszcze");
  hero.Klasa = in.string("Klasa");
  hero.AktWytrzymalosc = in.integer("AktWytrzymalosc");
  hero.AktMoc = in.integer("AktMoc");
}

void readStatistics(ItemReader& in, Bohater& hero, StepLines& lines) {
  for (int i = 0; i < kValues; ++i) {
    readStep(in, hero, i, lines);
    hero.Wartosci(i) = in.integer({"Wartosci", i});
  }
}

void readModifier(ItemReader& in, Bohater& hero, StepLines& lines) {
  readStep(in, hero, kModifier, lines);
  hero.MO = readDice(in);
  readStep(in, hero, kLives, lines);
  hero.Wcielenia = in.integer("Wcielenia");
}

void readWeapons(ItemReader& in, Bohater& hero) {
  for (const WeaponKind kind : kWeaponKinds) {
    const auto slots = hero.slots(kind);
    const SlotNames& names = kind == WeaponKind::melee ? kMeleeNames : kRangedNames;
    for (int i = 0; i < kWeaponsOfAKind; ++i) {
      slots.owned(i) = in.flag({names.owned, i});
      slots.percent(i) = in.integer({names.percent, i});
      slots.plus(i) = in.integer({names.plus, i});
    }
  }
}

// MEANT(fifth-flag-read): a new hero has a fifth gear flag on the line of the first counter; as a word it reads as 0.
void readGoods(ItemReader& in, Bohater& hero) {
  readFlags(in, hero.MaCzar, "MaCzar");
  readIntegers(in, hero.Wyp, "Wyp");
  readFlags(in, hero.MaSpec, "MaSpec");
  readIntegers(in, hero.Przedmioty, "Przedmioty");
}

void readHistory(ItemReader& in, Bohater& hero) {
  hero.Tura = in.integer("Tura");
  hero.OstatniCzar = in.string("OstatniCzar");
  hero.OstatniPrzedmiot = in.string("OstatniPrzedmiot");
  hero.OstatniaBron = in.string("OstatniaBron");
  readIntegers(in, hero.Stwory, "Stwory");
}

Bohater Player_Load(ItemReader in) {
  Bohater hero;
  StepLines lines{};
  readPerson(in, hero);
  readStatistics(in, hero, lines);
  readModifier(in, hero, lines);
  readWeapons(in, hero);
  readGoods(in, hero);
  readHistory(in, hero);
  return hero;
}

void writeWeapons(ItemWriter& out, const Bohater& hero) {
  for (const WeaponKind kind : kWeaponKinds) {
    const auto slots = hero.slots(kind);
    for (int i = 0; i < kWeaponsOfAKind; ++i) {
      out.flag(slots.owned(i));
      out.integer(slots.percent(i));
      out.integer(slots.plus(i));
    }
  }
}

void writeItems(ItemWriter& out, const Bohater& hero) { writeIntegers(out, hero.Przedmioty); }

void writeLastChoices(ItemWriter& out, const Bohater& hero) {
  out.string(hero.OstatniCzar);
  out.string(hero.OstatniPrzedmiot);
  out.string(hero.OstatniaBron);
}

void writeKills(ItemWriter& out, const Bohater& hero) { writeIntegers(out, hero.Stwory); }

void Player_Save(ItemWriter out, const Bohater& hero) {
  writeBeginning(out, hero);
  writeWeapons(out, hero);
  writeFlags(out, hero.MaCzar);
  writeIntegers(out, hero.Wyp);
  writeFlags(out, hero.MaSpec);
  writeItems(out, hero);
  out.integer(hero.Tura);
  writeLastChoices(out, hero);
  writeKills(out, hero);
  out.close();
}

}  // namespace brolgan
