// The game's pictures from files in the working directory. Each is decoded once for the size at
// which it is shown, straight to that size.
#pragma once

#include <QCache>
#include <QImage>
#include <QPixmap>
#include <QSize>
#include <future>
#include <map>

#include "flow/stage/outside.h"

namespace brolgan::desktop {

class PictureStore : public Pictures {
 public:
  PictureStore();

  // Raises 53 when the file is missing and 481 when it is no picture; the decoding waits for pixmap.
  void load(const std::string& name) override;

  // Begins to decode a picture beside the event thread, for the first pixmap() of that name, box and
  // mode.
  void prepare(const QString& name, QSize box, Qt::AspectRatioMode mode = Qt::KeepAspectRatio);
  // The picture scaled to fit into so many device pixels, or to fill them when its own proportions
  // do not matter; null when it cannot be read.
  QPixmap pixmap(const QString& name, QSize box, Qt::AspectRatioMode mode = Qt::KeepAspectRatio);

 private:
  std::map<QString, std::future<QImage>> prepared_;
  QCache<QString, QPixmap> cache_;
};

}  // namespace brolgan::desktop
