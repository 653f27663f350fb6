// The stage: loading, showing, hiding and unloading of forms, and the end of the program.
#include "flow/stage/runtime.h"

#include <gtest/gtest.h>

#include <memory>
#include <stdexcept>
#include <tuple>

#include "tests/stage/probe_form.h"
#include "tests/support/world.h"

namespace brolgan::test {
namespace {

class Stage : public testing::Test {
 protected:
  void SetUp() override {
    for (const std::string name : {"A", "B"}) {
      runtime.offer(name, [this, name](Runtime& owner) {
        auto made = std::make_unique<Probe>(owner, name, diary);
        made->onLoad = onLoad[name];
        return made;
      });
    }
  }

  Probe& form(const std::string& name) { return dynamic_cast<Probe&>(world.form(name)); }
  [[nodiscard]] std::vector<std::string> loaded() const { return runtime.loaded(); }

  using Names = std::vector<std::string>;

  Diary diary;
  World world;
  Runtime& runtime = world.runtime;
  std::map<std::string, Handler> onLoad;
};

TEST_F(Stage, LoadRunsTheLoadHandlerAndShowsNothing) {
  runtime.Load("A");
  EXPECT_EQ(diary, (Diary{"A load"}));
  EXPECT_FALSE(form("A").Visible);
}

TEST_F(Stage, LoadingALoadedFormDoesNothing) {
  runtime.Load("A");
  form("A").label.Caption = "zmieniony";
  runtime.Load("A");
  EXPECT_EQ(diary, (Diary{"A load"}));
  EXPECT_EQ(form("A").label.Caption, "zmieniony");
}

TEST_F(Stage, ShowLoadsTheFormBeforeItIsVisible) {
  bool visible = true;
  onLoad["A"] = [&] { visible = form("A").Visible; };
  runtime.Show("A");
  EXPECT_FALSE(visible);
  EXPECT_TRUE(form("A").Visible);
}

TEST_F(Stage, ShowingAVisibleFormChangesNothing) {
  runtime.Show("A");
  form("A").label.Caption = "zmieniony";
  runtime.Show("A");
  EXPECT_EQ(diary, (Diary{"A load"}));
  EXPECT_EQ(form("A").label.Caption, "zmieniony");
  EXPECT_TRUE(form("A").Visible);
}

TEST_F(Stage, ShowingALoadedFormDoesNotLoadItAgain) {
  runtime.Load("A");
  runtime.Show("A");
  EXPECT_EQ(diary, (Diary{"A load"}));
  EXPECT_TRUE(form("A").Visible);
}

TEST_F(Stage, ShowingOneFormLeavesTheOthersOpen) {
  runtime.Show("A");
  runtime.Show("B");
  EXPECT_TRUE(form("A").Visible);
  EXPECT_TRUE(form("B").Visible);
  EXPECT_EQ(loaded(), (Names{"A", "B"}));
}

TEST_F(Stage, UnloadRunsTheUnloadHandlerAndDestroysTheForm) {
  runtime.Load("A");
  diary.clear();
  runtime.Unload("A");
  EXPECT_EQ(diary, (Diary{"A unload", "A gone"}));
  EXPECT_EQ(runtime.find("A"), nullptr);
  EXPECT_EQ(loaded(), Names{});
}

TEST_F(Stage, UnloadingAFormThatIsNotLoadedIsHarmless) {
  runtime.Unload("A");
  EXPECT_TRUE(diary.empty());
  runtime.Unload("nieznany");
  EXPECT_TRUE(diary.empty());
}

TEST_F(Stage, AFormLoadedAgainStartsFromItsDesign) {
  runtime.Show("A");
  form("A").label.Caption = "zmieniony";
  form("A").combo.ListIndex(1);
  runtime.Unload("A");
  runtime.Load("A");
  EXPECT_EQ(form("A").label.Caption, "napis");
  EXPECT_EQ(form("A").combo.ListIndex(), -1);
  EXPECT_FALSE(form("A").Visible);
}

TEST_F(Stage, HidingKeepsTheFormAndItsState) {
  runtime.Show("A");
  form("A").label.Caption = "zmieniony";
  runtime.Hide("A");
  EXPECT_FALSE(form("A").Visible);
  EXPECT_EQ(form("A").label.Caption, "zmieniony");
  runtime.Show("A");
  EXPECT_TRUE(form("A").Visible);
  EXPECT_EQ(form("A").label.Caption, "zmieniony");
  EXPECT_EQ(diary, (Diary{"A load"}));
}

TEST_F(Stage, HidingAFormThatIsNotLoadedIsHarmless) {
  runtime.Hide("A");
  EXPECT_TRUE(diary.empty());
  EXPECT_FALSE(world.isOpen("A"));
}

TEST_F(Stage, ReopenLoadsAfreshAndShowsBesideWhatIsOpen) {
  runtime.Show("A");
  runtime.Show("B");
  form("B").label.Caption = "zmieniony";
  diary.clear();
  runtime.Reopen("B");
  EXPECT_EQ(diary, (Diary{"B unload visible", "B gone", "B load"}));
  EXPECT_EQ(form("B").label.Caption, "napis");
  EXPECT_TRUE(form("A").Visible);
  EXPECT_TRUE(form("B").Visible);
}

TEST_F(Stage, ReopenOfAFormThatIsNotOpenOpensIt) {
  runtime.Reopen("B");
  EXPECT_EQ(diary, (Diary{"B load"}));
  EXPECT_TRUE(form("B").Visible);
}

TEST_F(Stage, ReplaceHidesTheOldLoadsTheNewAndUnloadsTheOldLast) {
  runtime.Show("A");
  diary.clear();
  bool oldVisible = true;
  onLoad["B"] = [&] { oldVisible = form("A").Visible; };
  runtime.Replace("A", "B");
  EXPECT_FALSE(oldVisible);
  EXPECT_EQ(diary, (Diary{"B load", "A unload", "A gone"}));
  EXPECT_EQ(loaded(), (Names{"B"}));
  EXPECT_TRUE(form("B").Visible);
}

TEST_F(Stage, ReplaceStartsATargetAfreshThatWasLoadedBefore) {
  runtime.Load("B");
  form("B").label.Caption = "zmieniony";
  runtime.Show("A");
  diary.clear();
  runtime.Replace("A", "B");
  EXPECT_EQ(diary, (Diary{"B unload", "B gone", "B load", "A unload", "A gone"}));
  EXPECT_EQ(form("B").label.Caption, "napis");
}

TEST_F(Stage, AFormThatUnloadsItselfInItsHandlerLivesUntilTheHandlerIsDone) {
  runtime.Show("A");
  diary.clear();
  form("A").button.Click = [this, &self = form("A")] {
    runtime.Unload("A");
    self.note("still there");
  };
  world.click("A", "button");
  EXPECT_EQ(diary, (Diary{"A unload visible", "A still there", "A gone"}));
}

TEST_F(Stage, AFormThatReplacesItselfLivesUntilTheHandlerIsDone) {
  runtime.Show("A");
  diary.clear();
  form("A").button.Click = [this, &self = form("A")] {
    runtime.Replace("A", "B");
    self.note("still there");
  };
  world.click("A", "button");
  EXPECT_EQ(diary, (Diary{"B load", "A unload", "A still there", "A gone"}));
}

TEST_F(Stage, AFormUnloadedInAnInnerHandlerLivesUntilTheOuterOneIsDone) {
  runtime.Show("A");
  diary.clear();
  form("A").combo.Click = [this] { runtime.Unload("A"); };
  form("A").button.Click = [this, &self = form("A")] {
    runtime.raise(self.combo.Click);
    self.note("still there");
  };
  world.click("A", "button");
  EXPECT_EQ(diary, (Diary{"A unload visible", "A still there", "A gone"}));
}

TEST_F(Stage, AFormThatUnloadsItselfWhileItLoadsIsNotShown) {
  onLoad["A"] = [this] {
    runtime.Show("B");
    runtime.Unload("A");
  };
  runtime.Show("A");
  EXPECT_EQ(loaded(), (Names{"B"}));
  EXPECT_EQ(diary, (Diary{"A load", "B load", "A unload", "A gone"}));
}

TEST_F(Stage, TheEndLetsNothingBeLoadedShownOrUnloaded) {
  runtime.Load("A");
  diary.clear();
  runtime.End();
  EXPECT_TRUE(runtime.ended());
  runtime.Show("A");
  runtime.Load("B");
  runtime.Show("B");
  runtime.Unload("A");
  runtime.Replace("A", "B");
  runtime.Reopen("B");
  EXPECT_TRUE(diary.empty());
  EXPECT_FALSE(form("A").Visible);
  EXPECT_EQ(loaded(), (Names{"A"}));
}

TEST_F(Stage, TheEndLetsNoHandlerRun) {
  runtime.Show("A");
  runtime.End();
  bool ran = false;
  runtime.raise([&] { ran = true; });
  EXPECT_FALSE(ran);
}

TEST_F(Stage, TheEndWhileAFormLoadsLeavesItUnshown) {
  onLoad["A"] = [this] { runtime.End(); };
  runtime.Show("A");
  EXPECT_FALSE(form("A").Visible);
}

TEST_F(Stage, TheEndInAnUnloadHandlerIsTheEnd) {
  world.runtime.Show("Brolgan");
  world.runtime.Unload("Brolgan");
  EXPECT_TRUE(runtime.ended());
}

TEST_F(Stage, AMediaPlayerIsStoppedWhenItsFormGoesAndNotBefore) {
  runtime.Show("A");
  form("A").player.FileName = "guit\\hard2.wav";
  form("A").player.Play();
  runtime.Hide("A");
  EXPECT_EQ(world.sounds.events, (std::vector<std::string>{"A guit\\hard2.wav"}));
  runtime.Unload("A");
  EXPECT_EQ(world.sounds.events, (std::vector<std::string>{"A guit\\hard2.wav", "A stop"}));
}

// The old form's player must not silence the new one of the same name.
TEST_F(Stage, AFormOpenedAfreshInOneHandlerKeepsTheSoundOfItsNewPlayer) {
  onLoad["B"] = [this] {
    form("B").player.FileName = "a.wav";
    form("B").player.Play();
  };
  runtime.Show("A");
  runtime.Show("B");
  runtime.raise([this] { runtime.Reopen("B"); });
  EXPECT_EQ(world.sounds.events.back(), "B a.wav");
}

TEST_F(Stage, AnErrorInALoadHandlerComesOutAndTheFormIsNotShown) {
  onLoad["A"] = [] { raiseOverflow(); };
  EXPECT_EQ(errorOf([this] { runtime.Show("A"); }), 6);
  EXPECT_FALSE(world.isShown("A"));
}

TEST_F(Stage, AnErrorInAHandlerComesOutAndFormsThatWereLeavingAreGone) {
  runtime.Show("A");
  diary.clear();
  form("A").button.Click = [this] {
    runtime.Unload("A");
    raiseOverflow();
  };
  EXPECT_EQ(errorOf([this] { world.click("A", "button"); }), 6);
  EXPECT_EQ(diary, (Diary{"A unload visible", "A gone"}));
}

TEST_F(Stage, AFormThatIsMadeIsFreshAndKnownToNobody) {
  const std::unique_ptr<Form> made = runtime.make("A");
  EXPECT_NE(dynamic_cast<Probe*>(made.get()), nullptr);
  EXPECT_EQ(diary, Diary{});
  EXPECT_EQ(loaded(), Names{});
}

TEST_F(Stage, AFormThatNobodyOfferedIsAMistakeOfTheProgram) {
  EXPECT_THROW(runtime.Load("nieznany"), std::logic_error);
  EXPECT_THROW(std::ignore = runtime.make("nieznany"), std::logic_error);
}

TEST_F(Stage, TheTimerIsTheClocks) {
  world.clock.now = 86399.75;
  EXPECT_EQ(runtime.Timer(), 86399.75);
}

TEST_F(Stage, APictureIsLoadedByItsFileName) {
  EXPECT_EQ(runtime.LoadPicture("szczur.jpg"), "szczur.jpg");
  EXPECT_EQ(world.pictures.loaded, (std::vector<std::string>{"szczur.jpg"}));
}

TEST_F(Stage, AnEmptyNameIsNoPictureAndLoadsNothing) {
  EXPECT_EQ(runtime.LoadPicture(""), "");
  EXPECT_TRUE(world.pictures.loaded.empty());
}

TEST_F(Stage, AMissingOrBrokenPictureIsAnError) {
  world.pictures.missing.insert("brak.jpg");
  world.pictures.broken.insert("zly.jpg");
  EXPECT_EQ(errorOf([this] { runtime.LoadPicture("brak.jpg"); }), 53);
  EXPECT_EQ(errorOf([this] { runtime.LoadPicture("zly.jpg"); }), 481);
}

TEST_F(Stage, AFileOpenedForInputIsReadFromTheStoreUnderItsName) {
  world.files.contents["plik.txt"] = "32768\r\n";
  EXPECT_EQ(errorTextOf([this] { runtime.OpenForInput("plik.txt").integer("liczba"); }),
            "Błąd wykonania 6: Przepełnienie\nPlik: plik.txt\nWiersz: 1\nPole: liczba");
  EXPECT_EQ(errorOf([this] { runtime.OpenForInput("brak.txt"); }), 53);
}

TEST_F(Stage, AFileOpenedForOutputIsReplaced) {
  world.files.contents["plik.txt"] = "stare";
  ItemWriter out = runtime.OpenForOutput("plik.txt");
  out.string("nowe");
  out.close();
  EXPECT_EQ(world.files.contents.at("plik.txt"), "nowe\r\n");
}

}  // namespace
}  // namespace brolgan::test
