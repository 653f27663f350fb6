#include "desktop/text_label.h"

#include <QPainter>
#include <algorithm>
#include <cmath>

#include "desktop/theme.h"
#include "desktop/unit.h"

namespace brolgan::desktop {

namespace {

// Words that do not fit are set smaller by that much of their size, at least by that many pixels.
constexpr qreal kShareOfStep = 1.0 / 32;
constexpr qreal kStep = 0.5;
// Of a line of the smallest type, to its size.
constexpr qreal kLineHeight = 1.5;
constexpr qreal kPointsAnInch = 72;

bool isFigure(QChar letter) { return letter >= '0' && letter <= '9'; }

bool hasFigures(const QString& text) { return std::any_of(text.begin(), text.end(), isFigure); }

// The figures of a text, each run of them in the face of figures.
QList<QTextLayout::FormatRange> figures(const QString& text, const QFont& font) {
  QList<QTextLayout::FormatRange> runs;
  const QFont face = theme::figuresWithin(font);
  for (int i = 0; i < text.size(); ++i) {
    if (!isFigure(text[i])) continue;
    if (!runs.isEmpty() && runs.last().start + runs.last().length == i) {
      ++runs.last().length;
      continue;
    }
    QTextLayout::FormatRange run{i, 1, {}};
    run.format.setFont(face);
    runs.append(run);
  }
  return runs;
}

QSize rounded(QSizeF size) {
  return {static_cast<int>(std::ceil(size.width())), static_cast<int>(std::ceil(size.height()))};
}

}  // namespace

QSizeF TextLabel::Set::size() const {
  qreal width = 0;
  qreal height = 0;
  for (int i = 0; i < words->lineCount(); ++i) {
    width = std::max(width, words->lineAt(i).naturalTextWidth());
    height += words->lineAt(i).height();
  }
  return {width, height};
}

void TextLabel::keepToRoom() {
  keepsToRoom_ = true;
  setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Preferred);
}

bool TextLabel::isPlain() const {
  if (keepsToRoom_) return false;
  return !hasFigures(text()) || theme::figuresWithin(font()).families() == font().families();
}

TextLabel::Set TextLabel::set(const QFont& given, QTextOption::WrapMode wrap) const {
  QFont font = given;
  font.setWordSpacing(wordGap_ * given.pointSizeF() * logicalDpiY() / kPointsAnInch);
  Set set{font, std::make_shared<QTextLayout>(text().trimmed(), font, this)};
  QTextOption option(Qt::AlignLeft);
  option.setWrapMode(wrap);
  set.words->setTextOption(option);
  set.words->setFormats(figures(set.words->text(), font));
  set.words->beginLayout();
  qreal top = 0;
  for (QTextLine line = set.words->createLine(); line.isValid(); line = set.words->createLine()) {
    if (wrap != QTextOption::NoWrap) line.setLineWidth(contentsRect().width());
    line.setPosition({0, top});
    top += line.height();
  }
  set.words->endLayout();
  return set;
}

bool TextLabel::fits(const Set& set) const {
  const QSizeF room = contentsRect().size();
  const QSizeF need = set.size();
  return need.width() <= room.width() && need.height() <= room.height();
}

TextLabel::Set TextLabel::set() const {
  const auto wrap = wordWrap() ? QTextOption::WordWrap : QTextOption::NoWrap;
  Set words = set(font(), wrap);
  if (!keepsToRoom_) return words;
  QFont smaller = font();
  const qreal pointsAPixel = kPointsAnInch / logicalDpiY();
  const auto shrink = [&](QTextOption::WrapMode mode) {
    qreal pixels = font().pointSizeF() / pointsAPixel;
    while (!fits(words) && pixels > Unit::kSmallestText) {
      pixels = std::max(Unit::kSmallestText, pixels - std::max(kStep, pixels * kShareOfStep));
      smaller.setPointSizeF(pixels * pointsAPixel);
      words = set(smaller, mode);
    }
  };
  shrink(wrap);
  if (fits(words) || !wordWrap()) return words;
  words = set(font(), QTextOption::WrapAtWordBoundaryOrAnywhere);
  shrink(QTextOption::WrapAtWordBoundaryOrAnywhere);
  return words;
}

// What keeps to its room asks for one line, and can do with less.
QSize TextLabel::sizeHint() const {
  if (isPlain()) return QLabel::sizeHint();
  const QSize words = rounded(set(font(), QTextOption::NoWrap).size());
  return words.grownBy(contentsMargins());
}

QSize TextLabel::minimumSizeHint() const {
  if (!keepsToRoom_) return isPlain() ? QLabel::minimumSizeHint() : sizeHint();
  return {0, qRound(kLineHeight * Unit::kSmallestText)};
}

void TextLabel::paintEvent(QPaintEvent* event) {
  if (isPlain()) {
    QLabel::paintEvent(event);
    return;
  }
  QPainter painter(this);
  drawFrame(&painter);
  painter.setPen(palette().color(foregroundRole()));
  const Set words = set();
  const QRectF room = contentsRect();
  const QSizeF size = words.size();
  QPointF corner = room.topLeft();
  if ((alignment() & Qt::AlignVCenter) != 0) corner.ry() += (room.height() - size.height()) / 2;
  if ((alignment() & Qt::AlignBottom) != 0) corner.ry() += room.height() - size.height();
  const qreal free = (alignment() & Qt::AlignRight) != 0 ? 1 : (alignment() & Qt::AlignHCenter) != 0 ? 0.5 : 0;
  for (int i = 0; i < words.words->lineCount(); ++i) {
    const QTextLine line = words.words->lineAt(i);
    line.draw(&painter, {corner.x() + free * (room.width() - line.naturalTextWidth()), corner.y()});
  }
}

}  // namespace brolgan::desktop
