// Variants of a sound lie beside it and sound in turn: by themselves, and through the queue as the
// stand-in hears them.
#include "desktop/sound/variants.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>

#include "desktop/sound/queued_sounds.h"
#include "tests/sound/stand_in.h"

namespace brolgan::test {
namespace {

namespace fs = std::filesystem;
using desktop::QueuedSounds;
using desktop::Variants;

class VariantsTest : public ::testing::Test {
 protected:
  VariantsTest() {
    std::string name = fs::temp_directory_path() / "variantsXXXXXX";
    folder = mkdtemp(name.data());
  }
  ~VariantsTest() override { fs::remove_all(folder); }

  [[nodiscard]] std::string path(const std::string& name) const { return folder / name; }
  void lay(const std::vector<std::string>& names) const {
    for (const std::string& name : names) std::ofstream(path(name)) << name;
  }
  // The names of the files that come when a sound is asked for so many times.
  std::vector<std::string> asked(const std::string& name, std::size_t times) {
    std::vector<std::string> names(times);
    for (std::string& next : names) next = fs::path(variants.next(path(name))).lexically_relative(folder);
    return names;
  }

  fs::path folder;
  Variants variants;
};

using Names = std::vector<std::string>;

TEST_F(VariantsTest, SoundInTurnAndTheFileItselfIsTheFirst) {
  lay({"miecz.wav", "miecz-2.wav", "miecz-3.wav"});
  EXPECT_EQ(asked("miecz.wav", 5), (Names{"miecz.wav", "miecz-2.wav", "miecz-3.wav", "miecz.wav", "miecz-2.wav"}));
}

TEST_F(VariantsTest, EachSoundTakesItsOwnTurns) {
  lay({"miecz.wav", "miecz-2.wav", "kij.wav", "kij-2.wav"});
  EXPECT_EQ(asked("miecz.wav", 1), Names{"miecz.wav"});
  EXPECT_EQ(asked("kij.wav", 2), (Names{"kij.wav", "kij-2.wav"}));
  EXPECT_EQ(asked("miecz.wav", 1), Names{"miecz-2.wav"});
}

TEST_F(VariantsTest, ASoundWithoutVariantsIsAlwaysTheSame) {
  lay({"wygr.wav", "wygr2.wav", "wygr-2.txt", "kij-2.wav"});
  EXPECT_EQ(asked("wygr.wav", 3), (Names{"wygr.wav", "wygr.wav", "wygr.wav"}));
}

TEST_F(VariantsTest, EndAtTheFirstGap) {
  lay({"miecz.wav", "miecz-2.wav", "miecz-4.wav"});
  EXPECT_EQ(asked("miecz.wav", 3), (Names{"miecz.wav", "miecz-2.wav", "miecz.wav"}));
}

TEST_F(VariantsTest, AreNoneOfAMissingFile) {
  lay({"miecz-2.wav", "miecz-3.wav"});
  EXPECT_EQ(asked("miecz.wav", 2), (Names{"miecz.wav", "miecz.wav"}));
}

TEST_F(VariantsTest, AFolderIsNone) {
  lay({"miecz.wav"});
  fs::create_directory(folder / "miecz-2.wav");
  EXPECT_EQ(asked("miecz.wav", 2), (Names{"miecz.wav", "miecz.wav"}));
}

TEST_F(VariantsTest, LieInTheFolderOfTheirSound) {
  fs::create_directory(folder / "guit.d");
  lay({"guit.d/hard2.wav", "guit.d/hard2-2.wav", "guit.d/hard2", "guit.d/hard2-2", "guit-2.d"});
  EXPECT_EQ(asked("guit.d/hard2.wav", 2), (Names{"guit.d/hard2.wav", "guit.d/hard2-2.wav"}));
  EXPECT_EQ(asked("guit.d/hard2", 2), (Names{"guit.d/hard2", "guit.d/hard2-2"}));
}

TEST_F(VariantsTest, OddNamesComeBackAsTheyAre) {
  for (const std::string& name : {std::string(), folder.string(), folder.string() + "/", std::string("-2.wav"),
                                  std::string(5000, 'x'), std::string("a\0b.wav", 7)}) {
    EXPECT_EQ(variants.next(name), name);
    EXPECT_EQ(variants.next(name), name);
  }
}

TEST_F(VariantsTest, ArePickedAnewAsTheyComeAndGo) {
  lay({"miecz.wav"});
  EXPECT_EQ(asked("miecz.wav", 1), Names{"miecz.wav"});
  lay({"miecz-2.wav"});
  EXPECT_EQ(asked("miecz.wav", 1), Names{"miecz-2.wav"});
  fs::remove(path("miecz-2.wav"));
  EXPECT_EQ(asked("miecz.wav", 2), (Names{"miecz.wav", "miecz.wav"}));
}

TEST_F(VariantsTest, ReachTheBackendInTurn) {
  fs::create_directory(folder / "guit");
  lay({"guit/hard2.wav", "guit/hard2-2.wav", "miecz.wav", "miecz-2.wav"});
  const auto diary = std::make_shared<Diary>();
  QueuedSounds sounds(standIn(diary), std::chrono::milliseconds(60000));
  sounds.play("Music1", path("guit\\hard2.wav"));
  diary->await(2);
  for (std::size_t events = 3; events <= 5; ++events) {
    sounds.play("SFX", path("miecz.wav"));
    diary->await(events);
  }
  sounds.play("Music1", path("guit\\hard2.wav"));
  EXPECT_EQ(diary->await(6),
            (Events{"open", "Music1 " + path("guit/hard2.wav"), "SFX " + path("miecz.wav"),
                    "SFX " + path("miecz-2.wav"), "SFX " + path("miecz.wav"), "Music1 " + path("guit/hard2-2.wav")}));
}

// A player's own sword is the only one; of the rest he hears what is installed.
TEST_F(VariantsTest, LieBesideTheSoundThatIsFound) {
  fs::create_directories(folder / "own");
  fs::create_directories(folder / "data");
  lay({"own/miecz.wav", "data/miecz.wav", "data/miecz-2.wav", "data/kij.wav", "data/kij-2.wav"});
  const fs::path before = fs::current_path();
  fs::current_path(folder / "own");
  const auto diary = std::make_shared<Diary>();
  QueuedSounds sounds(standIn(diary), std::chrono::milliseconds(60000), Lookup(path("data")));
  std::size_t events = 1;
  for (const char* name : {"miecz.wav", "miecz.wav", "kij.wav", "kij.wav"}) {
    sounds.play("SFX", name);
    diary->await(++events);
  }
  EXPECT_EQ(diary->await(5), (Events{"open", "SFX miecz.wav", "SFX miecz.wav", "SFX " + path("data/kij.wav"),
                                     "SFX " + path("data/kij-2.wav")}));
  fs::current_path(before);
}

TEST_F(VariantsTest, ASoundThatIsOvertakenLosesNoTurn) {
  lay({"miecz.wav", "miecz-2.wav"});
  const auto diary = std::make_shared<Diary>();
  QueuedSounds sounds(standIn(diary), std::chrono::milliseconds(60000));
  diary->hangIn("SFX first.wav");
  sounds.play("SFX", "first.wav");
  diary->awaitHang();
  sounds.play("SFX", path("miecz.wav"));
  sounds.play("SFX", path("miecz.wav"));
  diary->release();
  EXPECT_EQ(diary->await(3).back(), "SFX " + path("miecz.wav"));
}

}  // namespace
}  // namespace brolgan::test
