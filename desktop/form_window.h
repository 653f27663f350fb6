// The window of one form: one widget a control, under the control's name, laid out by the form's
// layout. It outlives the form that it shows, so that a screen which opens again needs no new
// widgets; show() binds it to the form that is loaded now. All widgets lie on one page, which scrolls
// when the window is too small for the least unit.
#pragma once

#include <QBasicTimer>
#include <QPixmap>
#include <QScrollArea>
#include <functional>
#include <map>
#include <stdexcept>
#include <string>
#include <vector>

#include "desktop/layouts/layouts.h"
#include "desktop/unit.h"
#include "desktop/widgets.h"
#include "flow/stage/form.h"
#include "game/guide/news.h"

namespace brolgan::desktop {

class PictureStore;

class FormWindow : public QScrollArea {
 public:
  // What a person did in a window, to be done to the game.
  struct Events {
    std::function<void(const std::string& form, std::size_t entry)> click;
    std::function<void(const std::string& form, std::size_t entry, int row)> select;
    std::function<void(const std::string& form, std::size_t entry, const QString& text)> type;
    std::function<void(const std::string& form)> close;
    std::function<void(const std::string& form)> escape;
  };

  // unit is the one at which the window is going to be shown.
  FormWindow(std::string name, Form& form, PictureStore& pictures, const Events& events, qreal unit);

  [[nodiscard]] const std::string& name() const { return name_; }
  [[nodiscard]] const ScreenLayout& layoutOf() const { return layout_; }

  // Shows another form of the same kind from now on, as fresh as it was loaded.
  void bind(Form& form);
  // Forgets a form that is gone; another may come to lie at its address.
  void release() { form_ = nullptr; }
  [[nodiscard]] const Form* form() const { return form_; }

  // Makes every widget like its control.
  void mirrorAll();
  // Hides the window and gives back the memory of its picture on the screen.
  void leaveScreen();
  // Begins to decode the pictures that are drawn next.
  void preparePictures();
  // A control is about to be used.
  void expectNews(const std::string& used);
  // Announces what happened since the last call. Only what is on the screen can be told.
  void tellNews();
  // Puts the keyboard on a control, unless it is there; nothing for an empty name.
  void focusOn(const std::string& control);
  // The control that the keyboard stands on, empty when there is none.
  [[nodiscard]] std::string focused() const;

  // Where those controls stand on the screen that no other window should cover.
  [[nodiscard]] std::vector<QRect> keptClear() const;

  // For the layouts: the widget of a control, by its full name. Throws std::logic_error when there is
  // no such control, or its widget is of another kind.
  template <class Widget = QWidget>
  [[nodiscard]] Widget& at(const std::string& fullName) const;
  template <class Widget = QWidget>
  [[nodiscard]] Widget& at(const std::string& name, int index) const {
    return at<Widget>(member(name, index));
  }
  [[nodiscard]] bool has(const std::string& fullName) const { return widgets_.contains(fullName); }
  [[nodiscard]] QWidget& page() const { return *widget(); }
  [[nodiscard]] Unit& unit() { return unit_; }
  [[nodiscard]] const Unit& unit() const { return unit_; }
  [[nodiscard]] PictureStore& pictures() const { return pictures_; }
  // A picture behind all controls, scaled to the page.
  void setBackground(const QString& pictureName);
  [[nodiscard]] const QString& background() const { return background_; }

 protected:
  bool event(QEvent* event) override;
  void closeEvent(QCloseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void timerEvent(QTimerEvent* event) override;

 private:
  class Page;

  [[nodiscard]] QWidget* find(const std::string& fullName) const;
  void makePage();
  void makeWidgets(const Events& events);
  void orderTabs();
  void addKeys(const Events& events);
  void reach(std::size_t index, const Events& events);
  void tellAll();
  void stir(const std::string& report);
  void forgetMouse();
  void watchTips();
  void fit();
  void keepProportion();
  void sharpen();
  [[nodiscard]] QWidget* parentOf(const ControlEntry& entry);

  std::string name_;
  const ScreenLayout& layout_;
  Form* form_;
  PictureStore& pictures_;
  std::function<void(const std::string&)> close_;
  std::function<void(const std::string&)> escape_;
  Unit unit_;
  TipLines tips_;
  std::map<std::string, QWidget*> widgets_;
  std::vector<QWidget*> inOrder_;
  News news_;
  QString background_;
  QBasicTimer rest_;
  bool isDecoding_ = false;  // for the size at which the window has come to rest
};

template <class Widget>
Widget& FormWindow::at(const std::string& fullName) const {
  auto* const found = dynamic_cast<Widget*>(find(fullName));
  if (found == nullptr) throw std::logic_error(name_ + " has no such control: " + fullName);
  return *found;
}

}  // namespace brolgan::desktop
