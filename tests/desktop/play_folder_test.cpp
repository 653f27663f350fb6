// Which folder the game plays in, and what the player is told when it is of no use.
#include "desktop/play_folder.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <cstdlib>
#include <fstream>

#include "desktop/error_box.h"
#include "desktop/picture_store.h"
#include "flow/text/runtime_error.h"

namespace brolgan::test {
namespace {

namespace fs = std::filesystem;
using desktop::PlayFolderError;

class PlayFolderTest : public testing::Test {
 protected:
  void SetUp() override {
    std::string pattern = fs::temp_directory_path() / "play-XXXXXX";
    ASSERT_NE(mkdtemp(pattern.data()), nullptr);
    folder = pattern;
    before = fs::current_path();
  }

  void TearDown() override {
    fs::current_path(before);
    fs::remove_all(folder);
  }

  // The path of a program in that folder of the temporary one.
  [[nodiscard]] fs::path program(const std::string& in) const {
    fs::create_directories(folder / in);
    return folder / in / "brolgan";
  }

  static std::string errorOf(const fs::path& folder) {
    try {
      desktop::enterPlayFolder(folder);
    } catch (...) {
      return desktop::errorText(std::current_exception()).toStdString();
    }
    return "";
  }

  fs::path folder;
  fs::path before;
};

constexpr fs::perms kPlayerAlone = fs::perms::owner_all;

TEST_F(PlayFolderTest, AProgramInAPrefixFindsItsDataThere) {
  fs::create_directories(folder / "usr/share/games/brolgan");
  EXPECT_EQ(desktop::installedData(program("usr/games")), folder / "usr/share/games/brolgan");
}

TEST_F(PlayFolderTest, AProgramWithoutInstalledDataIsNotInstalled) {
  EXPECT_EQ(desktop::installedData(program("usr/games")), "");
  std::ofstream(folder / "usr/share");
  EXPECT_EQ(desktop::installedData(program("usr/games")), "");
}

TEST_F(PlayFolderTest, ACheckoutBesideAnInstalledGameIsNotInstalled) {
  fs::create_directories(folder / "usr/share/games/brolgan");
  EXPECT_EQ(desktop::installedData(program("usr/gra")), "");
  EXPECT_EQ(desktop::installedData(program("usr/build/games")), "");
}

TEST_F(PlayFolderTest, LiesBelowTheFolderForDataOfTheSessionOrOfTheHome) {
  EXPECT_EQ(desktop::playerFolder("/data", "/home/ola"), "/data/brolgan");
  EXPECT_EQ(desktop::playerFolder("", "/home/ola"), "/home/ola/.local/share/brolgan");
}

TEST_F(PlayFolderTest, ARelativeFolderForDataDoesNotCount) {
  EXPECT_EQ(desktop::playerFolder("data", "/home/ola"), "/home/ola/.local/share/brolgan");
  EXPECT_EQ(desktop::playerFolder("./data", "/home/ola"), "/home/ola/.local/share/brolgan");
}

TEST_F(PlayFolderTest, IsMadeForThePlayerAloneWithAllAboveIt) {
  desktop::enterPlayFolder(folder / "local/share/brolgan");
  EXPECT_EQ(fs::current_path(), folder / "local/share/brolgan");
  for (const char* made : {"local", "local/share", "local/share/brolgan"}) {
    EXPECT_EQ(fs::status(folder / made).permissions(), kPlayerAlone) << made;
  }
}

TEST_F(PlayFolderTest, IsLeftAsItIsWhenItIsThere) {
  fs::create_directories(folder / "brolgan");
  fs::permissions(folder / "brolgan", fs::perms(0750));
  std::ofstream(folder / "brolgan/hero1.boh") << "Zofia";
  desktop::enterPlayFolder(folder / "brolgan");
  EXPECT_EQ(fs::status(folder / "brolgan").permissions(), fs::perms(0750));
  EXPECT_EQ(fs::file_size("hero1.boh"), 5U);
}

TEST_F(PlayFolderTest, SomethingElseInItsPlaceIsNamedAsTheReason) {
  std::ofstream(folder / "share");
  EXPECT_EQ(errorOf(folder / "share/brolgan"),
            "Gra nie może pisać w folderze gracza.\nFolder: " + (folder / "share").string() +
                "\nPowód: pod tą nazwą leży coś, co nie jest folderem");
  fs::create_symlink("nowhere", folder / "link");
  EXPECT_EQ(errorOf(folder / "link"), "Gra nie może pisać w folderze gracza.\nFolder: " + (folder / "link").string() +
                                          "\nPowód: pod tą nazwą leży coś, co nie jest folderem");
  EXPECT_EQ(fs::current_path(), before);
}

TEST_F(PlayFolderTest, EveryReasonIsToldInPolish) {
  const auto reasonOf = [](int reason) {
    const std::string text = PlayFolderError("/home/ola", reason).what();
    return text.substr(text.rfind('\n') + 1);
  };
  EXPECT_EQ(reasonOf(EACCES), "Powód: brak uprawnień");
  EXPECT_EQ(reasonOf(EPERM), "Powód: brak uprawnień");
  EXPECT_EQ(reasonOf(EROFS), "Powód: nośnik tylko do odczytu");
  EXPECT_EQ(reasonOf(ENOSPC), "Powód: brak miejsca na dysku");
  EXPECT_EQ(reasonOf(EDQUOT), "Powód: brak miejsca na dysku");
  EXPECT_EQ(reasonOf(ENAMETOOLONG), "Powód: zbyt długa nazwa");
  EXPECT_TRUE(reasonOf(EIO).starts_with("Powód: błąd systemu 5 (")) << reasonOf(EIO);
}

TEST_F(PlayFolderTest, PicturesAreThePlayersOrElseTheInstalledOnes) {
  const fs::path data = folder / "data";
  fs::create_directories(data);
  desktop::enterPlayFolder(folder / "own");
  fs::copy(fs::path(BROLGAN_PICTURES) / "ikona-16.png", data / "a.png");
  desktop::PictureStore pictures{Lookup(data)};
  pictures.load("a.png");
  EXPECT_EQ(pictures.pixmap("a.png", {64, 64}).size(), QSize(64, 64));
  fs::copy(fs::path(BROLGAN_PICTURES) / "rana.png", "b.png");
  std::ofstream(data / "b.png") << "no picture";
  pictures.load("b.png");
  EXPECT_FALSE(pictures.pixmap("b.png", {64, 64}).isNull());
  EXPECT_THROW(pictures.load("c.png"), RuntimeError);
}

}  // namespace
}  // namespace brolgan::test
