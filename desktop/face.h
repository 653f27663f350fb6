// The face of the game: shows the loaded forms as windows, passes on what a person does to them,
// and is the one place where an error ends the game.
#pragma once

#include <QObject>
#include <exception>
#include <functional>
#include <map>
#include <memory>
#include <string>

#include "desktop/form_window.h"
#include "desktop/places.h"
#include "flow/stage/runtime.h"
#include "game/guide/next_hand.h"

namespace brolgan::desktop {

class PictureStore;

class Face : public QObject {
 public:
  Face(Runtime& runtime, PictureStore& pictures);
  ~Face() override;

  // Opens the start form and with it the game.
  void start();

  // Ends the program behind the box that tells of an error; every later one is passed over.
  void fail(const std::exception_ptr& error);

  // The window of a form, null when it has none yet.
  [[nodiscard]] FormWindow* window(const std::string& name) const;

  // Tells of an error when the box is not to be shown on the screen; for tests.
  std::function<void(const QString&)> onError;

 private:
  void act(const std::function<void()>& doing);
  void synchronize();
  bool makeWindow();
  void hideClosed();
  void releaseGone();
  void showOpened();
  void show(const std::string& name, Form& shown);
  [[nodiscard]] const FormWindow* inTurn(const FormWindow* next) const;
  [[nodiscard]] qreal unitOfNext() const;
  void rescueWindows();
  FormWindow::Events events();
  // Does something with a control and puts the keyboard where the hand is next.
  void use(const std::string& name, std::size_t index, const std::function<void(Form&)>& doing);
  void follow(const std::string& name, const std::string& used, const std::string& focused);
  [[nodiscard]] Form* formInSight(const std::string& name) const;
  Form* form(const std::string& name) const { return runtime_.find(name); }

  Runtime& runtime_;
  PictureStore& pictures_;
  std::map<std::string, std::unique_ptr<FormWindow>> windows_;
  std::map<std::string, NextHand> hands_;
  Places places_;
  bool over_ = false;
};

}  // namespace brolgan::desktop
