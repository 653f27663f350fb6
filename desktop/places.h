// Where the windows of the game open, and what a person has made of them: moved, pulled, maximised.
#pragma once

#include <QRect>
#include <map>
#include <optional>
#include <string>

class QScreen;

namespace brolgan::desktop {

class FormWindow;

class Places {
 public:
  // Puts a window that is about to be shown where it belongs: on the screen of the window that it
  // comes after, wholly within what is free there. No window before it means the first screen.
  void place(FormWindow& window, const FormWindow* before);
  // Keeps where a window stands that is about to leave the screen. One that opened beside another and was
  // not moved is put anew the next time.
  void remember(const FormWindow& window);

  // Brings a window wholly into sight again when a screen is gone.
  static void rescue(FormWindow& window);
  // The unit at which windows open on a screen: what the largest of them needs, and a tenth of a large
  // screen stays free.
  static qreal unitOn(const QScreen& screen);

 private:
  struct Stood {
    QRect place;
    Qt::WindowStates state;
  };

  [[nodiscard]] const Stood* stoodOn(const QScreen& screen, const FormWindow& window) const;

  std::map<std::string, QRect> besides_;  // where a window was put beside another; until it is moved
  std::map<std::string, Stood> own_;
  std::optional<Stood> turn_;
};

}  // namespace brolgan::desktop
