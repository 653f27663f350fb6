#include "desktop/widgets.h"

#include <QFontMetrics>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QStyle>
#include <QStyleOptionButton>
#include <QToolTip>
#include <algorithm>
#include <utility>

#include "desktop/box.h"
#include "desktop/picture_store.h"
#include "desktop/style.h"
#include "desktop/theme.h"
#include "desktop/unit.h"

namespace brolgan::desktop {

namespace {

// How much is left of a picture that is set back.
constexpr qreal kFaint = 0.4;

constexpr int kTipWidth = 420;
constexpr int kPictureButton = 48;
constexpr qreal kLetterPlate = 13;

// The edge of a label that calls for a click, in units.
constexpr qreal kRaisedEdge = 1.5;
constexpr qreal kRaisedBelow = 3;

// Around the row of an option, in units.
constexpr int kBeforeMark = 6;
constexpr int kBehindWords = 8;
constexpr int kChosenEdge = 2;
constexpr int kFocusEdge = 3;
constexpr int kFrameRadius = 5;

// The device pixels of an area of a widget.
QSize pixelsOf(const QWidget& widget, QRect area) {
  return (QSizeF(area.size()) * widget.devicePixelRatioF()).toSize();
}

}  // namespace

bool isPress(const QKeyEvent& event) {
  const auto keys = {Qt::Key_Space, Qt::Key_Return, Qt::Key_Enter};
  return !event.isAutoRepeat() && std::find(keys.begin(), keys.end(), event.key()) != keys.end();
}

// The words of what is chosen are bold, and a frame stands around them.
void OptionRow::paintEvent(QPaintEvent*) {
  QStyleOptionButton option;
  initStyleOption(&option);
  option.rect.setLeft(Unit::pixels(this, kBeforeMark));
  const QRect words = style()->subElementRect(QStyle::SE_RadioButtonContents, &option, this);
  option.rect = style()->subElementRect(QStyle::SE_RadioButtonIndicator, &option, this);
  QFont face = font();
  face.setBold(isChecked());
  QPainter painter(this);
  painter.setFont(face);
  const int end = words.left() + QFontMetrics(face).horizontalAdvance(text()) + Unit::pixels(this, kBehindWords);
  if (isChecked() || hasFocus()) drawFrame(painter, std::min(end, width()));
  style()->drawPrimitive(QStyle::PE_IndicatorRadioButton, &option, &painter, this);
  style()->drawItemText(&painter, words, Qt::AlignLeft | Qt::AlignVCenter, palette(), isEnabled(), text(),
                        QPalette::WindowText);
}

void OptionRow::drawFrame(QPainter& painter, int width) {
  const int edge = Unit::pixels(this, hasFocus() ? kFocusEdge : kChosenEdge);
  const QColor& face = hasFocus() ? theme::kFocusFace : theme::kPlate;
  const QColor& colour = hasFocus() ? theme::kFocus : theme::kInk;
  draw(painter, {0, 0, width, height()}, {face, colour, {edge, edge, edge, edge}, Unit::pixels(this, kFrameRadius)});
}

QString TipLines::broken(const QString& text, const QFont& font, int width) {
  const QFontMetrics metrics(font);
  QString lines;
  QString line;
  for (const QString& word : text.split(' ')) {
    const QString longer = line.isEmpty() ? word : line + ' ' + word;
    if (metrics.horizontalAdvance(longer) <= width) {
      line = longer;
      continue;
    }
    lines += line + '\n';
    line = word;
  }
  return lines + line;
}

bool TipLines::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() != QEvent::ToolTip) return QObject::eventFilter(watched, event);
  auto& widget = static_cast<QWidget&>(*watched);
  if (widget.toolTip().isEmpty()) return false;
  QToolTip::setFont(widget.window()->font());
  const QString lines = broken(widget.toolTip(), QToolTip::font(), Unit::pixels(&widget, kTipWidth));
  QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), lines, &widget);
  return true;
}

ClickLabel::ClickLabel(std::function<void()> click, QWidget* parent) : QLabel(parent), click_(std::move(click)) {
  setFocusPolicy(Qt::StrongFocus);
  setCursor(Qt::PointingHandCursor);
  setMargins();
}

void ClickLabel::setMargins() {
  const int side = Unit::pixels(this, 6);
  const int over = Unit::pixels(this, 1);
  setContentsMargins(side, over, side, over);
}

// The type changes with the unit.
void ClickLabel::changeEvent(QEvent* event) {
  QLabel::changeEvent(event);
  if (event->type() == QEvent::FontChange) setMargins();
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
  if (isPress(*event)) {
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

// What calls for a click stands out like a button, what is owned is a frame alone; the focus thickens the
// edge.
void ClickLabel::drawPlate(QPainter& painter) {
  const qreal unit = Unit::of(this);
  const bool isRaised = property(kIsPrimary).toBool() && !hasFocus();
  if (isRaised) {
    const int edge = qRound(kRaisedEdge * unit);
    const int below = qRound(kRaisedBelow * unit);
    return draw(painter, rect(), {theme::kButtonHover, theme::kInk, {edge, edge, edge, below}, qRound(4 * unit)});
  }
  painter.setPen(hasFocus() ? QPen(theme::kFocus, 3 * unit) : QPen(isChecked_ ? theme::kStone : theme::kEdge, unit));
  painter.setBrush(isChecked_ ? QBrush(Qt::NoBrush) : theme::kPlate);
  painter.drawRoundedRect(QRectF(rect()).adjusted(unit, unit, -unit, -unit), 4 * unit, 4 * unit);
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

bool Picture::setName(const QString& name) {
  if (name == name_) return false;
  name_ = name;
  forget();
  return true;
}

bool Picture::setDimmed(bool isDimmed) { return std::exchange(isDimmed_, isDimmed) != isDimmed; }

void Picture::forget() {
  shown_ = {};
  shownFor_ = {};
}

void Picture::prepare(const QWidget& widget, QRect area) const {
  const QSize wanted = pixelsOf(widget, area);
  if (wanted != shownFor_) pictures_.prepare(name_, wanted);
}

void Picture::draw(QWidget& widget, QRect area) {
  if (name_.isEmpty() || area.isEmpty()) return;
  const QSize wanted = pixelsOf(widget, area);
  if (shown_.isNull() || (wanted != shownFor_ && !Unit::isMoving(&widget))) {
    shown_ = pictures_.pixmap(name_, wanted);
    shownFor_ = wanted;
  }
  if (shown_.isNull()) return;
  const bool isSharp = wanted == shownFor_;
  const QSizeF size = isSharp ? QSizeF(shown_.size()) / widget.devicePixelRatioF()
                              : QSizeF(shown_.size()).scaled(area.size(), Qt::KeepAspectRatio);
  const QPointF corner(area.x() + (area.width() - size.width()) / 2, area.y() + (area.height() - size.height()) / 2);
  QPainter painter(&widget);
  painter.setRenderHint(QPainter::SmoothPixmapTransform, !isSharp);
  if (!widget.isEnabled() || isDimmed_) painter.setOpacity(kFaint);
  painter.drawPixmap(QRectF(corner, size), shown_, shown_.rect());
}

PictureWidget::PictureWidget(PictureStore& pictures, QWidget* parent) : QLabel(parent), picture_(pictures) {}

void PictureWidget::setName(const QString& name) {
  if (picture_.setName(name)) update();
}

void PictureWidget::prepare() {
  if (!isCovered()) picture_.prepare(*this, contentsRect());
}

void PictureWidget::paintEvent(QPaintEvent*) {
  if (!isCovered()) picture_.draw(*this, contentsRect());
}

void PictureWidget::setDimmed(bool isDimmed) {
  if (picture_.setDimmed(isDimmed)) update();
}

void PictureWidget::hideEvent(QHideEvent* event) {
  QLabel::hideEvent(event);
  picture_.forget();
}

PictureButton::PictureButton(PictureStore& pictures, const QString& name, QWidget* parent)
    : QAbstractButton(parent), picture_(pictures, name) {
  setFocusPolicy(Qt::StrongFocus);
  setAttribute(Qt::WA_Hover);
}

QSize PictureButton::sizeHint() const {
  const int side = Unit::pixels(this, kPictureButton);
  return {side, side};
}

void PictureButton::keyPressEvent(QKeyEvent* event) {
  if (isPress(*event) && event->key() != Qt::Key_Space) {
    click();
  } else {
    QAbstractButton::keyPressEvent(event);
  }
}

void PictureButton::hideEvent(QHideEvent* event) {
  QAbstractButton::hideEvent(event);
  picture_.forget();
}

void PictureButton::paintEvent(QPaintEvent*) {
  const qreal unit = Unit::of(this);
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  const bool lit = isEnabled() && (underMouse() || isDown());
  const bool isPrimary = property(kIsPrimary).toBool();
  const QColor inFocus = isPrimary ? theme::kPrimary : theme::kFocusFace;
  const QColor atRest = isPrimary ? theme::kPrimary : theme::kButton;
  painter.setPen(QPen(hasFocus() ? theme::kFocus : theme::kInk, (hasFocus() ? 4 : 1.5) * unit));
  painter.setBrush(hasFocus() ? inFocus : lit ? theme::kButtonHover : atRest);
  painter.drawRoundedRect(QRectF(rect()).adjusted(2 * unit, 2 * unit, -2 * unit, -2 * unit), 5 * unit, 5 * unit);
  painter.end();
  const int inset = Unit::pixels(this, 6);
  picture_.draw(*this,
                rect().marginsRemoved({inset, inset, inset, inset}).translated(isDown() ? QPoint(1, 1) : QPoint()));
  drawLetter();
}

// On a plate of its own, so that it can be read whatever the picture.
void PictureButton::drawLetter() {
  if (property(kAccessKey).toString().isEmpty()) return;
  const qreal unit = Unit::of(this);
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  painter.setBrush(theme::kPlate);
  const QSizeF plate = QSizeF(kLetterPlate, kLetterPlate) * std::max(1.0, unit);
  painter.drawRoundedRect(
      QRectF(QPointF(width() - plate.width(), height() - plate.height()) - QPointF(3, 3) * unit, plate), 3 * unit,
      3 * unit);
  drawKey(painter, rect(), this, palette());
}

}  // namespace brolgan::desktop
