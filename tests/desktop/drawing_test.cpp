// What is drawn in a quick way looks as if it were drawn in the plain one.
#include <gtest/gtest.h>

#include <QFont>
#include <QImage>
#include <QPainter>
#include <algorithm>
#include <cstdlib>

#include "desktop/box.h"
#include "desktop/kept_words.h"
#include "desktop/theme.h"

namespace brolgan::desktop {
namespace {

constexpr QSize kSize(120, 60);
constexpr QRect kPlace(5, 7, 101, 43);

QImage blank(qreal ratio) {
  QImage image(kSize * ratio, QImage::Format_RGB32);
  image.setDevicePixelRatio(ratio);
  image.fill(Qt::white);
  return image;
}

QImage drawnBox(const Box& box, qreal ratio) {
  QImage image = blank(ratio);
  QPainter painter(&image);
  draw(painter, kPlace, box);
  return image;
}

QImage plainBox(const Box& box, qreal ratio) {
  QImage image = blank(ratio);
  QPainter painter(&image);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  painter.setBrush(box.edge);
  painter.drawRoundedRect(kPlace, box.radius, box.radius);
  const qreal inner = box.radius - box.widths.left();
  painter.setBrush(box.face);
  painter.drawRoundedRect(kPlace.marginsRemoved(box.widths), inner, inner);
  return image;
}

int largestDifference(const QImage& one, const QImage& other) {
  int largest = one.size() == other.size() ? 0 : 256;
  for (int y = 0; largest < 256 && y < one.height(); ++y) {
    for (int x = 0; x < one.width(); ++x) {
      const QColor a = one.pixelColor(x, y);
      const QColor b = other.pixelColor(x, y);
      largest = std::max(
          {largest, std::abs(a.red() - b.red()), std::abs(a.green() - b.green()), std::abs(a.blue() - b.blue())});
    }
  }
  return largest;
}

// As in a widget, which does not begin where its window does.
QImage words(const QString& text, const QFont& font, int flags, bool isKept) {
  QImage image = blank(1);
  QPainter painter(&image);
  painter.setFont(font);
  painter.translate(3, 4);
  isKept ? drawWords(painter, kPlace, flags, text) : painter.drawText(kPlace, flags, text);
  return image;
}

TEST(Drawing, ABoxOfKeptCornersLooksLikeOneDrawnAsAWhole) {
  const Box raised{theme::kButton, theme::kInk, {2, 2, 3, 4}, 5};
  const Box ring{theme::kPlate, theme::kFocus, {4, 4, 4, 4}, 6};
  const Box badge{theme::kInk, theme::kButton, {3, 3, 3, 3}, 21};
  for (const Box& box : {raised, ring, badge}) {
    for (const qreal ratio : {1.0, 1.25, 2.0}) {
      EXPECT_LE(largestDifference(drawnBox(box, ratio), plainBox(box, ratio)), 2) << box.radius << " at " << ratio;
    }
  }
}

TEST(Drawing, KeptWordsStandWhereWordsStandThatAreSetAnew) {
  const QFont font = theme::typeface(theme::Type::text);
  for (const int across : {Qt::AlignLeft, Qt::AlignHCenter, Qt::AlignRight}) {
    for (const int down : {Qt::AlignTop, Qt::AlignVCenter, Qt::AlignBottom}) {
      const QImage plain = words("Zażółć 12", font, across | down, false);
      ASSERT_NE(plain, blank(1));
      EXPECT_EQ(words("Zażółć 12", font, across | down, true), plain) << across << ' ' << down;
      EXPECT_EQ(words("Zażółć 12", font, across | down, true), plain) << "a second time";
    }
  }
}

TEST(Drawing, WordsThatAreUnderlinedBrokenOrMarkedAreSetAnew) {
  QFont font = theme::typeface(theme::Type::text);
  EXPECT_EQ(words("jeden\ndwa", font, Qt::AlignLeft, true), words("jeden\ndwa", font, Qt::AlignLeft, false));
  const int wrapped = Qt::AlignLeft | Qt::TextWordWrap;
  const QString longer = "bardzo długie słowa w kilku wierszach";
  EXPECT_EQ(words(longer, font, wrapped, true), words(longer, font, wrapped, false));
  const int marked = Qt::AlignLeft | Qt::TextShowMnemonic;
  EXPECT_EQ(words("&Plik", font, marked, true), words("&Plik", font, marked, false));
  const QImage bare = words("18", font, Qt::AlignLeft, true);
  font.setUnderline(true);
  EXPECT_EQ(words("18", font, Qt::AlignLeft, true), words("18", font, Qt::AlignLeft, false));
  EXPECT_NE(words("18", font, Qt::AlignLeft, true), bare);
}

}  // namespace
}  // namespace brolgan::desktop
