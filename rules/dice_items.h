// A dice expression as four items of a text file.
#pragma once

#include "flow/text/item_reader.h"
#include "flow/text/item_writer.h"
#include "rules/dice.h"

namespace brolgan {

// The four numbers from wherever the reader stands, on one line or on four.
Kostka readDice(ItemReader& in);

// The four numbers side by side on one line, as a hero's modifier stands.
void writeOnOneLine(ItemWriter& out, const Kostka& dice);

// The four numbers one below the other, as a monster's attack stands.
void writeOnFourLines(ItemWriter& out, const Kostka& dice);

}  // namespace brolgan
