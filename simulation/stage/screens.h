// The open screens as a player meets them: what he can read there and where he can click. All of it
// goes through the forms' own controls, found by name once and by place ever after.
#pragma once

#include <array>
#include <string>
#include <vector>

#include "flow/stage/hands.h"
#include "flow/stage/runtime.h"
#include "simulation/knowledge/hero_notes.h"

namespace brolgan::simulation {

// One open form and the ways to touch it.
class Screen {
 public:
  Screen(Runtime& runtime, const char* formName);

  // Whether the form is still the one that was opened.
  [[nodiscard]] bool isOpen() const { return runtime_.find(name_) == form_ && !runtime_.ended(); }

 protected:
  [[nodiscard]] const ControlEntry& at(std::size_t place) const { return form_->controls().entries()[place]; }
  [[nodiscard]] const Label& label(std::size_t place) const { return *std::get<Label*>(at(place).control); }
  [[nodiscard]] const ComboBox& combo(std::size_t place) const { return *std::get<ComboBox*>(at(place).control); }
  [[nodiscard]] int number(std::size_t place) const;
  [[nodiscard]] bool reachable(std::size_t place) const { return isReachable(at(place)); }
  bool press(std::size_t place) { return click(runtime_, *form_, at(place)); }
  bool pick(std::size_t place, int row) { return select(runtime_, at(place), row); }
  // Selects the row of that text; answers whether there is one.
  bool pick(std::size_t place, const std::string& text);
  bool write(std::size_t place, const std::string& text) { return type(at(place), text); }
  [[nodiscard]] const ControlTable& table() const { return form_->controls(); }

 private:
  Runtime& runtime_;
  const char* name_;
  Form* form_;
};

class SetUpScreen : public Screen {
 public:
  explicit SetUpScreen(Runtime& runtime);
  void setPoints(int points);
  void create(int player);
  void start();
};

// The departments that creation and shop have in common.
class DepartmentScreen : public Screen {
 public:
  [[nodiscard]] int points() const;
  [[nodiscard]] bool statisticsOpen() const;
  [[nodiscard]] bool weaponsOpen() const;
  [[nodiscard]] bool spellsOpen() const;
  // Each buys if it can be bought; the points tell whether it was.
  void plus(int statistic);
  void buyWeapon(int weapon);
  void buySpell(int spell);
  void buyGear(int gear);
  void buySupply(int supply);

 protected:
  struct Places;
  DepartmentScreen(Runtime& runtime, const char* formName, const Places& places)
      : Screen(runtime, formName), places_(places) {}
  static Places departments(const ControlTable& table);

  const Places& places_;
};

class CreationScreen : public DepartmentScreen {
 public:
  explicit CreationScreen(Runtime& runtime);
  void setName(const std::string& name);
  void chooseClass(int klasa);
  void sellWeapon(int weapon);
  void save();

 private:
  static const Places& places(Runtime& runtime);
};

class ShopScreen : public DepartmentScreen {
 public:
  explicit ShopScreen(Runtime& runtime);
  [[nodiscard]] const std::string& heroName() const;
  [[nodiscard]] int turn() const;
  // Brings the notes up to date with all that the screen shows.
  void read(HeroNotes& notes) const;
  void goTo(int zone);

 private:
  static const Places& places(Runtime& runtime);
};

class PreparationScreen : public Screen {
 public:
  explicit PreparationScreen(Runtime& runtime);
  [[nodiscard]] const std::string& monsterName() const;
  [[nodiscard]] int initiative() const;
  [[nodiscard]] int endurance() const;
  [[nodiscard]] int magic() const;
  // Selects the spell and casts it; answers whether it is on the list.
  bool cast(const char* spell);
  void finish();
};

class FightScreen : public Screen {
 public:
  explicit FightScreen(Runtime& runtime);
  [[nodiscard]] int endurance() const;
  [[nodiscard]] int armour() const;
  [[nodiscard]] int magic() const;
  [[nodiscard]] int targetLife() const;
  [[nodiscard]] int targetArmour() const;
  [[nodiscard]] bool fallen() const;
  [[nodiscard]] bool cleared() const;
  [[nodiscard]] bool won() const;
  [[nodiscard]] bool mayAttack() const;
  [[nodiscard]] bool mayCast() const;
  [[nodiscard]] bool mayUse() const;
  // The sum of the figures in the report of the last blow, 0 when it is not shown.
  [[nodiscard]] int shownDamage() const;
  // Whether the screen warns of endurance lost for good.
  [[nodiscard]] bool warned() const;
  // What the selected weapon's line of damage says of its percent.
  [[nodiscard]] int shownPercent() const;
  bool chooseWeapon(const std::string& name);
  bool chooseSpell(const char* spell);
  bool chooseItem(const char* item);
  void typeMagic(int amount);
  void attack();
  void cast();
  void use();
  void nextRound();
  void closeReport();
};

}  // namespace brolgan::simulation
