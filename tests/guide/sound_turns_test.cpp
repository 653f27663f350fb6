// Which of the variants of a sound is next.
#include "game/guide/sound_turns.h"

#include <gtest/gtest.h>

#include <set>
#include <vector>

namespace brolgan::test {
namespace {

using Names = std::vector<std::string>;

// What comes when a sound is asked for so many times, with these files there.
Names asked(const std::set<std::string>& files, const std::string& name, std::size_t times) {
  SoundTurns turns([&](const std::string& path) { return files.contains(path); });
  Names names(times);
  for (std::string& next : names) next = turns.next(name);
  return names;
}

TEST(SoundTurns, TheFileItselfIsTheFirstAndComesAgainBehindTheLastVariant) {
  EXPECT_EQ(asked({"kij.wav", "kij-2.wav", "kij-3.wav"}, "kij.wav", 4),
            (Names{"kij.wav", "kij-2.wav", "kij-3.wav", "kij.wav"}));
}

TEST(SoundTurns, EndAtTheFirstGap) {
  EXPECT_EQ(asked({"kij.wav", "kij-2.wav", "kij-4.wav"}, "kij.wav", 3), (Names{"kij.wav", "kij-2.wav", "kij.wav"}));
}

TEST(SoundTurns, AMissingFileHasNone) { EXPECT_EQ(asked({"kij-2.wav"}, "kij.wav", 2), (Names{"kij.wav", "kij.wav"})); }

TEST(SoundTurns, TheEndingIsThatOfTheNameAlone) {
  EXPECT_EQ(asked({"a.b/kij", "a.b/kij-2"}, "a.b/kij", 2), (Names{"a.b/kij", "a.b/kij-2"}));
  EXPECT_EQ(asked({".wav", ".wav-2"}, ".wav", 2), (Names{".wav", ".wav-2"}));
  EXPECT_EQ(asked({"a/b.wav", "a/b-2.wav"}, "a/b.wav", 2), (Names{"a/b.wav", "a/b-2.wav"}));
}

TEST(SoundTurns, EachSoundTakesItsOwn) {
  SoundTurns turns([](const std::string& path) { return path.size() <= 5; });
  EXPECT_EQ(turns.next("a.w"), "a.w");
  EXPECT_EQ(turns.next("b.w"), "b.w");
  EXPECT_EQ(turns.next("a.w"), "a-2.w");
}

}  // namespace
}  // namespace brolgan::test
