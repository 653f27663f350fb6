// The shop under test.
#pragma once

#include <string>
#include <utility>

#include "tests/departments/screens.h"

namespace brolgan::test {

class Shop : public ::testing::Test, public Screen {
 protected:
  Shop() : Screen("CTsklep") {}

  static Bohater heroWith(int points) {
    Bohater hero = plainHero();
    hero.Ile_jeszcze = points;
    return hero;
  }
  // Opens the shop on a hero file with these lines, in mode 1.
  void openOn(const Lines& heroLines) {
    world.write("hero1.boh", heroLines);
    world.write(kShopFile, {"hero1.boh", " 1 "});
    world.runtime.Show(form);
  }
  int errorOn(const Lines& heroLines) {
    world.runtime.Unload(form);
    return errorOf([&] { openOn(heroLines); });
  }
  // Leaves for the first zone; the one die is the drawing of the monster there.
  void leave() {
    world.roll(1, 5, {1});
    press("w1");
  }
  Bohater left() {
    leave();
    return world.hero("hero1.boh");
  }
};

// The lines of the plain hero's file.
inline Lines plainLines() {
  World world;
  world.writeHero("hero1.boh", plainHero());
  return world.lines("hero1.boh");
}

}  // namespace brolgan::test
