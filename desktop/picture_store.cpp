#include "desktop/picture_store.h"

#include <QFileInfo>
#include <QImageReader>

#include "desktop/text.h"
#include "flow/services/runtime_error.h"

namespace brolgan::desktop {

namespace {

constexpr int kCacheKilobytes = 32 * 1024;

QString pathOf(QString name) { return name.replace('\\', '/'); }

}  // namespace

PictureStore::PictureStore() : cache_(kCacheKilobytes) {}

void PictureStore::load(const std::string& name) {
  const QString path = pathOf(toQt(name));
  if (!QFileInfo(path).isFile()) throw RuntimeError(ErrorCode::fileNotFound, {name, 0, {}});
  if (!QImageReader(path).canRead()) throw RuntimeError(ErrorCode::invalidPicture, {name, 0, {}});
}

QPixmap PictureStore::pixmap(const QString& name, QSize box) {
  const QString key = QString("%1 %2x%3").arg(name).arg(box.width()).arg(box.height());
  if (const QPixmap* known = cache_.object(key)) return *known;
  QImageReader reader(pathOf(name));
  reader.setScaledSize(reader.size().scaled(box, Qt::KeepAspectRatio));
  const QPixmap picture = QPixmap::fromImage(reader.read());
  const int kilobytes = static_cast<int>(qint64{4} * picture.width() * picture.height() / 1024);
  cache_.insert(key, new QPixmap(picture), kilobytes);
  return picture;
}

QSize PictureStore::originalSize(const QString& name) { return QImageReader(pathOf(name)).size(); }

}  // namespace brolgan::desktop
