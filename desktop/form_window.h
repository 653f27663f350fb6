// The window of one form: one widget a control, under the control's name, laid out by the form's
// layout. It outlives the form that it shows, so that a screen which opens again needs no new
// widgets; show() binds it to the form that is loaded now.
#pragma once

#include <QPixmap>
#include <QPoint>
#include <QWidget>
#include <functional>
#include <map>
#include <string>
#include <vector>

#include "flow/stage/form.h"

namespace brolgan::desktop {

class PictureStore;

class FormWindow : public QWidget {
 public:
  // What a person did in a window, to be done to the game.
  struct Events {
    std::function<void(const std::string& form, std::size_t entry)> click;
    std::function<void(const std::string& form, std::size_t entry, int row)> select;
    std::function<void(const std::string& form, std::size_t entry, const QString& text)> type;
    std::function<void(const std::string& form)> close;
    std::function<void(const std::string& form)> escape;
  };

  FormWindow(std::string name, Form& form, PictureStore& pictures, const Events& events);

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
  // Has reports announced again, the same words included, that the use of a control makes news.
  void expectNews(const std::string& used);
  // Puts the keyboard on a control, unless it is there; nothing for an empty name.
  void focusOn(const std::string& control);
  // The control that the keyboard stands on, empty when there is none.
  [[nodiscard]] std::string focused() const;

  // For the layouts: the widget of a control, by its full name. The control must exist.
  [[nodiscard]] QWidget& at(const std::string& fullName) const;
  [[nodiscard]] QWidget& at(const std::string& name, int index) const;
  [[nodiscard]] bool has(const std::string& fullName) const { return widgets_.contains(fullName); }
  [[nodiscard]] PictureStore& pictures() const { return pictures_; }
  // A picture behind all controls, scaled to the window.
  void setBackground(const QString& pictureName) { background_ = pictureName; }

 protected:
  void closeEvent(QCloseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  [[nodiscard]] QSize pixels() const { return (QSizeF(size()) * devicePixelRatioF()).toSize(); }
  void makeWidgets(const Events& events);
  void orderTabs();
  void addKeys(const Events& events);
  void reach(std::size_t index, const Events& events);
  void tellAll();
  void forgetMouse();
  [[nodiscard]] QWidget* parentOf(const ControlEntry& entry);

  std::string name_;
  Form* form_;
  PictureStore& pictures_;
  std::function<void(const std::string&)> close_;
  std::function<void(const std::string&)> escape_;
  std::map<std::string, QWidget*> widgets_;
  std::vector<QWidget*> inOrder_;
  std::map<QWidget*, QString> announced_;  // what each report said last, empty while it is not seen
  QString background_;
  QPixmap shownBackground_;  // at the window's size, kept while the window shows
};

}  // namespace brolgan::desktop
