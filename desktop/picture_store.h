// The game's pictures from files in the working directory or the installed data. Each is decoded once for the size at
// which it is shown, straight to that size.
#pragma once

#include <QCache>
#include <QImage>
#include <QPixmap>
#include <QSize>
#include <future>
#include <map>
#include <set>

#include "flow/stage/outside.h"
#include "flow/text/lookup.h"

namespace brolgan::desktop {

class PictureStore : public Pictures {
 public:
  explicit PictureStore(Lookup lookup = Lookup());

  // Has the program keep little memory: pictures are large blocks, so each gets memory of its own, which
  // goes back as soon as it is free, and the threads that decode share one heap. Once, at its start.
  static void keepMemorySmall();

  // Gives back what memory is free in between what is used. Takes about a millisecond.
  static void giveMemoryBack();

  // Raises the errors of a file that cannot be read, and invalidPicture when it is no picture or only
  // the beginning of one. A JPEG or PNG file is looked through from end to end but not decoded, which
  // waits for pixmap; any other is decoded to see that it can be.
  void load(const std::string& name) override;

  // Begins to decode a picture beside the event thread, for the first pixmap() of that name, box and
  // mode.
  void prepare(const QString& name, QSize box, Qt::AspectRatioMode mode = Qt::KeepAspectRatio);
  // The picture scaled to fit into so many device pixels, or to fill them when its own proportions
  // do not matter. Null when it cannot be read; one that was loaded raises invalidPicture then, or
  // what has become of its file.
  QPixmap pixmap(const QString& name, QSize box, Qt::AspectRatioMode mode = Qt::KeepAspectRatio);

  // How many times that picture was decoded, or began to be; for tests.
  [[nodiscard]] int decodings(const QString& name) const;

 private:
  [[nodiscard]] QString pathOf(const QString& name) const;
  void keep(const QString& key, const QPixmap& picture);

  Lookup lookup_;
  std::set<QString> loaded_;
  std::map<QString, std::future<QImage>> prepared_;
  QCache<QString, QPixmap> cache_;
  std::map<QString, int> decodings_;
};

}  // namespace brolgan::desktop
