// The store of pictures: one that was decoded beside the event thread is the one that is drawn.
#include <gtest/gtest.h>

#include "desktop/picture_store.h"

namespace brolgan::test {
namespace {

constexpr QSize kBox(120, 60);

QImage drawn(desktop::PictureStore& pictures, const QString& name, Qt::AspectRatioMode mode) {
  return pictures.pixmap(name, kBox, mode).toImage();
}

TEST(Pictures, APreparedOneIsTheSameAsOneDecodedWhenDrawn) {
  for (const auto mode : {Qt::KeepAspectRatio, Qt::IgnoreAspectRatio}) {
    desktop::PictureStore prepared;
    prepared.prepare("szczur.jpg", kBox, mode);
    desktop::PictureStore plain;
    const QImage picture = drawn(prepared, "szczur.jpg", mode);
    EXPECT_FALSE(picture.isNull());
    EXPECT_EQ(picture, drawn(plain, "szczur.jpg", mode));
  }
}

TEST(Pictures, EachModeHasItsOwnSize) {
  desktop::PictureStore pictures;
  for (const auto mode : {Qt::KeepAspectRatio, Qt::IgnoreAspectRatio}) pictures.prepare("szczur.jpg", kBox, mode);
  EXPECT_EQ(drawn(pictures, "szczur.jpg", Qt::KeepAspectRatio).size(), QSize(60, 60));
  EXPECT_EQ(drawn(pictures, "szczur.jpg", Qt::IgnoreAspectRatio).size(), kBox);
}

TEST(Pictures, NothingIsPreparedForNoNameOrNoRoom) {
  desktop::PictureStore pictures;
  pictures.prepare("", kBox);
  pictures.prepare("szczur.jpg", {});
  EXPECT_TRUE(pictures.pixmap("", kBox).isNull());
}

TEST(Pictures, OneThatCannotBeReadIsNull) {
  desktop::PictureStore pictures;
  pictures.prepare("nigdzie.jpg", kBox);
  EXPECT_TRUE(pictures.pixmap("nigdzie.jpg", kBox).isNull());
}

}  // namespace
}  // namespace brolgan::test
