// A fight for one test: a hero, a group of monsters and a catalogue that the test changes before it
// opens the fight, and the clicks and looks of the player at the table.
#pragma once

#include <gtest/gtest.h>

#include <array>
#include <string>
#include <vector>

#include "rules/weapons.h"
#include "tests/support/world.h"

namespace brolgan::test {

// The hero's file is hero1.boh and he plays alone. He has no damage dice of his own, and every weapon
// deals exactly 10, without dice, so that a blow or shot draws nothing but its growth; "Miecz", which
// he owns beside "Nóż" and "Łuk", fells any target. The group is one "Szczur" of endurance 20 without
// armour, whose blows do nothing and draw nothing. Every draw that a test scripts must be used.
class FightTest : public ::testing::Test {
 protected:
  FightTest();
  void TearDown() override;

  // Before the fight opens. Whatever is "ready" is owned and still selected from the last fight.
  void own(const std::string& weapon);
  void ready(const std::string& weapon);
  void learn(const std::string& spell);
  void readySpell(const std::string& spell);
  void pack(const std::string& item, int count);
  void readyItem(const std::string& item, int count);
  BronRecord& weapon(const std::string& name);
  void deals(const std::string& weaponName, int damage) { weapon(weaponName).kostka = {1, 6, 0, damage}; }
  void group(int count, int life, int armour = 0);
  // Each monster strikes with exactly so much, without dice.
  void strikesWith(int damage) { fight.potwor.Atak = {1, 4, 0, damage}; }
  // The players in their order, each with a file; the first is the hero of the fight.
  void players(const std::vector<std::string>& files);
  void writeCatalogue();
  void writeFiles();
  void open();

  // What the player does. A blow scripts its growth and expects that it can be made, a shot too.
  bool press(const std::string& control) { return world.click("Fight", control); }
  void choose(const std::string& weaponName) { world.select("Fight", "Bron", weaponName); }
  void chooseSpell(const std::string& spell) { world.select("Fight", "Czar", spell); }
  void chooseItem(const std::string& item) { world.select("Fight", "Przedmiot", item); }
  // What the button does, also while it is disabled.
  void runHandlerOf(const std::string& button) { world.get<CommandButton>("Fight", button).Click(); }
  void blow(int growth = 120);
  void shot(int growth = 140);
  void cast() { EXPECT_TRUE(press("Rzuc")); }
  void use() { EXPECT_TRUE(press("Uzyj")); }
  void nextRound() { EXPECT_TRUE(press("NastTura")); }
  // In a new round, so that the figures show the next of the group.
  void fellTarget();
  // Fells the only target and closes the fight, the shop opening in that mode.
  void win(int mode = 1);
  // Falls and closes the fight, which draws no mode when the program ends.
  void fall();

  // What the player sees.
  [[nodiscard]] std::string caption(const std::string& label) const { return world.caption("Fight", label); }
  [[nodiscard]] bool shown(const std::string& control) const { return world.isVisible("Fight", control); }
  [[nodiscard]] bool enabled(const std::string& control) const { return world.isEnabled("Fight", control); }
  [[nodiscard]] std::string text(const std::string& control) const { return world.text("Fight", control); }
  // The enabled ones of the three, as "Atak Rzuc Uzyj", "Uzyj" or "".
  [[nodiscard]] std::string openActions() const;
  [[nodiscard]] std::vector<std::string> played() const { return world.sounds.played(); }
  [[nodiscard]] Bohater saved() { return world.hero("hero1.boh"); }

  World world;
  Bohater hero = plainHero();
  FightSetup fight = plainFight();
  Catalogue<101> katalog;
};

}  // namespace brolgan::test
