// The two screens on which a hero develops, opened on files that the test sets, with the hands to
// work them.
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "rules/handover.h"
#include "rules/weapons.h"
#include "tests/departments/lines.h"
#include "tests/support/world.h"

namespace brolgan::test {

// One weapon of bron.cfg, its nine lines. special is the flag of a melee weapon or the fire of a
// ranged one, spread the number behind it.
struct Weapon {
  std::string nazwa;
  Kostka dice = {1, 4, 1, 0};
  int cena = 1;
  std::string special = "0";
  int spread = 0;

  [[nodiscard]] Lines lines() const {
    const auto text = [](Integer number) { return std::to_string(number.value()); };
    return {nazwa,
            "huk.wav",
            text(dice.kmin),
            text(dice.kmax),
            text(dice.kile),
            text(dice.dodatek),
            special,
            std::to_string(spread),
            std::to_string(cena)};
  }
};

using Weapons = std::vector<Weapon>;

inline Lines weaponLines(const Weapons& weapons) {
  Lines all = {std::to_string(weapons.size())};
  for (const Weapon& weapon : weapons) all = joined({all, weapon.lines()});
  return all;
}

// The weapons that the tests count with, ten of each kind; their prices and dice are the tests' own.
inline Weapons meleeWeapons() {
  return {{"Nóż", {1, 4, 1, 0}, 1, "False"},
          {"Okuty kij", {1, 4, 1, 1}, 2, "True"},
          {"Laska", {1, 6, 1, 1}, 3, "True"},
          {"Magustaffi", {1, 6, 2, 0}, 5, "True"},
          {"Rózgacz", {1, 6, 2, 3}, 7, "True"},
          {"Tasak", {1, 8, 1, 1}, 2, "False"},
          {"Miecz", {1, 6, 2, 1}, 4, "False"},
          {"Kordelas Chaosu", {1, 8, 2, 2}, 7, "False"},
          {"Rysik Ślusarski", {1, 6, 3, 3}, 9, "False"},
          {"Oczożłop", {1, 8, 3, 5}, 13, "False"}};
}

inline Weapons rangedWeapons() {
  return {{"Łuk", {1, 6, 1, 0}, 2},
          {"Pistolet", {1, 8, 1, 2}, 3},
          {"Strzelba", {1, 6, 2, 2}, 5},
          {"Karabin", {1, 8, 2, 2}, 7, "2", 1},
          {"Działo", {1, 8, 5, 8}, 9},
          {"Marker", {1, 6, 2, 1}, 6, "1", 0},
          {"MultiBleed", {1, 6, 2, 0}, 8, "0", 2},
          {"Intrusion Rifle", {1, 8, 3, 2}, 11, "1", 2},
          {"Reaper Cannon", {1, 8, 3, 0}, 14, "0", 2},
          {"UltiGun", {1, 8, 5, 5}, 12}};
}

inline Lines catalogueLines(const Weapons& melee, const Weapons& ranged) {
  return joined({weaponLines(melee), weaponLines(ranged)});
}

inline Lines catalogueLines() { return catalogueLines(meleeWeapons(), rangedWeapons()); }

// A world with one of the two screens. Its dice are scripted, and neither screen throws any.
class Screen {
 public:
  explicit Screen(std::string name) : form(std::move(name)) { world.write(kWeaponsFile, catalogueLines()); }

  // Opens creation with a budget, or the shop for a hero with these points in that mode.
  void openCreation(const std::string& budget) {
    world.write(kMakeHeroFile, {"hero1.boh", budget});
    world.runtime.Show("CTmhero");
  }
  void openShop(const Bohater& hero, int mode = 1) {
    world.writeHero("hero1.boh", hero);
    world.write(kShopFile, {"hero1.boh", " " + std::to_string(mode) + " "});
    world.runtime.Show("CTsklep");
  }
  // Opens whichever screen it is, with these points.
  void open(int points) {
    Bohater hero = plainHero();
    hero.Ile_jeszcze = points;
    if (form == "CTsklep") {
      openShop(hero);
    } else {
      openCreation(std::to_string(points));
    }
  }

  // Clicks what must be within reach.
  void press(const std::string& control) { EXPECT_TRUE(world.click(form, control)) << control; }
  void press(const std::string& control, int times) {
    Form& owner = world.form(form);
    const ControlEntry& entry = owner.controls().find(control);
    for (int i = 0; i < times; ++i) ASSERT_TRUE(brolgan::click(world.runtime, owner, entry)) << control;
  }
  // Clicks a row of a list, counted from 0.
  void pick(const std::string& list, int row) { EXPECT_TRUE(world.selectRow(form, list, row)) << list; }

  [[nodiscard]] std::string points() const { return caption("Ile_jeszcze"); }
  [[nodiscard]] std::string caption(const std::string& label) const { return world.caption(form, label); }
  [[nodiscard]] bool isRed(const std::string& label) const { return world.colour(form, label) == Colour::red; }

  // The captions of the red entries of a ladder.
  [[nodiscard]] Lines redSteps(const std::string& ladder) const {
    Lines steps;
    for (const ControlEntry& entry : world.form(form).controls().entries()) {
      if (entry.name != ladder) continue;
      const Label& label = *std::get<Label*>(entry.control);
      if (label.ForeColor == Colour::red) steps.push_back(label.Caption);
    }
    return steps;
  }

  // What the screen shows, to see that a click changes nothing: every caption with its colour.
  [[nodiscard]] Lines picture() const {
    Lines all;
    for (const ControlEntry& entry : world.form(form).controls().entries()) {
      if (auto* const* const label = std::get_if<Label*>(&entry.control)) {
        const auto colour = std::to_string(static_cast<int>((*label)->ForeColor));
        all.push_back(entry.fullName() + " " + colour + " " + (*label)->Caption);
      }
    }
    return all;
  }

  World world;
  std::string form;
};

inline std::string numbered(const std::string& name, int index) { return name + "(" + std::to_string(index) + ")"; }

inline const std::vector<std::string>& ladderNames() {
  static const std::vector<std::string> names = {"stat1", "stat2", "stat3", "stat4", "stat5", "stat6", "stat7"};
  return names;
}

}  // namespace brolgan::test
