#include "desktop/picture_file.h"

#include <QtEndian>

namespace brolgan::desktop {

namespace {

enum Marker : uchar {
  kTemporary = 0x01,
  kFirstFrame = 0xC0,
  kHuffmanTables = 0xC4,
  kExtension = 0xC8,
  kArithmeticTables = 0xCC,
  kLastFrame = 0xCF,
  kFirstRestart = 0xD0,
  kLastRestart = 0xD7,
  kStart = 0xD8,
  kEnd = 0xD9,
  kScan = 0xDA,
  kMark = 0xFF,
};

bool isFrame(uchar marker) {
  return marker >= kFirstFrame && marker <= kLastFrame && marker != kHuffmanTables && marker != kExtension &&
         marker != kArithmeticTables;
}

bool standsAlone(uchar marker) {
  return marker == kTemporary || marker == kStart || (marker >= kFirstRestart && marker <= kLastRestart);
}

// The place behind the next marker from there on, or behind the end. A mark before a zero byte is a
// byte of the picture, one before another mark fills.
qsizetype behindMarker(QByteArrayView bytes, qsizetype at) {
  while (at < bytes.size()) {
    at = bytes.indexOf(static_cast<char>(kMark), at);
    if (at < 0) break;
    ++at;
    if (at < bytes.size() && bytes[at] != '\0' && static_cast<uchar>(bytes[at]) != kMark) return at + 1;
  }
  return bytes.size() + 1;
}

// Goes from segment to segment by their lengths, and over the picture itself to the marker behind it.
bool isWholeJpeg(QByteArrayView bytes) {
  bool hasFrame = false;
  bool hasScan = false;
  for (qsizetype at = behindMarker(bytes, 0); at <= bytes.size(); at = behindMarker(bytes, at)) {
    const auto marker = static_cast<uchar>(bytes[at - 1]);
    if (marker == kEnd) return hasFrame && hasScan;
    if (standsAlone(marker)) continue;
    if (at + 2 > bytes.size()) return false;
    hasFrame = hasFrame || isFrame(marker);
    hasScan = hasScan || marker == kScan;
    at += qFromBigEndian<quint16>(bytes.data() + at);
  }
  return false;
}

constexpr QByteArrayView kPngSignature = "\x89PNG\r\n\x1A\n";
constexpr qsizetype kLengthAndName = 8;
constexpr qsizetype kChecksum = 4;

// Goes from chunk to chunk by their lengths.
bool isWholePng(QByteArrayView bytes) {
  bool hasData = false;
  qsizetype at = kPngSignature.size();
  while (at + kLengthAndName + kChecksum <= bytes.size()) {
    const QByteArrayView name = bytes.sliced(at + 4, 4);
    hasData = hasData || name == QByteArrayView("IDAT");
    const qsizetype length = qFromBigEndian<quint32>(bytes.data() + at);
    at += kLengthAndName + length + kChecksum;
    if (name == QByteArrayView("IEND")) return hasData && at <= bytes.size();
  }
  return false;
}

PictureFile wholeIf(bool whole) { return whole ? PictureFile::whole : PictureFile::cutShort; }

}  // namespace

PictureFile inspect(QByteArrayView bytes) {
  if (bytes.startsWith("\xFF\xD8")) return wholeIf(isWholeJpeg(bytes));
  if (bytes.startsWith(kPngSignature)) return wholeIf(isWholePng(bytes));
  return PictureFile::other;
}

}  // namespace brolgan::desktop
