#include "desktop/kept_words.h"

#include <QCache>
#include <QPainter>
#include <QStaticText>

namespace brolgan::desktop {

namespace {

// About as many as two screens show.
constexpr int kMostKept = 300;

const QStaticText& kept(const QFont& font, const QString& words) {
  static QCache<QString, QStaticText> all(kMostKept);
  const QString key = font.key() + '\n' + words;
  if (const QStaticText* const known = all.object(key)) return *known;
  auto* const text = new QStaticText(words);
  text->setTextFormat(Qt::PlainText);
  text->prepare({}, font);
  all.insert(key, text);
  return *text;
}

// What of the free room lies before the words.
qreal shareBefore(int flags, int end, int middle) { return (flags & end) != 0 ? 1 : (flags & middle) != 0 ? 0.5 : 0; }

bool isPlainLine(const QFont& font, int flags, const QString& words) {
  const bool isBroken = (flags & (Qt::TextWordWrap | Qt::TextWrapAnywhere)) != 0 || words.contains('\n');
  return !isBroken && !words.contains('\t') && !words.contains('&') && !font.underline();
}

}  // namespace

void drawWords(QPainter& painter, const QRect& place, int flags, const QString& words) {
  if (!isPlainLine(painter.font(), flags, words)) {
    painter.drawText(place, flags, words);
    return;
  }
  const QStaticText& line = kept(painter.font(), words);
  const QSizeF free = QSizeF(place.size()) - QSizeF(line.size().width(), QFontMetricsF(painter.font()).height());
  const qreal across = free.width() * shareBefore(flags, Qt::AlignRight, Qt::AlignHCenter);
  const qreal down = free.height() * shareBefore(flags, Qt::AlignBottom, Qt::AlignVCenter);
  const qreal pixels = painter.transform().m22();
  painter.drawStaticText(QPointF(place.x() + across, place.y() + qRound(down * pixels) / pixels), line);
}

}  // namespace brolgan::desktop
