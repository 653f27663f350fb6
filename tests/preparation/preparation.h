// A preparation that a test sets up: the hero, the monster list and the zone, then the screen.
#pragma once

#include <string>
#include <vector>

#include "tests/support/world.h"

namespace brolgan::test {

// The one monster of a list made for a test.
inline Potwor plainMonster() { return plainFight().potwor; }

inline void writeMonsters(World& world, const std::string& file, const std::vector<Potwor>& monsters) {
  ItemWriter out(world.files, file);
  out.integer(static_cast<int>(monsters.size()));
  for (const Potwor& monster : monsters) {
    out.integer(monster.Ilosc);
    out.string(monster.Nazwa);
    out.string(monster.Obrazek);
    out.integer(monster.Szybkosc);
    writeOnFourLines(out, monster.Atak);
    out.integer(monster.Wytrzymalosc);
    out.integer(monster.Pancerz);
  }
  out.close();
}

inline void writeZone(World& world, int lowest, int highest, const std::string& file = "monsters.cfg") {
  world.write("pref.cfg", {"hero1.boh", " " + std::to_string(lowest) + " ", " " + std::to_string(highest) + " ", file});
}

class Preparation {
 public:
  Preparation() {
    hero.Wartosci(0) = 30;
    hero.AktWytrzymalosc = 10;
    hero.AktMoc = 20;
    hero.Wartosci(2) = 20;
    hero.Wartosci(3) = 12;
  }

  // Opens the screen with the only monster of the list, which costs one draw.
  void open() {
    world.writeHero("hero1.boh", hero);
    writeMonsters(world, "monsters.cfg", {monster});
    writeZone(world, 1, 1);
    world.roll(1, 1, {1});
    world.runtime.Show("Prefight");
  }
  void openWith(int counter, int uses) {
    hero.Przedmioty(counter) = uses;
    open();
  }

  void use(const std::string& item) {
    world.select("Prefight", "Przedmioty", item);
    useAgain();
  }
  void useAgain() { world.click("Prefight", "Uzyj"); }
  void cast(const std::string& spell) {
    world.select("Prefight", "Czary", spell);
    castAgain();
  }
  void castAgain() { world.click("Prefight", "Rzuc"); }
  // Ends the screen; the fight that follows is struck first by whom the test sets, so it may roll.
  void finish() { world.click("Prefight", "Zakoncz"); }

  [[nodiscard]] std::string caption(const std::string& label) const { return world.caption("Prefight", label); }
  [[nodiscard]] std::string notes() const { return world.text("Prefight", "historia"); }
  [[nodiscard]] std::vector<std::string> items() const { return world.rows("Prefight", "Przedmioty"); }
  [[nodiscard]] std::vector<std::string> spells() const { return world.rows("Prefight", "Czary"); }

  World world;
  Bohater hero = plainHero();
  Potwor monster = plainMonster();
};

}  // namespace brolgan::test
