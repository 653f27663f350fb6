// The face of the game: shows the loaded forms as windows, passes on what a person does to them,
// and is the one place where an error ends the game.
#pragma once

#include <QObject>
#include <QPoint>
#include <exception>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>

#include "desktop/form_window.h"
#include "flow/stage/runtime.h"

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
  void place(const std::string& name, FormWindow& window);
  void rememberPlace(const FormWindow& window);
  FormWindow::Events events();
  [[nodiscard]] Form* formInSight(const std::string& name) const;
  Form* form(const std::string& name) const { return runtime_.find(name); }

  Runtime& runtime_;
  PictureStore& pictures_;
  std::map<std::string, std::unique_ptr<FormWindow>> windows_;
  std::optional<QPoint> lastPlace_;
  bool over_ = false;
};

}  // namespace brolgan::desktop
