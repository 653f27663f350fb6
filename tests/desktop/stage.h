// A whole game with its face for one test: the files, dice and sounds that the test sets, the
// windows as a person sees them, and a person's hands, which click, choose and type at the windows
// themselves and so reach only what lies there.
#pragma once

#include <QAbstractItemView>
#include <QColor>
#include <QString>
#include <QStringList>
#include <QWidget>
#include <string>
#include <vector>

#include "desktop/face.h"
#include "desktop/picture_store.h"
#include "tests/support/world.h"

namespace brolgan::test {

class Stage {
 public:
  // The runtime asks for pictures in memory, where every picture is there.
  Stage();
  // The runtime asks for the real pictures in the working directory.
  struct RealPictures {};
  explicit Stage(RealPictures);
  ~Stage();
  Stage(const Stage&) = delete;
  Stage& operator=(const Stage&) = delete;

  // Starts the game as the program does.
  void start();
  // Starts with other screens in place of title and set-up; one that is open already opens afresh.
  void open(const std::vector<std::string>& forms);

  // Lets all that has been done come to rest. Every window takes an event to be made, and they take
  // one more to be shown.
  static void settle();

  // The window of a form; fails when it was never shown.
  [[nodiscard]] desktop::FormWindow& window(const std::string& form) const;
  [[nodiscard]] bool isShown(const std::string& form) const;
  // The one widget of that name; fails when there is none.
  [[nodiscard]] QWidget& at(const std::string& form, const std::string& control) const;
  template <class Widget>
  [[nodiscard]] Widget& get(const std::string& form, const std::string& control) const {
    return dynamic_cast<Widget&>(at(form, control));
  }

  // What stands in a widget: caption, text, title, or the selected row of a list.
  [[nodiscard]] std::string text(const std::string& form, const std::string& control) const;
  [[nodiscard]] QColor colour(const std::string& form, const std::string& control) const;
  [[nodiscard]] bool isRed(const std::string& form, const std::string& control) const;
  [[nodiscard]] bool isVisible(const std::string& form, const std::string& control) const;
  [[nodiscard]] bool isEnabled(const std::string& form, const std::string& control) const;
  [[nodiscard]] std::vector<std::string> rows(const std::string& form, const std::string& control) const;

  // The mouse. Each clicks at the place of the widget, whatever lies there.
  void click(const std::string& form, const std::string& control);
  void choose(const std::string& form, const std::string& control, const std::string& row);
  // Replaces the text of a box by clicking into it, where a click does nothing else, and typing.
  void write(const std::string& form, const std::string& control, const std::string& text);
  // Presses the close box of a window.
  void close(const std::string& form);

  // The keyboard of a window: keys go to what has the focus.
  void press(const std::string& form, Qt::Key key, Qt::KeyboardModifiers with = Qt::NoModifier);
  void typeKeys(const std::string& form, const std::string& text);
  // The name of the widget with the focus, empty when none has it.
  [[nodiscard]] std::string focus(const std::string& form) const;
  // Presses Tab until that control has the focus; answers whether it came to have it.
  bool tabTo(const std::string& form, const std::string& control);
  // Chooses a row of a list or of an option with the arrows, from the focus on it.
  void chooseWithArrows(const std::string& form, const std::string& control, const std::string& row);

  World world;
  desktop::PictureStore pictures;
  Runtime runtime;
  desktop::Face face;
  std::vector<std::string> errors;

 private:
  void clickAt(QWidget& window, const QWidget& widget, QPoint place);
  void clickRow(QWidget& top, QAbstractItemView& view, int row);
  void prepare();
};

}  // namespace brolgan::test
