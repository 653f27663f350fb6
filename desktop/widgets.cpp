#include "desktop/widgets.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QStyle>
#include <algorithm>
#include <utility>

#include "desktop/picture_store.h"
#include "desktop/theme.h"

namespace brolgan::desktop {

namespace {

// The device pixels of an area of a widget.
QSize pixelsOf(const QWidget& widget, QRect area) {
  return (QSizeF(area.size()) * widget.devicePixelRatioF()).toSize();
}

void drawPicture(QWidget& widget, PictureStore& pictures, const QString& name, QRect area) {
  if (name.isEmpty() || area.isEmpty()) return;
  const qreal ratio = widget.devicePixelRatioF();
  QPixmap picture = pictures.pixmap(name, pixelsOf(widget, area));
  if (picture.isNull()) return;
  picture.setDevicePixelRatio(ratio);
  const QSizeF size = QSizeF(picture.size()) / ratio;
  QPainter painter(&widget);
  if (!widget.isEnabled()) painter.setOpacity(0.4);
  painter.drawPixmap(
      QPointF(area.x() + (area.width() - size.width()) / 2, area.y() + (area.height() - size.height()) / 2), picture);
}

}  // namespace

ClickLabel::ClickLabel(std::function<void()> click, QWidget* parent) : QLabel(parent), click_(std::move(click)) {
  setFocusPolicy(Qt::StrongFocus);
  setCursor(Qt::PointingHandCursor);
  setContentsMargins(6, 1, 6, 1);
}

void ClickLabel::setChecked(bool isChecked) {
  isChecked_ = isChecked;
  update();
}

void ClickLabel::mouseReleaseEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton || !rect().contains(event->position().toPoint())) return;
  click_();
  repaint();  // The two clicks of a double click are seen both.
}

void ClickLabel::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Space || event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
    click_();
  } else {
    QLabel::keyPressEvent(event);
  }
}

// Draws the text itself: a label that takes the focus would set it higher than its neighbours.
void ClickLabel::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  if (isEnabled()) drawPlate(painter);
  style()->drawItemText(&painter, contentsRect(), static_cast<int>(alignment()), palette(), isEnabled(), text(),
                        foregroundRole());
}

// A light plate says that the label can be clicked; the focus thickens its edge.
void ClickLabel::drawPlate(QPainter& painter) {
  painter.setPen(hasFocus() ? QPen(theme::kFocus, 2) : QPen(theme::kEdge, 1));
  painter.setBrush(theme::kPlate);
  painter.drawRoundedRect(QRectF(rect()).adjusted(1, 1, -1, -1), 4, 4);
}

ClickEdit::ClickEdit(std::function<void()> click, QWidget* parent) : QLineEdit(parent), click_(std::move(click)) {}

void ClickEdit::mouseReleaseEvent(QMouseEvent* event) {
  QLineEdit::mouseReleaseEvent(event);
  if (event->button() == Qt::LeftButton && rect().contains(event->position().toPoint())) click_();
}

void RowList::keyPressEvent(QKeyEvent* event) {
  const auto moves = {Qt::Key_Up, Qt::Key_Down, Qt::Key_Home, Qt::Key_PageUp, Qt::Key_PageDown};
  const bool isMove = std::find(moves.begin(), moves.end(), event->key()) != moves.end();
  if (isMove && selectedItems().isEmpty() && count() > 0) {
    setCurrentRow(0, QItemSelectionModel::ClearAndSelect);
  } else {
    QListWidget::keyPressEvent(event);
  }
}

QItemSelectionModel::SelectionFlags RowList::selectionCommand(const QModelIndex& index, const QEvent* event) const {
  return index.isValid() ? QItemSelectionModel::ClearAndSelect : QListWidget::selectionCommand(index, event);
}

PictureWidget::PictureWidget(PictureStore& pictures, QWidget* parent) : QLabel(parent), pictures_(pictures) {}

void PictureWidget::setName(const QString& name) {
  if (name == name_) return;
  name_ = name;
  update();
}

void PictureWidget::prepare() { pictures_.prepare(name_, pixelsOf(*this, contentsRect())); }

void PictureWidget::paintEvent(QPaintEvent*) { drawPicture(*this, pictures_, name_, contentsRect()); }

PictureButton::PictureButton(PictureStore& pictures, const QString& name, QWidget* parent)
    : QAbstractButton(parent), pictures_(pictures), name_(name) {
  setFocusPolicy(Qt::StrongFocus);
  setAttribute(Qt::WA_Hover);
}

void PictureButton::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
    click();
  } else {
    QAbstractButton::keyPressEvent(event);
  }
}

void PictureButton::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  const bool lit = isEnabled() && (underMouse() || isDown());
  painter.setPen(QPen(hasFocus() ? theme::kFocus : theme::kInk, hasFocus() ? 3 : 1.5));
  painter.setBrush(lit ? theme::kButtonHover : theme::kButton);
  painter.drawRoundedRect(QRectF(rect()).adjusted(2, 2, -2, -2), 5, 5);
  painter.end();
  const int shift = isDown() ? 1 : 0;
  drawPicture(*this, pictures_, name_, rect().adjusted(6 + shift, 6 + shift, -6 + shift, -6 + shift));
}

}  // namespace brolgan::desktop
