// The store of pictures: one that was decoded beside the event thread is the one that is drawn; what is
// drawn once more, or lies behind something, is not decoded.
#include <gtest/gtest.h>

#include <QResizeEvent>
#include <QTest>
#include <array>
#include <tuple>
#include <utility>

#include "desktop/picture_store.h"
#include "desktop/unit.h"
#include "tests/desktop/scenes.h"
#include "tests/desktop/stage.h"

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

TEST(Pictures, OneThatFillsALargeScreenIsDecodedOnce) {
  desktop::PictureStore pictures;
  for (int i = 0; i < 3; ++i) std::ignore = pictures.pixmap("walka.jpg", {2680, 1432}, Qt::IgnoreAspectRatio);
  EXPECT_EQ(pictures.decodings("walka.jpg"), 1);
}

void waitForRest(const desktop::FormWindow& window) {
  ASSERT_TRUE(QTest::qWaitFor([&window] { return !desktop::Unit::isMoving(&window); }));
  Stage::settle();
}

TEST(Pictures, ARepaintOfALargeWindowDecodesNothing) {
  Stage stage;
  setPreparation(stage.world, richHero());
  stage.open({"Prefight"});
  desktop::FormWindow& window = stage.window("Prefight");
  window.resize(2680, 1432);
  waitForRest(window);
  const std::array names = {QString("walka.jpg"), QString("komary.jpg")};
  std::array<int, 2> before{};
  for (std::size_t i = 0; i < names.size(); ++i) before.at(i) = stage.pictures.decodings(names.at(i));
  for (int i = 0; i < 3; ++i) window.page().repaint();
  QResizeEvent sameSize(window.size(), window.size());
  QCoreApplication::sendEvent(&window, &sameSize);
  ASSERT_TRUE(desktop::Unit::isMoving(&window));
  waitForRest(window);
  for (std::size_t i = 0; i < names.size(); ++i) {
    EXPECT_GT(before.at(i), 0);
    EXPECT_EQ(stage.pictures.decodings(names.at(i)), before.at(i)) << names.at(i).toStdString();
  }
}

TEST(Pictures, AStallBehindItsOpenDepartmentIsNotDecoded) {
  constexpr std::array stalls = {std::pair("fstat", "stragan-cechy.jpg"), std::pair("fczar", "stragan-czary.jpg"),
                                 std::pair("fbron", "stragan-bron.jpg")};
  int shut = 0;
  for (int mode = 1; mode <= 4; ++mode) {
    Stage stage;
    setShop(stage.world, richHero(), mode);
    stage.open({"CTsklep"});
    std::ignore = stage.window("CTsklep").grab();
    for (const auto& [department, picture] : stalls) {
      const bool isOpen = stage.isVisible("CTsklep", department);
      EXPECT_EQ(stage.pictures.decodings(picture), isOpen ? 0 : 1) << picture << " in mode " << mode;
      shut += isOpen ? 0 : 1;
    }
  }
  EXPECT_GT(shut, 0);
}

}  // namespace
}  // namespace brolgan::test
