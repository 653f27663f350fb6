// A scripted session through all screens of the game, played at its widgets by one strong hero.
#pragma once

#include <QString>
#include <QWidget>
#include <functional>
#include <string>

#include "desktop/face.h"
#include "probe.h"

namespace brolgan::bench {

class Session {
 public:
  // Hears of every change of screen and of the slowest frame of a pulled window, by its name, and how
  // long it took.
  using Listener = std::function<void(const std::string& change, double ms)>;

  Session(Probe& probe, Runtime& runtime, desktop::Face& face, Listener listener)
      : probe_(probe), runtime_(runtime), face_(face), listener_(std::move(listener)) {}

  // Opens the title and the set-up.
  void open();
  // Plays from the set-up to the shop after the first fight, and closes the shop.
  void play();
  // Does the same, and pulls the window of each large screen on the way.
  void playAndPull();

 private:
  void change(const std::string& change, const std::string& form, const char* control, const char* to);
  bool tryChange(const std::string& change, const std::string& form, const char* control, const char* to);
  void click(const std::string& form, const std::string& control, int times = 1);
  void press(const std::string& form, const std::string& control, int key, const QString& text = {});
  void choose(const std::string& form, const char* list, int row);
  void typeBudget();
  void makeHero();
  void visitShop();
  void prepare();
  void fight();
  void pull(const std::string& screen, const std::string& form);
  [[nodiscard]] QWidget* widget(const std::string& form, const std::string& control) const;

  Probe& probe_;
  Runtime& runtime_;
  desktop::Face& face_;
  Listener listener_;
  bool pulls_ = false;
};

}  // namespace brolgan::bench
