// What is read lies in the working directory, or else among the installed data; what is written lies in
// the working directory alone.
#include "flow/text/lookup.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>

#include "flow/text/files.h"
#include "flow/text/runtime_error.h"

namespace brolgan::test {
namespace {

namespace fs = std::filesystem;

class LookupTest : public testing::Test {
 protected:
  void SetUp() override {
    std::string pattern = fs::temp_directory_path() / "lookup-XXXXXX";
    ASSERT_NE(mkdtemp(pattern.data()), nullptr);
    folder = pattern;
    fs::create_directories(folder / "own");
    fs::create_directories(data() / "guit");
    before = fs::current_path();
    fs::current_path(folder / "own");
  }

  void TearDown() override {
    fs::current_path(before);
    fs::remove_all(folder);
  }

  [[nodiscard]] fs::path data() const { return folder / "data"; }
  [[nodiscard]] Lookup lookup() const { return Lookup(data()); }
  [[nodiscard]] DiskFiles files() const { return DiskFiles(lookup()); }
  static void put(const fs::path& path, const std::string& bytes) { std::ofstream(path, std::ios::binary) << bytes; }

  fs::path folder;
  fs::path before;
};

ErrorCode codeOf(DiskFiles files, const std::string& name) {
  try {
    files.read(name);
  } catch (const RuntimeError& error) {
    return error.code();
  }
  throw std::logic_error("no error");
}

TEST_F(LookupTest, WhatThePlayerHasGoesBeforeWhatIsInstalled) {
  put(data() / "monsters.cfg", "installed");
  EXPECT_EQ(files().read("monsters.cfg"), "installed");
  put("monsters.cfg", "own");
  EXPECT_EQ(files().read("monsters.cfg"), "own");
}

TEST_F(LookupTest, ABackslashSeparatesFoldersInBothPlaces) {
  put(data() / "guit/hard2.wav", "installed");
  EXPECT_EQ(lookup()("guit\\hard2.wav"), data() / "guit/hard2.wav");
  fs::create_directory("guit");
  EXPECT_EQ(lookup()("guit\\hard2.wav"), data() / "guit/hard2.wav");
  put("guit/hard2.wav", "own");
  EXPECT_EQ(lookup()("guit\\hard2.wav"), "guit/hard2.wav");
}

TEST_F(LookupTest, WhatIsInNeitherPlaceIsMissing) {
  EXPECT_EQ(lookup()("smok.jpg"), "smok.jpg");
  EXPECT_EQ(codeOf(files(), "smok.jpg"), ErrorCode::fileNotFound);
  EXPECT_EQ(codeOf(files(), ""), ErrorCode::pathAccess);
}

TEST_F(LookupTest, WithoutInstalledDataOnlyTheWorkingDirectoryCounts) {
  put(data() / "monsters.cfg", "installed");
  EXPECT_EQ(codeOf(DiskFiles(), "monsters.cfg"), ErrorCode::fileNotFound);
  EXPECT_EQ(Lookup()("guit\\hard2.wav"), "guit/hard2.wav");
}

TEST_F(LookupTest, AFolderOfThePlayerIsAnErrorAndHidesWhatIsInstalled) {
  put(data() / "monsters.cfg", "installed");
  fs::create_directory("monsters.cfg");
  EXPECT_EQ(codeOf(files(), "monsters.cfg"), ErrorCode::pathAccess);
}

TEST_F(LookupTest, WhatIsWrittenNeverTouchesWhatIsInstalled) {
  put(data() / "hero1.boh", "installed");
  DiskFiles there = files();
  there.create("hero1.boh");
  there.append("hero1.boh", "own");
  std::ifstream installed(data() / "hero1.boh");
  std::string bytes;
  installed >> bytes;
  EXPECT_EQ(bytes, "installed");
  EXPECT_EQ(there.read("hero1.boh"), "own");
}

TEST_F(LookupTest, AFolderThatOnlyTheInstalledDataHaveTakesNoFile) {
  DiskFiles there = files();
  try {
    there.create("guit\\hero1.boh");
    FAIL() << "a file was made";
  } catch (const RuntimeError& error) {
    EXPECT_EQ(error.code(), ErrorCode::pathNotFound);
  }
}

}  // namespace
}  // namespace brolgan::test
