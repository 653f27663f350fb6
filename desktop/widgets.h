// The few kinds of widgets that Qt does not have as the game needs them.
#pragma once

#include <QAbstractButton>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <functional>

class QPainter;

namespace brolgan::desktop {

class PictureStore;

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

 private:
  void drawPlate(QPainter& painter);

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

// Shows a picture file as large as fits, in the middle.
class PictureWidget : public QLabel {
 public:
  PictureWidget(PictureStore& pictures, QWidget* parent);

  void setName(const QString& name);
  [[nodiscard]] const QString& name() const { return name_; }
  // Begins to decode the picture for its next drawing.
  void prepare();

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  PictureStore& pictures_;
  QString name_;
};

// A button whose face is a picture.
class PictureButton : public QAbstractButton {
 public:
  PictureButton(PictureStore& pictures, const QString& name, QWidget* parent);

  [[nodiscard]] QSize sizeHint() const override { return {48, 48}; }

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  PictureStore& pictures_;
  QString name_;
};

}  // namespace brolgan::desktop
