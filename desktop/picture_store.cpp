#include "desktop/picture_store.h"

#include <malloc.h>

#include <QBuffer>
#include <QByteArray>
#include <QImageReader>
#include <algorithm>
#include <chrono>
#include <system_error>
#include <utility>

#include "desktop/picture_file.h"
#include "desktop/text.h"
#include "flow/text/files.h"
#include "flow/text/runtime_error.h"

namespace brolgan::desktop {

namespace {

using namespace std::chrono_literals;

constexpr int kLargeBlock = 128 * 1024;
constexpr int kCacheKilobytes = 8 * 1024;

QString keyOf(const QString& name, QSize box, Qt::AspectRatioMode mode) {
  return QString("%1 %2x%3 %4").arg(name).arg(box.width()).arg(box.height()).arg(mode);
}

[[noreturn]] void failOn(const std::string& name) { throw RuntimeError(ErrorCode::invalidPicture, {name, 0, {}}); }

bool holdsPicture(const QByteArray& bytes) {
  const PictureFile file = inspect(bytes);
  if (file == PictureFile::cutShort) return false;
  QBuffer buffer;
  buffer.setData(bytes);
  buffer.open(QIODevice::ReadOnly);
  QImageReader reader(&buffer);
  return file == PictureFile::whole ? reader.canRead() && !reader.size().isEmpty() : !reader.read().isNull();
}

QImage decode(const QString& path, QSize box, Qt::AspectRatioMode mode) {
  QImageReader reader(path);
  reader.setScaledSize(reader.size().scaled(box, mode));
  return reader.read();
}

}  // namespace

PictureStore::PictureStore(Lookup lookup) : lookup_(std::move(lookup)), cache_(kCacheKilobytes) {}

void PictureStore::keepMemorySmall() {
  mallopt(M_MMAP_THRESHOLD, kLargeBlock);
  mallopt(M_TRIM_THRESHOLD, kLargeBlock);
  mallopt(M_ARENA_MAX, 1);
}

void PictureStore::giveMemoryBack() { malloc_trim(0); }

void PictureStore::load(const std::string& name) {
  const std::string bytes = DiskFiles(lookup_).read(name);
  if (!holdsPicture(QByteArray::fromRawData(bytes.data(), static_cast<qsizetype>(bytes.size())))) failOn(name);
  loaded_.insert(toQt(name));
}

QString PictureStore::pathOf(const QString& name) const { return toQt(lookup_(name.toStdString())); }

void PictureStore::prepare(const QString& name, QSize box, Qt::AspectRatioMode mode) {
  const QString key = keyOf(name, box, mode);
  if (name.isEmpty() || box.isEmpty() || cache_.contains(key) || prepared_.contains(key)) return;
  // A size that was prepared and never drawn is not wanted any more.
  std::erase_if(prepared_, [&name](const auto& one) {
    return one.first.startsWith(name + ' ') && one.second.wait_for(0s) == std::future_status::ready;
  });
  try {
    prepared_[key] = std::async(std::launch::async, decode, pathOf(name), box, mode);
    ++decodings_[name];
  } catch (const std::system_error&) {  // There is no thread to be had; pixmap() decodes it then.
    prepared_.erase(key);
  }
}

int PictureStore::decodings(const QString& name) const {
  const auto found = decodings_.find(name);
  return found == decodings_.end() ? 0 : found->second;
}

QPixmap PictureStore::pixmap(const QString& name, QSize box, Qt::AspectRatioMode mode) {
  const QString key = keyOf(name, box, mode);
  if (const QPixmap* known = cache_.object(key)) return *known;
  auto prepared = prepared_.extract(key);
  if (!prepared) ++decodings_[name];
  const QImage image = prepared ? prepared.mapped().get() : decode(pathOf(name), box, mode);
  if (image.isNull() && loaded_.contains(name)) {
    load(name.toStdString());
    failOn(name.toStdString());
  }
  QPixmap picture = QPixmap::fromImage(image);
  keep(key, picture);
  return picture;
}

// On a large or dense screen there is room for the background and as much again.
void PictureStore::keep(const QString& key, const QPixmap& picture) {
  const int kilobytes = static_cast<int>(qint64{4} * picture.width() * picture.height() / 1024);
  cache_.setMaxCost(std::max<qsizetype>(cache_.maxCost(), qsizetype{2} * kilobytes));
  cache_.insert(key, new QPixmap(picture), kilobytes);
}

}  // namespace brolgan::desktop
