// Words that are drawn again and again as they stand: their letters are put in line once.
#pragma once

#include <QString>

class QPainter;
class QRect;

namespace brolgan::desktop {

// Draws the words in the painter's font and pen, as QPainter::drawText does with the same flags. Kept are
// words of one line, without a mark or a line of their own.
void drawWords(QPainter& painter, const QRect& place, int flags, const QString& words);

}  // namespace brolgan::desktop
