// A game late in its course, with the data that the game ships.
#pragma once

#include "rules/development.h"
#include "tests/desktop/scenes.h"

namespace brolgan::test {

// The data that the game ships.
inline void useRealData(World& world) {
  world.files.contents["bron.cfg"] = assetBytes("bron.cfg");
  world.files.contents["monsters.cfg"] = assetBytes("monsters.cfg");
}

// A hero late in a long game, with everything and the longest words.
inline Bohater lateHero() {
  Bohater hero = richHero();
  hero.Imie = "Zbigniew z Bogdańca Wielki";
  hero.Klasa = "Zabobonny mnich zakonny";
  hero.Ile_jeszcze = 1888;
  for (int i = 0; i < kStatistics; ++i) hero.Poziomy(i) = kStatisticTable[static_cast<std::size_t>(i)].top();
  const int values[] = {50, 10, 20, 34, 10};
  for (int i = 0; i < 5; ++i) hero.Wartosci(i) = values[i];
  hero.AktWytrzymalosc = 50;
  hero.AktMoc = 20;
  hero.MO = {1, 6, 2, 3};
  hero.Wcielenia = 12;
  for (int i = 0; i < 10; ++i) {
    hero.MaBronww(i) = hero.MaBronss(i) = true;
    hero.BronwwProc(i) = hero.BronssProc(i) = 175;
    hero.BronwwPlus(i) = hero.BronssPlus(i) = 5;
  }
  hero.MaSpec(0) = hero.MaSpec(2) = true;
  hero.Wyp(0) = 120;
  hero.Wyp(1) = 1880;
  hero.Tura = 288;
  for (int i = 0; i < 45; ++i) hero.Stwory(i) = 88;
  return hero;
}

}  // namespace brolgan::test
