// The face of the game in a browser: shows the loaded forms on the page, passes on what a person does to
// them, and is the one place where a run-time error is caught.
#pragma once

#include <exception>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "flow/stage/runtime.h"
#include "game/guide/next_hand.h"
#include "rules/random.h"
#include "web/form_page.h"

namespace brolgan::web {

class Face {
 public:
  explicit Face(Outside outside) : outside_(outside) {}

  // Opens the start form and with it the game; after an end, anew.
  void start();

  // Lays one of the screens out that have not been seen yet, so that it opens at once; false when there is
  // none left.
  bool prepare();

  // What a person did to an element, by its id; nothing happens when no open form has it.
  void click(std::string_view id);
  void select(std::string_view id, int row);
  void type(std::string_view id, const std::string& text);
  void focus(std::string_view id);
  // What a person did to a form: pressed its close box, pressed Escape on it, or pressed a letter together
  // with Alt. Of the last it answers whether the letter leads anywhere.
  void close(std::string_view form);
  void escape(std::string_view form);
  bool reach(std::string_view form, char key);
  // Leaves only the title, from which a person starts the program anew.
  void end();

  // Whether a person has done anything since the start, and the dice of the game.
  [[nodiscard]] bool isTouched() const { return isTouched_; }
  [[nodiscard]] RandomSource& random() { return random_; }

 private:
  // A form in sight, and the place of a control in its table.
  struct Target {
    FormPage* page = nullptr;
    Form* form = nullptr;
    std::size_t index = 0;
    [[nodiscard]] const ControlEntry& entry() const { return form->controls().entries()[index]; }
  };

  void act(const std::function<void()>& doing);
  void fail(const std::exception_ptr& error);
  void synchronize();
  bool showOpened();
  bool hideClosed();
  bool show(const std::string& name, Form& form);
  // Does something with a control and puts the keyboard where the hand is next.
  void use(const Target& at, const std::function<void(const Target&)>& doing);
  [[nodiscard]] std::optional<Target> formInSight(std::string_view name);
  [[nodiscard]] std::optional<Target> find(std::string_view id);
  [[nodiscard]] std::optional<Target> find(std::string_view form, std::string_view control);

  Outside outside_;
  SeededRandom random_;
  std::unique_ptr<Runtime> runtime_;
  std::map<std::string, FormPage, std::less<>> pages_;
  std::map<std::string, NextHand, std::less<>> hands_;
  bool isOver_ = false;
  bool isTouched_ = false;
  bool hasTurned_ = false;  // whether a form has appeared or gone since the last act
};

}  // namespace brolgan::web
