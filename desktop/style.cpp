#include "desktop/style.h"

#include <QAbstractItemView>
#include <QAbstractScrollArea>
#include <QFontInfo>
#include <QPainter>
#include <QStyleOption>
#include <algorithm>

#include "desktop/box.h"
#include "desktop/kept_words.h"
#include "desktop/theme.h"
#include "desktop/unit.h"

namespace brolgan::desktop {

namespace {

// All lengths are told in units.
constexpr int kButtonRadius = 5;
constexpr int kFieldRadius = 4;
constexpr int kPanelRadius = 6;
constexpr int kPlateRadius = 4;

constexpr int kEdge = 2;
constexpr QMargins kEvenEdge(kEdge, kEdge, kEdge, kEdge);
// The ring of the keyboard's focus.
constexpr int kRing = 4;
constexpr QMargins kFieldRing(kEdge + 1, kEdge + 1, kEdge + 1, kEdge + 1);
constexpr QMargins kRingEdge(kRing, kRing, kRing, kRing);

// A button stands out by a thicker edge at the right and below.
constexpr QMargins kRaisedEdge(kEdge, kEdge, kEdge + 1, kEdge + 2);
constexpr QMargins kNarrowEdge(kEdge, kEdge, kEdge, kEdge + 1);
constexpr QMargins kButtonPadding(10, 3, 10, 3);
constexpr QPoint kPressedShift(1, 2);

// From the outside of a box of text to its text.
constexpr QMargins kFieldMargins(6, 3, 6, 3);
constexpr int kArrowWidth = 16;
// In pixels, what a line to write in leaves free before its words.
constexpr int kLineMargin = 2;
constexpr QSize kArrow(9, 5);
// How far the arrow stands above the middle, to leave the corner below it to a letter.
constexpr int kArrowLift = 5;

// A panel with a title leaves room above for half of the title's plate.
constexpr int kPlateAbove = 16;
constexpr int kPlateIndent = 12;
constexpr int kPlatePadding = 8;
constexpr int kBandIndent = 12;

constexpr int kBadgeEdge = 3;
constexpr qreal kMarkEdge = 1.5;
constexpr int kTipMargin = 12;
constexpr int kRowSpacing = 4;
// In pixels, what the common style leaves above and below the words of an option and a small window lacks.
constexpr int kOptionSlack = 2;
// Between the ring of the row in focus and its words.
constexpr int kRowMargin = 4;
constexpr int kKeySize = 10;
constexpr QMargins kKeyMargins(5, 1, 6, 3);

// The lengths of the widget that is drawn, in pixels.
class Lengths {
 public:
  explicit Lengths(const QWidget* widget) : unit_(Unit::of(widget)) {}

  [[nodiscard]] int of(int units) const { return qRound(units * unit_); }
  [[nodiscard]] QPoint of(QPoint units) const { return {of(units.x()), of(units.y())}; }
  [[nodiscard]] QMargins of(QMargins units) const {
    return {of(units.left()), of(units.top()), of(units.right()), of(units.bottom())};
  }

 private:
  qreal unit_;
};

bool has(const QStyleOption& option, QStyle::StateFlag flag) { return (option.state & flag) != 0; }

bool is(const QWidget* widget, const char* property) {
  return widget != nullptr && widget->property(property).toBool();
}

bool hasKey(const QWidget* widget) { return widget != nullptr && !widget->property(kAccessKey).toString().isEmpty(); }

// The edge of a button, in units.
QMargins buttonEdge(const QStyleOption& option, const QWidget* widget) {
  if (has(option, QStyle::State_HasFocus)) return is(widget, kIsNarrow) ? kRaisedEdge : kRingEdge;
  if (is(widget, kIsNarrow)) return kNarrowEdge;
  const bool isFlat = has(option, QStyle::State_Sunken) || !has(option, QStyle::State_Enabled);
  return isFlat ? kEvenEdge : kRaisedEdge;
}

// The face of a button that is neither pressed nor in focus.
QColor faceAtRest(const QWidget* widget, bool isUnderMouse) {
  if (is(widget, kIsPrimary)) return isUnderMouse ? theme::kPrimaryHover : theme::kPrimary;
  if (isUnderMouse) return theme::kButtonHover;
  const QVariant tint = widget == nullptr ? QVariant() : widget->property(kTint);
  return tint.isValid() ? tint.value<QColor>() : theme::kButton;
}

// The button that leads on keeps its face in focus.
QColor buttonFace(const QStyleOption& option, const QWidget* widget) {
  if (!has(option, QStyle::State_Enabled)) return theme::kDisabledFace;
  if (has(option, QStyle::State_Sunken)) return theme::kPressedFace;
  if (has(option, QStyle::State_HasFocus) && !is(widget, kIsPrimary)) return theme::kFocusFace;
  return faceAtRest(widget, has(option, QStyle::State_MouseOver));
}

QColor edgeColour(const QStyleOption& option, const QColor& atRest) {
  if (!has(option, QStyle::State_Enabled)) return theme::kDisabledEdge;
  return has(option, QStyle::State_HasFocus) ? theme::kFocus : atRest;
}

void drawButtonBox(const QStyleOption& option, QPainter& painter, const QWidget* widget) {
  const Lengths length(widget);
  draw(painter, option.rect,
       {buttonFace(option, widget), edgeColour(option, theme::kInk), length.of(buttonEdge(option, widget)),
        length.of(kButtonRadius)});
}

QRect buttonContents(const QStyleOption& option, const QWidget* widget) {
  const Lengths length(widget);
  if (is(widget, kIsNarrow)) return option.rect.marginsRemoved(length.of(kNarrowEdge));
  const QMargins padding = length.of(kButtonPadding);
  if (!has(option, QStyle::State_Enabled)) return option.rect.marginsRemoved(length.of(kEvenEdge) + padding);
  const QRect raised = option.rect.marginsRemoved(length.of(kRaisedEdge) + padding);
  return has(option, QStyle::State_Sunken) ? raised.translated(length.of(kPressedShift)) : raised;
}

// A line to write in, a list to choose from.
void drawField(const QStyleOption& option, QPainter& painter, const QWidget* widget) {
  const Lengths length(widget);
  const bool isEnabled = has(option, QStyle::State_Enabled);
  draw(painter, option.rect,
       {isEnabled ? theme::kPlate : theme::kDisabledFace, edgeColour(option, theme::kFieldEdge),
        length.of(has(option, QStyle::State_HasFocus) ? kFieldRing : kEvenEdge), length.of(kFieldRadius)});
}

// A field of many lines: a frame around what scrolls in it.
bool isLargeField(const QWidget* widget) {
  const auto* const area = qobject_cast<const QAbstractScrollArea*>(widget);
  return area != nullptr && area->frameShape() == QFrame::StyledPanel;
}

QVariant bandOf(const QWidget* widget) { return widget == nullptr ? QVariant() : widget->property(kBand); }

void drawPanel(QPainter& painter, const QRect& place, const QWidget* widget) {
  const Lengths length(widget);
  draw(painter, place, {theme::kPanel, theme::kInk, length.of(kEvenEdge), length.of(kPanelRadius)});
  const QVariant colour = bandOf(widget);
  if (!colour.isValid()) return;
  const QRect inside = place.marginsRemoved(length.of(kEvenEdge));
  const QRect band(inside.topLeft(), QSize(inside.width(), length.of(kBandHeight)));
  painter.fillRect(band, colour.value<QColor>());
  painter.fillRect(QRect(band.left(), band.bottom() + 1, band.width(), length.of(kEdge)), theme::kInk);
}

void drawBadge(QPainter& painter, const QRect& place, const QWidget* widget) {
  const int edge = Lengths(widget).of(kBadgeEdge);
  const QColor& ring = is(widget, kIsRinged) ? theme::kButton : theme::kInk;
  draw(painter, place, {theme::kInk, ring, {edge, edge, edge, edge}, place.height() / 2});
}

void drawTip(QPainter& painter, const QRect& place) {
  painter.fillRect(place, theme::kInk);
  painter.fillRect(place.marginsRemoved(kEvenEdge), theme::kButtonHover);
}

// The mark of one choice among several.
void drawMark(const QStyleOption& option, QPainter& painter, const QWidget* widget) {
  const qreal edge = Unit::of(widget) * kMarkEdge;
  const QRectF ring = QRectF(option.rect).adjusted(edge, edge, -edge, -edge);
  const bool isEnabled = has(option, QStyle::State_Enabled);
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(isEnabled ? theme::kFieldEdge : theme::kDisabledEdge, edge));
  painter.setBrush(theme::kPlate);
  painter.drawEllipse(ring);
  if (has(option, QStyle::State_On)) {
    const qreal inset = ring.width() / 4;
    painter.setPen(Qt::NoPen);
    painter.setBrush(isEnabled ? theme::kInk : theme::kDisabledEdge);
    painter.drawEllipse(ring.adjusted(inset, inset, -inset, -inset));
  }
  painter.restore();
}

// The row of a list on which the keyboard stands.
void drawRowRing(const QStyleOption& option, QPainter& painter, const QWidget* widget) {
  const qreal edge = Unit::of(widget) * kEdge;
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(theme::kFocus, edge));
  painter.setBrush(Qt::NoBrush);
  const qreal radius = Unit::of(widget) * kFieldRadius;
  painter.drawRoundedRect(QRectF(option.rect).adjusted(edge / 2, edge / 2, -edge / 2, -edge / 2), radius, radius);
  painter.restore();
}

void drawArrow(const QStyleOption& option, QPainter& painter, const QWidget* widget) {
  const qreal unit = Unit::of(widget);
  const QPointF middle = QRectF(option.rect).center();
  const QSizeF half = QSizeF(kArrow) * unit / 2;
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  painter.setBrush(has(option, QStyle::State_Enabled) ? theme::kInk : theme::kDisabledEdge);
  painter.drawPolygon(QPolygonF({{middle.x() - half.width(), middle.y() - half.height()},
                                 {middle.x() + half.width(), middle.y() - half.height()},
                                 {middle.x(), middle.y() + half.height()}}));
  painter.restore();
}

// The words of a list to choose from; a long row is set smaller, until it fits.
void drawChoice(const QStyleOptionComboBox& option, QPainter& painter, const QRect& room) {
  QFont font = painter.font();
  const qreal smallest = font.pointSizeF() * Unit::kSmallestText / QFontInfo(font).pixelSize();
  const qreal step = font.pointSizeF() / 32;
  while (QFontMetricsF(font).horizontalAdvance(option.currentText) > room.width() && font.pointSizeF() > smallest) {
    font.setPointSizeF(std::max(smallest, font.pointSizeF() - step));
  }
  painter.save();
  painter.setFont(font);
  const QString words = QFontMetrics(font).elidedText(option.currentText, Qt::ElideRight, room.width());
  painter.setPen(option.palette.color(QPalette::ButtonText));
  painter.drawText(room, Qt::AlignLeft | Qt::AlignVCenter, words);
  painter.restore();
}

// The lengths of the common style that follow the unit.
bool isLength(QStyle::PixelMetric metric) {
  switch (metric) {
    case QStyle::PM_ScrollBarExtent:
    case QStyle::PM_ScrollBarSliderMin:
    case QStyle::PM_ExclusiveIndicatorWidth:
    case QStyle::PM_ExclusiveIndicatorHeight:
    case QStyle::PM_RadioButtonLabelSpacing:
      return true;
    default:
      return false;
  }
}

// A panel's title is set like the headings within panels.
QFont titleFont(const QWidget* widget) {
  const QFont words = widget == nullptr ? QFont() : widget->font();
  const qreal larger = theme::sizeOf(theme::Type::heading) / theme::sizeOf(theme::Type::text);
  QFont font = theme::typeface(theme::Type::heading);
  font.setPixelSize(qRound(QFontInfo(words).pixelSize() * larger));
  return font;
}

// Where the words of a panel's title stand.
QRect titleRect(const QStyleOptionGroupBox& option, const QWidget* widget) {
  const Lengths length(widget);
  const QFontMetrics metrics(titleFont(widget));
  if (bandOf(widget).isValid()) {
    const QRect band(option.rect.topLeft() + length.of(QPoint(kBandIndent, kEdge)),
                     QSize(metrics.horizontalAdvance(option.text), length.of(kBandHeight)));
    return band;
  }
  const QPoint corner = length.of(QPoint(kPlateIndent + kEdge + kPlatePadding, kEdge));
  return {option.rect.topLeft() + corner, QSize(metrics.horizontalAdvance(option.text), metrics.height())};
}

QRect groupBoxPart(const QStyleOptionGroupBox& option, QStyle::SubControl part, const QWidget* widget) {
  const Lengths length(widget);
  if (part == QStyle::SC_GroupBoxLabel) return titleRect(option, widget);
  const int above = bandOf(widget).isValid() ? 0 : length.of(kPlateAbove);
  const QRect frame = option.rect.adjusted(0, above, 0, 0);
  return part == QStyle::SC_GroupBoxContents ? frame.marginsRemoved(length.of(kEvenEdge)) : frame;
}

QRect comboBoxPart(const QRect& place, QStyle::SubControl part, const QWidget* widget) {
  const Lengths length(widget);
  const int arrow = length.of(kArrowWidth);
  // The words begin where those of a line to write in do.
  if (part == QStyle::SC_ComboBoxEditField) {
    return place.marginsRemoved(length.of(kFieldMargins)).adjusted(kLineMargin, 0, -arrow, 0);
  }
  if (part != QStyle::SC_ComboBoxArrow) return place;
  const QRect inside = place.marginsRemoved(length.of(kEvenEdge));
  return {inside.right() - arrow + 1, inside.top(), arrow, inside.height()};
}

}  // namespace

QFont keyFont(const QWidget& widget) {
  QFont font = theme::typeface(theme::Type::text);
  font.setBold(false);
  font.setPixelSize(std::max(qRound(Unit::kSmallestText), Lengths(&widget).of(kKeySize)));
  return font;
}

void drawKey(QPainter& painter, const QRect& place, const QWidget* widget, const QPalette& palette) {
  if (!hasKey(widget)) return;
  const QString key = widget->property(kAccessKey).toString();
  const Lengths length(widget);
  painter.save();
  painter.setFont(keyFont(*widget));
  painter.setPen(widget->isEnabled() ? theme::kFieldEdge : palette.color(QPalette::Disabled, QPalette::ButtonText));
  drawWords(painter, place.marginsRemoved(length.of(kKeyMargins)), Qt::AlignRight | Qt::AlignBottom, key);
  painter.restore();
}

// What scrolls lies on the face of its field, which changes when it is disabled.
void Style::polish(QWidget* widget) {
  QProxyStyle::polish(widget);
  if (isLargeField(widget)) static_cast<QAbstractScrollArea*>(widget)->viewport()->setAutoFillBackground(false);
}

void Style::drawItemText(QPainter* painter, const QRect& place, int flags, const QPalette& palette, bool /*isEnabled*/,
                         const QString& words, QPalette::ColorRole role) const {
  if (words.isEmpty()) return;
  const QPen before = painter->pen();
  if (role != QPalette::NoRole) painter->setPen(palette.color(role));
  drawWords(*painter, place, flags, words);
  painter->setPen(before);
}

void Style::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                          const QWidget* widget) const {
  switch (element) {
    case PE_PanelButtonCommand:
      return drawButtonBox(*option, *painter, widget);
    case PE_PanelLineEdit:
      return drawField(*option, *painter, widget);
    case PE_PanelTipLabel:
      return drawTip(*painter, option->rect);
    case PE_IndicatorArrowDown:
      return drawArrow(*option, *painter, widget);
    case PE_IndicatorRadioButton:
      return drawMark(*option, *painter, widget);
    case PE_FrameFocusRect:
      if (qobject_cast<const QAbstractItemView*>(widget) != nullptr) return drawRowRing(*option, *painter, widget);
      return QProxyStyle::drawPrimitive(element, option, painter, widget);
    default:
      QProxyStyle::drawPrimitive(element, option, painter, widget);
  }
}

void Style::drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                        const QWidget* widget) const {
  const auto* const button = qstyleoption_cast<const QStyleOptionButton*>(option);
  if (element == CE_PushButton && button != nullptr) return drawPushButton(*button, *painter, widget);
  if (const auto* const combo = qstyleoption_cast<const QStyleOptionComboBox*>(option); element == CE_ComboBoxLabel) {
    return drawChoice(*combo, *painter, proxy()->subControlRect(CC_ComboBox, combo, SC_ComboBoxEditField, widget));
  }
  if (element == CE_ShapedFrame && is(widget, kIsPanel)) return drawPanel(*painter, option->rect, widget);
  if (element == CE_ShapedFrame && is(widget, kIsBadge)) return drawBadge(*painter, option->rect, widget);
  if (element == CE_ShapedFrame && isLargeField(widget)) {
    drawField(*option, *painter, widget);
    return drawKey(*painter, option->rect, widget, option->palette);
  }
  QProxyStyle::drawControl(element, option, painter, widget);
}

void Style::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                               const QWidget* widget) const {
  if (const auto* const box = qstyleoption_cast<const QStyleOptionGroupBox*>(option)) {
    drawGroupBox(*box, *painter, widget);
  } else if (const auto* const combo = qstyleoption_cast<const QStyleOptionComboBox*>(option)) {
    drawComboBox(*combo, *painter, widget);
  } else {
    QProxyStyle::drawComplexControl(control, option, painter, widget);
  }
}

// The keyboard's focus lights up the words as well.
void Style::drawPushButton(const QStyleOptionButton& option, QPainter& painter, const QWidget* widget) const {
  proxy()->drawControl(CE_PushButtonBevel, &option, &painter, widget);
  QStyleOptionButton label = option;
  label.rect = proxy()->subElementRect(SE_PushButtonContents, &option, widget);
  proxy()->drawControl(CE_PushButtonLabel, &label, &painter, widget);
  drawKey(painter, option.rect, widget, option.palette);
  if (!has(option, State_HasFocus)) return;
  QStyleOptionFocusRect focus;
  static_cast<QStyleOption&>(focus) = option;
  focus.rect = label.rect;
  proxy()->drawPrimitive(PE_FrameFocusRect, &focus, &painter, widget);
}

// The title stands on a plate that lies across the upper edge.
void Style::drawGroupBox(const QStyleOptionGroupBox& option, QPainter& painter, const QWidget* widget) const {
  drawPanel(painter, proxy()->subControlRect(CC_GroupBox, &option, SC_GroupBoxFrame, widget), widget);
  if (option.text.isEmpty()) return;
  const QRect title = proxy()->subControlRect(CC_GroupBox, &option, SC_GroupBoxLabel, widget);
  const bool isInBand = bandOf(widget).isValid();
  if (!isInBand) {
    const Lengths length(widget);
    const QMargins edge = length.of(kEvenEdge);
    const QMargins around = length.of(QMargins(kPlatePadding, 0, kPlatePadding, 0));
    draw(painter, title.marginsAdded(edge + around), {theme::kPanel, theme::kInk, edge, length.of(kPlateRadius)});
  }
  painter.setFont(titleFont(widget));
  proxy()->drawItemText(&painter, title, Qt::AlignCenter, option.palette, has(option, State_Enabled), option.text,
                        isInBand ? QPalette::BrightText : QPalette::WindowText);
}

void Style::drawComboBox(const QStyleOptionComboBox& option, QPainter& painter, const QWidget* widget) const {
  drawField(option, painter, widget);
  QStyleOption arrow = option;
  arrow.rect = proxy()->subControlRect(CC_ComboBox, &option, SC_ComboBoxArrow, widget);
  if (hasKey(widget)) arrow.rect.translate(0, -Lengths(widget).of(kArrowLift));
  proxy()->drawPrimitive(PE_IndicatorArrowDown, &arrow, &painter, widget);
  drawKey(painter, option.rect, widget, option.palette);
}

QRect Style::subElementRect(SubElement element, const QStyleOption* option, const QWidget* widget) const {
  const Lengths length(widget);
  switch (element) {
    case SE_PushButtonContents:
    case SE_PushButtonFocusRect:
      return buttonContents(*option, widget);
    case SE_LineEditContents:
      return option->rect.marginsRemoved(length.of(kFieldMargins));
    case SE_ShapedFrameContents:
      if (is(widget, kIsPanel)) return option->rect.marginsRemoved(length.of(kEvenEdge));
      if (is(widget, kIsBadge)) {
        const int edge = length.of(kBadgeEdge);
        return option->rect.adjusted(edge, edge, -edge, -edge);
      }
      if (isLargeField(widget)) return option->rect.marginsRemoved(length.of(kFieldMargins));
      break;
    default:
      break;
  }
  return QProxyStyle::subElementRect(element, option, widget);
}

QRect Style::subControlRect(ComplexControl control, const QStyleOptionComplex* option, SubControl part,
                            const QWidget* widget) const {
  if (control == CC_ComboBox)
    return visualRect(option->direction, option->rect, comboBoxPart(option->rect, part, widget));
  if (const auto* const box = qstyleoption_cast<const QStyleOptionGroupBox*>(option)) {
    return visualRect(option->direction, option->rect, groupBoxPart(*box, part, widget));
  }
  return QProxyStyle::subControlRect(control, option, part, widget);
}

QSize Style::sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& contents,
                              const QWidget* widget) const {
  const Lengths length(widget);
  switch (type) {
    case CT_PushButton:
      return contents.grownBy(length.of(is(widget, kIsNarrow) ? kNarrowEdge : kRaisedEdge + kButtonPadding));
    case CT_LineEdit:
      return contents.grownBy(length.of(kFieldMargins));
    case CT_ComboBox:
      return contents.grownBy(length.of(kFieldMargins)) + QSize(length.of(kArrowWidth + kEdge), 0);
    case CT_RadioButton:
      return QProxyStyle::sizeFromContents(type, option, contents, widget) - QSize(0, kOptionSlack);
    case CT_GroupBox:
      return contents.grownBy(length.of(kEvenEdge)) + QSize(0, bandOf(widget).isValid() ? 0 : length.of(kPlateAbove));
    case CT_ItemViewItem: {
      // Tall enough for capitals with accents.
      const int height = (widget == nullptr ? 0 : widget->fontMetrics().lineSpacing()) + length.of(kRowSpacing);
      return QProxyStyle::sizeFromContents(type, option, contents, widget).expandedTo({0, height});
    }
    default:
      return QProxyStyle::sizeFromContents(type, option, contents, widget);
  }
}

int Style::pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const {
  if (metric == PM_ToolTipLabelFrameWidth) return kTipMargin;
  if (metric == PM_FocusFrameHMargin) return Lengths(widget).of(kRowMargin);
  const int length = QProxyStyle::pixelMetric(metric, option, widget);
  return isLength(metric) ? Lengths(widget).of(length) : length;
}

}  // namespace brolgan::desktop
