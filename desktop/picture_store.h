// The game's pictures from files in the working directory. Each is decoded once for the size at
// which it is shown, straight to that size.
#pragma once

#include <QCache>
#include <QPixmap>
#include <QSize>

#include "flow/services/outside.h"

namespace brolgan::desktop {

class PictureStore : public Pictures {
 public:
  PictureStore();

  // Raises 53 when the file is missing and 481 when it is no picture; the decoding waits for pixmap.
  void load(const std::string& name) override;

  // The picture scaled to fit into so many device pixels; null when it cannot be read.
  QPixmap pixmap(const QString& name, QSize box);
  // The size of the picture in its file; empty when it cannot be read.
  static QSize originalSize(const QString& name);

 private:
  QCache<QString, QPixmap> cache_;
};

}  // namespace brolgan::desktop
