// The few kinds of widgets that Qt does not have as the game needs them.
#pragma once

#include <QAbstractButton>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPixmap>
#include <QRadioButton>
#include <functional>

class QKeyEvent;
class QPainter;

namespace brolgan::desktop {

class PictureStore;

// Whether a key presses what the keyboard stands on. A key that is held down presses once, so that it does
// not go on in the next screen.
bool isPress(const QKeyEvent& event);

// An option that can be clicked on its whole row; the chosen one stands in a frame.
class OptionRow : public QRadioButton {
 public:
  using QRadioButton::QRadioButton;

 protected:
  [[nodiscard]] bool hitButton(const QPoint& place) const override { return rect().contains(place); }
  void paintEvent(QPaintEvent* event) override;

 private:
  void drawFrame(QPainter& painter, int width);
};

// Shows the tool tips of the widgets that it watches in lines of a readable length.
class TipLines : public QObject {
 public:
  using QObject::QObject;

  // The text with its lines broken at so many pixels.
  static QString broken(const QString& text, const QFont& font, int width);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
};

// A label that can be clicked, with the mouse or, since it takes the focus, with the keyboard.
class ClickLabel : public QLabel {
 public:
  ClickLabel(std::function<void()> click, QWidget* parent);

  // Does what a click does.
  void click() { click_(); }
  // A label of something that is bought once, and whether it is owned.
  void setCheckable() { isCheckable_ = true; }
  [[nodiscard]] bool isCheckable() const { return isCheckable_; }
  void setChecked(bool isChecked);
  [[nodiscard]] bool isChecked() const { return isChecked_; }

 protected:
  void mouseReleaseEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  void drawPlate(QPainter& painter);
  void setMargins();

  std::function<void()> click_;
  bool isCheckable_ = false;
  bool isChecked_ = false;
};

// A text box that can also be clicked; the keyboard edits it without a click.
class ClickEdit : public QLineEdit {
 public:
  ClickEdit(std::function<void()> click, QWidget* parent);

 protected:
  void mouseReleaseEvent(QMouseEvent* event) override;

 private:
  std::function<void()> click_;
};

// A list of which one row, once chosen, stays chosen: no key with a click takes the mark away. The first
// arrow chooses the first row.
class RowList : public QListWidget {
 public:
  using QListWidget::QListWidget;

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  [[nodiscard]] QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex& index,
                                                                     const QEvent* event) const override;
};

// A picture file as it stands in a widget: as large as fits, in the middle. While the window is pulled
// the picture that was drawn last is stretched; when it rests, a sharp one takes its place.
class Picture {
 public:
  Picture(PictureStore& pictures, QString name = {}) : pictures_(pictures), name_(std::move(name)) {}

  // Answers whether that is another picture than before.
  bool setName(const QString& name);
  [[nodiscard]] const QString& name() const { return name_; }
  // Sets it back, as behind a veil; answers whether that is a change.
  bool setDimmed(bool isDimmed);
  [[nodiscard]] bool isDimmed() const { return isDimmed_; }
  // Begins to decode the picture for an area of the widget, unless it was drawn there before.
  void prepare(const QWidget& widget, QRect area) const;
  void draw(QWidget& widget, QRect area);
  // Gives back the memory of what was drawn.
  void forget();

 private:
  PictureStore& pictures_;
  QString name_;
  QPixmap shown_;
  QSize shownFor_;  // the area of device pixels for which it was decoded
  bool isDimmed_ = false;
};

// Shows a picture file.
class PictureWidget : public QLabel {
 public:
  PictureWidget(PictureStore& pictures, QWidget* parent);

  void setName(const QString& name);
  void setDimmed(bool isDimmed);
  [[nodiscard]] bool isDimmed() const { return picture_.isDimmed(); }
  [[nodiscard]] const QString& name() const { return picture_.name(); }
  // Stands behind that widget: while it shows, the picture is neither decoded nor drawn.
  void setCover(const QWidget& cover) { cover_ = &cover; }
  // Begins to decode the picture for its next drawing.
  void prepare();

 protected:
  void paintEvent(QPaintEvent* event) override;
  void hideEvent(QHideEvent* event) override;

 private:
  [[nodiscard]] bool isCovered() const { return cover_ != nullptr && !cover_->isHidden(); }

  Picture picture_;
  const QWidget* cover_ = nullptr;
};

// A button whose face is a picture.
class PictureButton : public QAbstractButton {
 public:
  PictureButton(PictureStore& pictures, const QString& name, QWidget* parent);

  [[nodiscard]] QSize sizeHint() const override;

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void hideEvent(QHideEvent* event) override;

 private:
  void drawLetter();

  Picture picture_;
};

}  // namespace brolgan::desktop
