// The style of the widgets: Fusion underneath; buttons, boxes of text, panels and their title plates
// drawn like ink on paper, in the colours of the theme.
#pragma once

#include <QProxyStyle>

class QStyleOptionButton;
class QStyleOptionComboBox;
class QStyleOptionGroupBox;

namespace brolgan::desktop {

// What a widget says of itself by a property of that name, set to true.
inline constexpr const char* kIsNarrow = "narrow";      // A small button without padding.
inline constexpr const char* kIsPanel = "panel";        // A frame around a group of widgets.
inline constexpr const char* kIsBold = "bold";          // Words that are bold in every colour.
inline constexpr const char* kAccessKey = "accessKey";  // The letter that reaches it with Alt.
inline constexpr const char* kIsBadge = "badge";        // A round plate with a figure.
inline constexpr const char* kIsRinged = "ringed";      // A badge with a light ring.
inline constexpr const char* kIsPrimary = "primary";    // What calls for a click, as the button that leads on.
inline constexpr const char* kTint = "tint";            // The colour of the face of a button at rest.
inline constexpr const char* kBand = "band";            // The colour of the band that heads a panel.
// The height of that band, in units.
inline constexpr int kBandHeight = 32;

// The type of the letter that reaches a widget together with Alt.
QFont keyFont(const QWidget& widget);
// Draws the letter that reaches a widget together with Alt, small in the lower right corner of a place.
void drawKey(QPainter& painter, const QRect& place, const QWidget* widget, const QPalette& palette);

class Style : public QProxyStyle {
 public:
  Style() : QProxyStyle("Fusion") {}

  using QProxyStyle::polish;
  void polish(QWidget* widget) override;

  void drawItemText(QPainter* painter, const QRect& place, int flags, const QPalette& palette, bool isEnabled,
                    const QString& words, QPalette::ColorRole role) const override;
  void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
  void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                   const QWidget* widget) const override;
  void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                          const QWidget* widget) const override;

  [[nodiscard]] QRect subElementRect(SubElement element, const QStyleOption* option,
                                     const QWidget* widget) const override;
  [[nodiscard]] QRect subControlRect(ComplexControl control, const QStyleOptionComplex* option, SubControl part,
                                     const QWidget* widget) const override;
  [[nodiscard]] QSize sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& contents,
                                       const QWidget* widget) const override;
  [[nodiscard]] int pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const override;

 private:
  void drawPushButton(const QStyleOptionButton& option, QPainter& painter, const QWidget* widget) const;
  void drawGroupBox(const QStyleOptionGroupBox& option, QPainter& painter, const QWidget* widget) const;
  void drawComboBox(const QStyleOptionComboBox& option, QPainter& painter, const QWidget* widget) const;
};

}  // namespace brolgan::desktop
