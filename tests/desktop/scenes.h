// Files that put a stage into a known scene: weapons and monsters of the tests' own, heroes, and
// the hand-over file of the screen that a test opens.
#pragma once

#include <string>
#include <vector>

#include "rules/handover.h"
#include "rules/weapons.h"
#include "tests/departments/screens.h"
#include "tests/preparation/preparation.h"

namespace brolgan::test {

// Five monsters of which no two are alike; the second comes in a group of three.
inline std::vector<Potwor> fiveMonsters() {
  std::vector<Potwor> monsters;
  const std::vector<std::string> names = {"Szczur", "Komary", "Zombi", "Wilkołak", "Ogr"};
  const std::vector<std::string> pictures = {"szczur.jpg", "komary.jpg", "zombi.jpg", "wilkolak.jpg", "ogr.jpg"};
  for (std::size_t i = 0; i < names.size(); ++i) {
    Potwor monster = plainMonster();
    monster.Nazwa = names[i];
    monster.Obrazek = pictures[i];
    monsters.push_back(monster);
  }
  monsters[1].Ilosc = 3;
  monsters[1].Atak = {1, 6, 1, 3};
  return monsters;
}

inline void setTheTable(World& world) {
  world.write(kWeaponsFile, catalogueLines());
  writeMonsters(world, "monsters.cfg", fiveMonsters());
}

inline void setCreation(World& world, int points) {
  setTheTable(world);
  world.write(kMakeHeroFile, {"hero1.boh", std::to_string(points)});
}

inline void setShop(World& world, const Bohater& hero, int mode = 1) {
  setTheTable(world);
  world.writeHero("hero1.boh", hero);
  world.write(kGameFile, {" 1 ", "hero1.boh"});
  world.write(kShopFile, {"hero1.boh", " " + std::to_string(mode) + " "});
}

// The preparation against the second of the five monsters.
inline void setPreparation(World& world, const Bohater& hero) {
  setShop(world, hero);
  writeZone(world, 1, 5);
  world.roll(1, 5, {2});
}

inline void setFight(World& world, const Bohater& hero, const FightSetup& setup = plainFight()) {
  setShop(world, hero);
  world.writeFightFile(setup);
}

// A hero who owns a weapon of each sort, all spells for sale and some supplies.
inline Bohater richHero() {
  Bohater hero = plainHero();
  hero.Ile_jeszcze = 40;
  hero.Wartosci(0) = 12;
  hero.AktWytrzymalosc = 9;
  hero.Wartosci(2) = 20;
  hero.AktMoc = 20;
  hero.MaBronww(5) = true;
  hero.MaBronss(1) = true;
  for (const int i : {0, 1, 2, 3, 6, 7, 9}) hero.MaCzar(i) = true;
  hero.Wyp(0) = 2;
  hero.Wyp(1) = 10;
  for (const int i : {0, 2, 3, 4, 5, 6, 7}) hero.Przedmioty(i) = 2;
  hero.Stwory(0) = 3;
  return hero;
}

}  // namespace brolgan::test
