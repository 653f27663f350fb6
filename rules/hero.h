// The hero and the text file of 161 lines in which he lives. No screen keeps a hero across a change
// of screen: it reads the whole file when it opens and writes all of it when it leaves. The parts
// of the file are read and written one by one, since some screens check or compute between them.
#pragma once

#include <array>
#include <string>

#include "flow/text/array.h"
#include "flow/text/item_reader.h"
#include "flow/text/item_writer.h"
#include "rules/dice_items.h"

namespace brolgan {

struct Bohater {
  std::string Imie;
  Integer Ile_jeszcze;
  std::string Klasa;
  Integer AktWytrzymalosc;
  Integer AktMoc;
  Array<Integer, 7> Poziomy;
  Array<Integer, 5> Wartosci;
  Kostka MO;
  Integer Wcielenia;
  Array<bool, 10> MaBronww;
  Array<Integer, 10> BronwwProc;
  Array<Integer, 10> BronwwPlus;
  Array<bool, 10> MaBronss;
  Array<Integer, 10> BronssProc;
  Array<Integer, 10> BronssPlus;
  Array<bool, 10> MaCzar;
  Array<Integer, 2> Wyp;
  Array<bool, 4> MaSpec;
  Array<Integer, 17> Przedmioty;
  Integer Tura;
  std::string OstatniCzar;
  std::string OstatniPrzedmiot;
  std::string OstatniaBron;
  Array<Integer, 45> Stwory;

  friend bool operator==(const Bohater&, const Bohater&) = default;
};

// The line of the file on which each step of Poziomy stood.
using StepLines = std::array<int, 7>;

// Reading, part by part in file order. Raises the errors of ItemReader.
void readPerson(ItemReader& in, Bohater& hero);                        // Imie to AktMoc, lines 1 to 5
void readStatistics(ItemReader& in, Bohater& hero, StepLines& lines);  // the five pairs of step and value, to line 15
void readModifier(ItemReader& in, Bohater& hero, StepLines& lines);    // Poziomy(5) to Wcielenia, to line 19
void readWeapons(ItemReader& in, Bohater& hero);                       // the twenty weapon slots, to line 79
void readGoods(ItemReader& in, Bohater& hero);                         // spells, supplies, gear, items, to line 112
void readHistory(ItemReader& in, Bohater& hero);                       // Tura to Stwory, to line 161

// The whole file; every part above in order.
Bohater Player_Load(ItemReader in);

// Writing, the parts that more than one screen writes alike.
void writeMelee(ItemWriter& out, const Bohater& hero);
void writeRanged(ItemWriter& out, const Bohater& hero);
void writeItems(ItemWriter& out, const Bohater& hero);  // the seventeen Przedmioty
void writeLastChoices(ItemWriter& out, const Bohater& hero);
void writeKills(ItemWriter& out, const Bohater& hero);
template <class Flags>
void writeFlags(ItemWriter& out, const Flags& flags) {
  for (const bool flag : flags) out.flag(flag);
}

// The whole file as the record stands.
void Player_Save(ItemWriter& out, const Bohater& hero);

}  // namespace brolgan
