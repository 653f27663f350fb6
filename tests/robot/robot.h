// A robot that plays whole games with a person's hands: it sees the tables of controls alone and
// clicks, selects and types at random in what can be reached. Its chance is its own, never the
// game's, so a seed gives the same game whatever the screens draw.
#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <optional>
#include <random>
#include <string>
#include <string_view>
#include <vector>

#include "tests/support/world.h"

namespace brolgan::robot {

// The last control that the robot laid hands on, and what it put there.
struct Action {
  std::string form;
  std::string control;
  std::string text;
};

enum class Ending { lastMonster, lastLife, titleClosed, error };

struct Report {
  Ending ending = Ending::titleClosed;
  int clicks = 0;
  int turns = 0;
  std::optional<RuntimeError> error;
  Action last;
};

// How a robot plays; the defaults give a short lively game.
struct Habits {
  // Having done so many things it closes the title window.
  int mostClicks = 600;
  // One text in so many is nonsense; 0 for never.
  int sillyTexts = 12;
  // One robot in so many plays for the great victory; 0 for none.
  int richRobots = 12;
  // One robot in so many hoards points; 0 for none.
  int misers = 60;
  // One window in so many acts is closed by its close box; 0 for never.
  int closedWindows = 1500;
};

class Robot {
 public:
  // Plays on the world, whose clock it moves on a little before each act.
  Robot(test::World& world, std::uint64_t seed, Habits habits = {});

  // Called after every act with the report so far, which holds the error if the act raised one.
  std::function<void(const Report&)> watcher;

  // Starts the program and plays to an end of the game or to an error.
  Report play();

 private:
  // What a form of one name offers, by place in its table; the same for every such form.
  struct Menu {
    std::vector<std::size_t> active;
    std::vector<std::size_t> passive;
    std::map<std::string, std::size_t, std::less<>> places;
  };

  // Chance.
  int die(int faces) { return static_cast<int>(random_() % static_cast<std::uint64_t>(faces)); }
  bool oneIn(int times) { return times > 0 && die(times) == 0; }

  // The screens.
  void playScreen();
  void playSetUp();
  void playCreation();
  void playShop();
  void playPreparation();
  void playFight();
  void castAny();
  void playSheet();
  void spendRiches();
  void mendBudget();
  void closeSomething(const std::string& form);
  void enter(int player);

  // Single acts; each is one event.
  bool click(const std::string& form, std::string_view control);
  bool choose(const std::string& form, std::string_view control);
  bool write(const std::string& form, std::string_view control, const std::string& text);
  void actAtRandom(const std::string& form);
  void act(const std::string& form, const ControlEntry& entry);
  void closeForm(const std::string& form);
  void perform(Action action, const Handler& doing);

  [[nodiscard]] bool over() const { return report_.error || world_.runtime.ended(); }
  [[nodiscard]] bool isShown(std::string_view form) const;
  [[nodiscard]] std::string screen() const;
  const Menu& menu(const std::string& form);
  const ControlEntry& entryOf(const std::string& form, std::string_view control);
  [[nodiscard]] bool canReach(const std::string& form, std::string_view control);
  [[nodiscard]] std::string caption(const std::string& form, std::string_view label);
  [[nodiscard]] Ending endingOf();
  std::string textFor(const std::string& control);

  test::World& world_;
  std::mt19937_64 random_;
  Habits habits_;
  Report report_;
  std::map<std::string, Menu, std::less<>> menus_;
  int players_ = 1;
  int courage_ = 12;
  // A rich robot types many points, makes strong heroes and seeks the last of the monsters; a
  // miser types as many as the game can count and spends none.
  bool rich_ = false;
  bool miser_ = false;
};

}  // namespace brolgan::robot
