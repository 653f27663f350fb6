#include "desktop/picture_store.h"

#include <malloc.h>

#include <QFileInfo>
#include <QImageReader>

#include "desktop/text.h"
#include "flow/text/runtime_error.h"

namespace brolgan::desktop {

namespace {

constexpr int kLargeBlock = 128 * 1024;
constexpr int kCacheKilobytes = 8 * 1024;

QString pathOf(QString name) { return name.replace('\\', '/'); }

QString keyOf(const QString& name, QSize box, Qt::AspectRatioMode mode) {
  return QString("%1 %2x%3 %4").arg(name).arg(box.width()).arg(box.height()).arg(mode);
}

QImage decode(const QString& path, QSize box, Qt::AspectRatioMode mode) {
  QImageReader reader(path);
  reader.setScaledSize(reader.size().scaled(box, mode));
  return reader.read();
}

}  // namespace

// Pictures are large blocks: each gets memory of its own, which goes back as soon as it is free, and
// the threads that decode share one heap.
PictureStore::PictureStore() : cache_(kCacheKilobytes) {
  mallopt(M_MMAP_THRESHOLD, kLargeBlock);
  mallopt(M_TRIM_THRESHOLD, kLargeBlock);
  mallopt(M_ARENA_MAX, 1);
}

void PictureStore::load(const std::string& name) {
  const QString path = pathOf(toQt(name));
  if (!QFileInfo(path).isFile()) throw RuntimeError(ErrorCode::fileNotFound, {name, 0, {}});
  if (!QImageReader(path).canRead()) throw RuntimeError(ErrorCode::invalidPicture, {name, 0, {}});
}

void PictureStore::prepare(const QString& name, QSize box, Qt::AspectRatioMode mode) {
  const QString key = keyOf(name, box, mode);
  if (name.isEmpty() || box.isEmpty() || cache_.contains(key) || prepared_.contains(key)) return;
  prepared_[key] = std::async(std::launch::async, decode, pathOf(name), box, mode);
}

QPixmap PictureStore::pixmap(const QString& name, QSize box, Qt::AspectRatioMode mode) {
  const QString key = keyOf(name, box, mode);
  if (const QPixmap* known = cache_.object(key)) return *known;
  auto prepared = prepared_.extract(key);
  QPixmap picture = QPixmap::fromImage(prepared ? prepared.mapped().get() : decode(pathOf(name), box, mode));
  const int kilobytes = static_cast<int>(qint64{4} * picture.width() * picture.height() / 1024);
  cache_.insert(key, new QPixmap(picture), kilobytes);
  return picture;
}

}  // namespace brolgan::desktop
