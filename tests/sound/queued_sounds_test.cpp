// The queue and its worker thread, with a back-end that the test holds in its hands.
#include "desktop/sound/queued_sounds.h"

#include <gtest/gtest.h>

#include <chrono>
#include <new>

#include "desktop/sound/mailbox.h"
#include "desktop/sound/worker.h"
#include "tests/sound/stand_in.h"

namespace brolgan::test {
namespace {

using desktop::Mailbox;
using desktop::QueuedSounds;
using std::chrono::milliseconds;
using std::chrono::steady_clock;

constexpr milliseconds kLong{60000};

class Queue : public ::testing::Test {
 protected:
  // Plays the file and waits until the back-end hangs in the event.
  void hangIn(const std::string& event, const std::string& file) {
    diary->hangIn(event);
    sounds.play("SFX", file);
    diary->awaitHang();
  }

  std::shared_ptr<Diary> diary = std::make_shared<Diary>();
  QueuedSounds sounds{standIn(diary), kLong};
};

TEST_F(Queue, AsksForNoBackendBeforeTheFirstSound) {
  sounds.stop("SFX");
  EXPECT_TRUE(sounds.close());
  EXPECT_EQ(diary->thread(), std::thread::id());
  EXPECT_EQ(diary->events(), Events{});
}

TEST_F(Queue, PlaysInAThreadOfItsOwn) {
  sounds.play("SFX", "czar.wav");
  EXPECT_EQ(diary->await(2), (Events{"open", "SFX czar.wav"}));
  EXPECT_NE(diary->thread(), std::this_thread::get_id());
}

TEST_F(Queue, OpensTheDeviceOnceForManySounds) {
  for (const std::string file : {"a.wav", "b.wav", "c.wav"}) {
    const std::size_t before = diary->events().size();
    sounds.play("SFX", file);
    diary->await(std::max<std::size_t>(2, before + 1));
  }
  EXPECT_EQ(diary->events(), (Events{"open", "SFX a.wav", "SFX b.wav", "SFX c.wav"}));
}

TEST_F(Queue, ABackslashSeparatesFolders) {
  sounds.play("Music1", "guit\\hard2.wav");
  EXPECT_EQ(diary->await(2).back(), "Music1 guit/hard2.wav");
}

TEST_F(Queue, KeepsTheOrderOfDifferentPlayers) {
  hangIn("SFX a.wav", "a.wav");
  sounds.play("Music1", "m.wav");
  sounds.play("Other", "o.wav");
  diary->release();
  EXPECT_EQ(diary->await(4), (Events{"open", "SFX a.wav", "Music1 m.wav", "Other o.wav"}));
}

TEST_F(Queue, ASoundOvertakesTheUnstartedOnesOfItsPlayer) {
  hangIn("SFX first.wav", "first.wav");
  sounds.play("SFX", "second.wav");
  sounds.play("Music1", "m.wav");
  sounds.play("SFX", "third.wav");
  diary->release();
  EXPECT_EQ(diary->await(4), (Events{"open", "SFX first.wav", "Music1 m.wav", "SFX third.wav"}));
}

TEST_F(Queue, AStopOvertakesTheUnstartedSoundOfItsPlayerAlone) {
  hangIn("SFX first.wav", "first.wav");
  sounds.play("Music1", "m.wav");
  sounds.play("SFX", "second.wav");
  sounds.stop("SFX");
  diary->release();
  EXPECT_EQ(diary->await(4), (Events{"open", "SFX first.wav", "Music1 m.wav", "SFX stop"}));
}

TEST_F(Queue, ASoundAfterAStopIsPlayed) {
  hangIn("SFX first.wav", "first.wav");
  sounds.stop("SFX");
  sounds.play("SFX", "again.wav");
  diary->release();
  EXPECT_EQ(diary->await(3), (Events{"open", "SFX first.wav", "SFX again.wav"}));
}

TEST_F(Queue, ASoundThatWaitsForTheDeviceKeepsItsPlaceInTheOrder) {
  hangIn("open", "a.wav");
  sounds.play("Music1", "m.wav");
  diary->release();
  EXPECT_EQ(diary->await(3), (Events{"open", "SFX a.wav", "Music1 m.wav"}));
}

TEST_F(Queue, ASoundThatWaitsForTheDeviceIsOvertakenToo) {
  hangIn("open", "old.wav");
  sounds.play("SFX", "new.wav");
  diary->release();
  EXPECT_EQ(diary->await(2), (Events{"open", "SFX new.wav"}));
}

TEST_F(Queue, ASoundStoppedWhileItWaitsForTheDeviceIsNeverHeard) {
  hangIn("open", "old.wav");
  sounds.stop("SFX");
  diary->release();
  EXPECT_EQ(diary->await(2), (Events{"open", "SFX stop"}));
}

TEST_F(Queue, WithoutADeviceEachSoundAsksForOneAgainAndNoneIsLoaded) {
  diary->setDevice(false);
  sounds.play("SFX", "a.wav");
  EXPECT_EQ(diary->await(1), Events{"open"});
  sounds.stop("SFX");
  sounds.play("Music1", "m.wav");
  EXPECT_EQ(diary->await(2), (Events{"open", "open"}));
  diary->setDevice(true);
  sounds.play("SFX", "b.wav");
  EXPECT_EQ(diary->await(4), (Events{"open", "open", "open", "SFX b.wav"}));
}

TEST_F(Queue, TakesNothingAfterItsEnd) {
  sounds.play("SFX", "a.wav");
  diary->await(2);
  EXPECT_TRUE(sounds.close());
  sounds.play("SFX", "b.wav");
  sounds.stop("SFX");
  EXPECT_TRUE(sounds.close());
  EXPECT_EQ(diary->events(), (Events{"open", "SFX a.wav", "gone"}));
}

// Every call below returns though the worker stands still: were one of them to wait for it, the
// test would never end.
TEST(HungBackend, HoldsNoCallerUpAndIsLeftBehind) {
  const auto diary = std::make_shared<Diary>();
  diary->hangIn("open");
  {
    QueuedSounds sounds(standIn(diary));
    sounds.play("Music1", "guit\\hard2.wav");
    diary->awaitHang();
    for (int i = 0; i < 10000; ++i) {
      sounds.play("SFX", "czar.wav");
      sounds.stop("Music1");
    }
    const auto start = steady_clock::now();
    EXPECT_FALSE(sounds.close());
    EXPECT_GE(steady_clock::now() - start, QueuedSounds::kPatience);
    EXPECT_LT(steady_clock::now() - start, milliseconds(5000));
  }
  EXPECT_EQ(diary->events(), Events{"open"});
  diary->release();
  EXPECT_EQ(diary->await(2), (Events{"open", "gone"})) << "the worker ends by itself, nothing more is played";
}

TEST(HungBackend, InTheMiddleOfASoundHoldsNoCallerUpEither) {
  const auto diary = std::make_shared<Diary>();
  diary->hangIn("SFX a.wav");
  {
    QueuedSounds sounds(standIn(diary), milliseconds(1));
    sounds.play("SFX", "a.wav");
    diary->awaitHang();
    sounds.play("SFX", "b.wav");
    EXPECT_FALSE(sounds.close());
  }
  diary->release();
  EXPECT_EQ(diary->await(3), (Events{"open", "SFX a.wav", "gone"}));
}

TEST(HungBackend, WaitsTwoTenthsOfASecondAtTheEnd) { EXPECT_EQ(QueuedSounds::kPatience, milliseconds(200)); }

TEST(BrokenBackend, AMachineWithoutALibraryIsSilent) {
  int asked = 0;
  {
    QueuedSounds sounds([&asked]() -> std::unique_ptr<desktop::SoundBackend> { return ++asked, nullptr; }, kLong);
    sounds.play("SFX", "a.wav");
    sounds.stop("SFX");
    EXPECT_TRUE(sounds.close());
  }
  EXPECT_LE(asked, 1);
}

// Fails at its first sound as a file too large for the memory does.
class Forgetful : public desktop::SoundBackend {
 public:
  explicit Forgetful(Diary& diary) : diary_(diary) {}
  bool open() override { return true; }
  void play(const std::string& player, const std::string& path) override {
    diary_.enter(player + " " + path);
    if (path == "huge.wav") throw std::bad_alloc();
  }
  void stop(const std::string&) override {}
  bool busy() override { return true; }
  void close() override {}

 private:
  Diary& diary_;
};

TEST(BrokenBackend, ASoundTooLargeIsLeftOutAndTheNextIsPlayed) {
  Diary diary;
  QueuedSounds sounds([&diary] { return std::make_unique<Forgetful>(diary); }, kLong);
  sounds.play("SFX", "huge.wav");
  diary.await(1);
  sounds.play("SFX", "small.wav");
  EXPECT_EQ(diary.await(2), (Events{"SFX huge.wav", "SFX small.wav"}));
  EXPECT_TRUE(sounds.close());
}

// The worker by itself, resting after a moment.
class Rest : public ::testing::Test {
 protected:
  ~Rest() override {
    mailbox->close();
    worker.join();
  }
  void play(const std::string& file) { mailbox->post({"SFX", file}); }

  std::shared_ptr<Diary> diary = std::make_shared<Diary>();
  std::shared_ptr<Mailbox> mailbox = std::make_shared<Mailbox>();
  std::thread worker{[this] { desktop::work(mailbox, standIn(diary), milliseconds(1)); }};
};

TEST_F(Rest, GivesTheDeviceBackWhenNothingIsHeardAnyMore) {
  play("a.wav");
  EXPECT_EQ(diary->await(3), (Events{"open", "SFX a.wav", "close"}));
}

TEST_F(Rest, TakesTheDeviceAgainForTheNextSound) {
  play("a.wav");
  diary->await(3);
  play("b.wav");
  EXPECT_EQ(diary->await(6), (Events{"open", "SFX a.wav", "close", "open", "SFX b.wav", "close"}));
}

TEST_F(Rest, KeepsTheDeviceAsLongAsSomethingIsHeard) {
  diary->setBusy(true);
  play("a.wav");
  diary->await(2);
  const std::size_t asked = diary->awaitBusy(3);
  EXPECT_GE(asked, 3U);
  EXPECT_EQ(diary->events(), (Events{"open", "SFX a.wav"}));
  diary->setBusy(false);
  EXPECT_EQ(diary->await(3).back(), "close");
}

TEST(MailboxTest, GivesQuietOnlyAfterThePatienceAndClosedForEver) {
  Mailbox mailbox;
  EXPECT_TRUE(std::holds_alternative<desktop::Quiet>(mailbox.take(milliseconds(1))));
  EXPECT_TRUE(mailbox.post({"SFX", "a.wav"}));
  mailbox.close();
  mailbox.giveBack({"Music1", "m.wav"});
  EXPECT_FALSE(mailbox.post({"SFX", "b.wav"}));
  EXPECT_TRUE(std::holds_alternative<desktop::Closed>(mailbox.take(milliseconds(1))));
  EXPECT_TRUE(std::holds_alternative<desktop::Closed>(mailbox.take(std::nullopt)));
}

}  // namespace
}  // namespace brolgan::test
