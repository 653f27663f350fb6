#include "desktop/style.h"

#include <QAbstractScrollArea>
#include <QPainter>
#include <QStyleOption>

#include "desktop/theme.h"

namespace brolgan::desktop {

namespace {

// A face with rounded corners inside an edge, whose sides may differ in width.
struct Box {
  QColor face;
  QColor edge;
  QMargins widths;
  int radius;
};

constexpr int kButtonRadius = 5;
constexpr int kFieldRadius = 4;
constexpr int kPanelRadius = 6;
constexpr int kPlateRadius = 4;

constexpr int kEdge = 2;
constexpr QMargins kEvenEdge(kEdge, kEdge, kEdge, kEdge);

// A button stands out by a thicker edge at the right and below.
constexpr QMargins kRaisedEdge(kEdge, kEdge, kEdge + 1, kEdge + 2);
constexpr QMargins kNarrowEdge(kEdge, kEdge, kEdge, kEdge + 1);
constexpr QMargins kButtonPadding(10, 3, 10, 3);
constexpr QPoint kPressedShift(1, 2);

// From the outside of a box of text to its text.
constexpr QMargins kFieldMargins(6, 3, 6, 3);
constexpr int kArrowWidth = 16;

// A panel with a title leaves room above for half of the title's plate.
constexpr int kPlateAbove = 12;
constexpr int kPlateIndent = 12;
constexpr int kPlatePadding = 8;

constexpr int kBadgeEdge = 3;
constexpr int kTipMargin = 12;

bool has(const QStyleOption& option, QStyle::StateFlag flag) { return (option.state & flag) != 0; }

bool is(const QWidget* widget, const char* property) {
  return widget != nullptr && widget->property(property).toBool();
}

void draw(QPainter& painter, const QRect& place, const Box& box) {
  const QRect inside = place.marginsRemoved(box.widths);
  const qreal inner = box.radius - box.widths.left();
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  painter.setBrush(box.edge);
  painter.drawRoundedRect(place, box.radius, box.radius);
  painter.setBrush(box.face);
  painter.drawRoundedRect(inside, inner, inner);
  painter.restore();
}

QMargins buttonEdge(const QStyleOption& option, const QWidget* widget) {
  if (is(widget, kIsNarrow)) return kNarrowEdge;
  const bool isFlat = has(option, QStyle::State_Sunken) || !has(option, QStyle::State_Enabled);
  return isFlat ? kEvenEdge : kRaisedEdge;
}

QColor buttonFace(const QStyleOption& option) {
  if (!has(option, QStyle::State_Enabled)) return theme::kDisabledFace;
  if (has(option, QStyle::State_Sunken)) return theme::kPressedFace;
  if (has(option, QStyle::State_HasFocus)) return theme::kFocusFace;
  return has(option, QStyle::State_MouseOver) ? theme::kButtonHover : theme::kButton;
}

QColor edgeColour(const QStyleOption& option, const QColor& atRest) {
  if (!has(option, QStyle::State_Enabled)) return theme::kDisabledEdge;
  return has(option, QStyle::State_HasFocus) ? theme::kFocus : atRest;
}

void drawButtonBox(const QStyleOption& option, QPainter& painter, const QWidget* widget) {
  draw(painter, option.rect,
       {buttonFace(option), edgeColour(option, theme::kInk), buttonEdge(option, widget), kButtonRadius});
}

QRect buttonContents(const QStyleOption& option, const QWidget* widget) {
  if (is(widget, kIsNarrow)) return option.rect.marginsRemoved(kNarrowEdge);
  if (!has(option, QStyle::State_Enabled)) return option.rect.marginsRemoved(kEvenEdge + kButtonPadding);
  const QRect raised = option.rect.marginsRemoved(kRaisedEdge + kButtonPadding);
  return has(option, QStyle::State_Sunken) ? raised.translated(kPressedShift) : raised;
}

// A line to write in, a list to choose from.
void drawField(const QStyleOption& option, QPainter& painter) {
  const QColor face = has(option, QStyle::State_HasFocus) ? theme::kFocusField : theme::kPlate;
  const bool isEnabled = has(option, QStyle::State_Enabled);
  draw(painter, option.rect,
       {isEnabled ? face : theme::kDisabledFace, edgeColour(option, theme::kFieldEdge), kEvenEdge, kFieldRadius});
}

// A field of many lines: a frame around what scrolls in it.
bool isLargeField(const QWidget* widget) {
  const auto* const area = qobject_cast<const QAbstractScrollArea*>(widget);
  return area != nullptr && area->frameShape() == QFrame::StyledPanel;
}

void drawPanel(QPainter& painter, const QRect& place) {
  draw(painter, place, {theme::kPanel, theme::kInk, kEvenEdge, kPanelRadius});
}

void drawBadge(QPainter& painter, const QRect& place) {
  const QMargins edge(kBadgeEdge, kBadgeEdge, kBadgeEdge, kBadgeEdge);
  draw(painter, place, {theme::kInk, theme::kButton, edge, place.height() / 2});
}

void drawTip(QPainter& painter, const QRect& place) {
  painter.fillRect(place, theme::kInk);
  painter.fillRect(place.marginsRemoved(kEvenEdge), theme::kButtonHover);
}

QFont titleFont(const QWidget* widget) {
  QFont font = widget == nullptr ? QFont() : widget->font();
  font.setBold(true);
  return font;
}

// Where the words of a panel's title stand.
QRect titleRect(const QStyleOptionGroupBox& option, const QWidget* widget) {
  const QFontMetrics metrics(titleFont(widget));
  const QPoint corner(kPlateIndent + kEdge + kPlatePadding, kEdge);
  return {option.rect.topLeft() + corner, QSize(metrics.horizontalAdvance(option.text), metrics.height())};
}

QRect groupBoxPart(const QStyleOptionGroupBox& option, QStyle::SubControl part, const QWidget* widget) {
  if (part == QStyle::SC_GroupBoxLabel) return titleRect(option, widget);
  const QRect frame = option.rect.adjusted(0, kPlateAbove, 0, 0);
  return part == QStyle::SC_GroupBoxContents ? frame.marginsRemoved(kEvenEdge) : frame;
}

QRect comboBoxPart(const QRect& place, QStyle::SubControl part) {
  // The text keeps one pixel of the field free.
  if (part == QStyle::SC_ComboBoxEditField) return place.marginsRemoved(kFieldMargins).adjusted(-1, 0, -kArrowWidth, 0);
  if (part != QStyle::SC_ComboBoxArrow) return place;
  const QRect inside = place.marginsRemoved(kEvenEdge);
  return {inside.right() - kArrowWidth + 1, inside.top(), kArrowWidth, inside.height()};
}

}  // namespace

// What scrolls lies on the face of its field, which changes with the focus.
void Style::polish(QWidget* widget) {
  QProxyStyle::polish(widget);
  if (isLargeField(widget)) static_cast<QAbstractScrollArea*>(widget)->viewport()->setAutoFillBackground(false);
}

void Style::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                          const QWidget* widget) const {
  switch (element) {
    case PE_PanelButtonCommand:
      return drawButtonBox(*option, *painter, widget);
    case PE_PanelLineEdit:
      return drawField(*option, *painter);
    case PE_PanelTipLabel:
      return drawTip(*painter, option->rect);
    default:
      QProxyStyle::drawPrimitive(element, option, painter, widget);
  }
}

void Style::drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                        const QWidget* widget) const {
  const auto* const button = qstyleoption_cast<const QStyleOptionButton*>(option);
  if (element == CE_PushButton && button != nullptr) return drawPushButton(*button, *painter, widget);
  if (element == CE_ShapedFrame && is(widget, kIsPanel)) return drawPanel(*painter, option->rect);
  if (element == CE_ShapedFrame && is(widget, kIsBadge)) return drawBadge(*painter, option->rect);
  if (element == CE_ShapedFrame && isLargeField(widget)) return drawField(*option, *painter);
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
  if (!has(option, State_HasFocus)) return;
  QStyleOptionFocusRect focus;
  static_cast<QStyleOption&>(focus) = option;
  focus.rect = label.rect;
  proxy()->drawPrimitive(PE_FrameFocusRect, &focus, &painter, widget);
}

// The title stands on a plate that lies across the upper edge.
void Style::drawGroupBox(const QStyleOptionGroupBox& option, QPainter& painter, const QWidget* widget) const {
  drawPanel(painter, proxy()->subControlRect(CC_GroupBox, &option, SC_GroupBoxFrame, widget));
  if (option.text.isEmpty()) return;
  const QRect title = proxy()->subControlRect(CC_GroupBox, &option, SC_GroupBoxLabel, widget);
  const QMargins around(kPlatePadding, 0, kPlatePadding, 0);
  draw(painter, title.marginsAdded(kEvenEdge + around), {theme::kPanel, theme::kInk, kEvenEdge, kPlateRadius});
  painter.setFont(titleFont(widget));
  proxy()->drawItemText(&painter, title, Qt::AlignCenter, option.palette, has(option, State_Enabled), option.text,
                        QPalette::WindowText);
}

void Style::drawComboBox(const QStyleOptionComboBox& option, QPainter& painter, const QWidget* widget) const {
  drawField(option, painter);
  QStyleOption arrow = option;
  arrow.rect = proxy()->subControlRect(CC_ComboBox, &option, SC_ComboBoxArrow, widget);
  proxy()->drawPrimitive(PE_IndicatorArrowDown, &arrow, &painter, widget);
}

QRect Style::subElementRect(SubElement element, const QStyleOption* option, const QWidget* widget) const {
  switch (element) {
    case SE_PushButtonContents:
    case SE_PushButtonFocusRect:
      return buttonContents(*option, widget);
    case SE_LineEditContents:
      return option->rect.marginsRemoved(kFieldMargins);
    case SE_ShapedFrameContents:
      if (is(widget, kIsPanel)) return option->rect.marginsRemoved(kEvenEdge);
      if (is(widget, kIsBadge)) return option->rect.adjusted(kBadgeEdge, kBadgeEdge, -kBadgeEdge, -kBadgeEdge);
      if (isLargeField(widget)) return option->rect.marginsRemoved(kFieldMargins);
      break;
    default:
      break;
  }
  return QProxyStyle::subElementRect(element, option, widget);
}

QRect Style::subControlRect(ComplexControl control, const QStyleOptionComplex* option, SubControl part,
                            const QWidget* widget) const {
  if (control == CC_ComboBox) return visualRect(option->direction, option->rect, comboBoxPart(option->rect, part));
  if (const auto* const box = qstyleoption_cast<const QStyleOptionGroupBox*>(option)) {
    return visualRect(option->direction, option->rect, groupBoxPart(*box, part, widget));
  }
  return QProxyStyle::subControlRect(control, option, part, widget);
}

QSize Style::sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& contents,
                              const QWidget* widget) const {
  switch (type) {
    case CT_PushButton:
      return contents.grownBy(is(widget, kIsNarrow) ? kNarrowEdge : kRaisedEdge + kButtonPadding);
    case CT_LineEdit:
      return contents.grownBy(kFieldMargins);
    case CT_ComboBox:
      return contents.grownBy(kFieldMargins) + QSize(kArrowWidth + kEdge, 0);
    case CT_GroupBox:
      return contents.grownBy(kEvenEdge) + QSize(0, kPlateAbove);
    default:
      return QProxyStyle::sizeFromContents(type, option, contents, widget);
  }
}

int Style::pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const {
  return metric == PM_ToolTipLabelFrameWidth ? kTipMargin : QProxyStyle::pixelMetric(metric, option, widget);
}

}  // namespace brolgan::desktop
