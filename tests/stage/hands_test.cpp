// What a person's hands can do.
#include "flow/stage/hands.h"

#include <gtest/gtest.h>

#include "tests/stage/probe_form.h"
#include "tests/support/world.h"

namespace brolgan::test {
namespace {

class Hands : public testing::Test {
 protected:
  void SetUp() override {
    world.runtime.offer("A", [this](Runtime& runtime) { return std::make_unique<Probe>(runtime, "A", diary); });
    world.runtime.Show("A");
    diary.clear();
  }

  Probe& form() { return dynamic_cast<Probe&>(world.form("A")); }

  Diary diary;
  World world;
};

TEST_F(Hands, ClickALabelAButtonATextBoxAndAnOptionButton) {
  for (const char* const name : {"label", "button", "box", "option(0)", "framed"}) {
    EXPECT_TRUE(world.click("A", name)) << name;
  }
  EXPECT_EQ(diary, (Diary{"A label", "A button", "A box", "A option", "A framed"}));
}

TEST_F(Hands, ClickingAControlWithoutAHandlerDoesNothing) {
  form().button.Click = nullptr;
  EXPECT_TRUE(world.click("A", "button"));
  EXPECT_TRUE(diary.empty());
}

TEST_F(Hands, CannotClickWhatIsHidden) {
  form().button.Visible = false;
  form().label.Visible = false;
  EXPECT_FALSE(world.click("A", "button"));
  EXPECT_FALSE(world.click("A", "label"));
  EXPECT_TRUE(diary.empty());
}

TEST_F(Hands, CannotClickWhatIsDisabled) {
  form().button.Enabled = false;
  form().label.Enabled = false;
  EXPECT_FALSE(world.click("A", "button"));
  EXPECT_FALSE(world.click("A", "label"));
  EXPECT_TRUE(diary.empty());
}

TEST_F(Hands, CannotReachIntoAHiddenFrame) {
  form().frame.Visible = false;
  EXPECT_FALSE(world.click("A", "framed"));
  EXPECT_FALSE(world.type("A", "framedBox", "nowy"));
  EXPECT_FALSE(world.selectRow("A", "framedCombo", 0));
  EXPECT_EQ(form().framedBox.Text, "");
  EXPECT_EQ(form().framedCombo.ListIndex(), -1);
  EXPECT_TRUE(diary.empty());
}

TEST_F(Hands, CannotClickOnAHiddenForm) {
  world.runtime.Hide("A");
  EXPECT_FALSE(world.click("A", "button"));
  EXPECT_TRUE(diary.empty());
}

TEST_F(Hands, CannotSelectOnAHiddenForm) {
  world.runtime.Hide("A");
  EXPECT_FALSE(world.selectRow("A", "combo", 1));
  EXPECT_EQ(form().combo.ListIndex(), -1);
  EXPECT_TRUE(diary.empty());
}

TEST_F(Hands, CannotTypeOnAHiddenForm) {
  world.runtime.Hide("A");
  EXPECT_FALSE(world.type("A", "box", "nowy"));
  EXPECT_EQ(form().box.Text, "tekst");
}

TEST_F(Hands, ClickingAnOptionButtonSelectsItAloneAmongThoseOfItsName) {
  form().other.Value = true;
  world.click("A", "option(0)");
  world.click("A", "option(2)");
  EXPECT_FALSE(form().options[0].Value);
  EXPECT_FALSE(form().options[1].Value);
  EXPECT_TRUE(form().options[2].Value);
  EXPECT_TRUE(form().other.Value);
}

TEST_F(Hands, AnOptionButtonIsSelectedBeforeItsHandlerRuns) {
  bool selected = false;
  form().options[1].Click = [&] { selected = form().options[1].Value; };
  world.click("A", "option(1)");
  EXPECT_TRUE(selected);
}

TEST_F(Hands, SelectARowOfAListAndRaiseItsClick) {
  EXPECT_TRUE(world.select("A", "combo", "b"));
  EXPECT_TRUE(world.select("A", "list", "a"));
  EXPECT_EQ(form().combo.Text(), "b");
  EXPECT_EQ(form().list.Text(), "a");
  EXPECT_EQ(diary, (Diary{"A combo", "A list"}));
}

TEST_F(Hands, CannotSelectOnWhatIsNoList) {
  for (const char* const name : {"label", "button", "box", "option(0)", "frame"}) {
    EXPECT_FALSE(world.selectRow("A", name, 0)) << name;
  }
  EXPECT_TRUE(diary.empty());
}

TEST_F(Hands, CannotSelectARowBeyondTheList) {
  for (const char* const name : {"combo", "list"}) {
    const int count = static_cast<int>(world.rows("A", name).size());
    EXPECT_TRUE(world.selectRow("A", name, count - 1)) << name;
    diary.clear();
    EXPECT_FALSE(world.selectRow("A", name, count)) << name;
    EXPECT_FALSE(world.selectRow("A", name, count + 1)) << name;
    EXPECT_TRUE(diary.empty()) << name;
  }
  EXPECT_EQ(form().combo.ListIndex(), form().combo.ListCount() - 1);
  EXPECT_EQ(form().list.ListIndex(), form().list.ListCount() - 1);
}

TEST_F(Hands, PuttingAHandOnAListWithoutChoosingARowRaisesNothing) {
  world.click("A", "combo");
  world.click("A", "list");
  EXPECT_TRUE(diary.empty());
}

TEST_F(Hands, TypingReplacesTheText) {
  EXPECT_TRUE(world.type("A", "box", "nowy"));
  EXPECT_EQ(form().box.Text, "nowy");
  EXPECT_TRUE(diary.empty());
}

TEST_F(Hands, CannotTypeIntoALockedHiddenOrDisabledTextBox) {
  form().box.Locked = true;
  EXPECT_FALSE(world.type("A", "box", "nowy"));
  form().box.Locked = false;
  form().box.Visible = false;
  EXPECT_FALSE(world.type("A", "box", "nowy"));
  form().box.Visible = true;
  form().box.Enabled = false;
  EXPECT_FALSE(world.type("A", "box", "nowy"));
  EXPECT_EQ(form().box.Text, "tekst");
}

TEST_F(Hands, ALockedTextBoxCanStillBeClicked) {
  form().box.Locked = true;
  EXPECT_TRUE(world.click("A", "box"));
  EXPECT_EQ(diary, (Diary{"A box"}));
}

TEST_F(Hands, CannotTypeIntoAListOrALabel) {
  EXPECT_FALSE(world.type("A", "combo", "nowy"));
  EXPECT_FALSE(world.type("A", "label", "nowy"));
  EXPECT_EQ(form().label.Caption, "napis");
}

TEST_F(Hands, ClosingAWindowUnloadsItsForm) {
  closeWindow(world.runtime, "A");
  EXPECT_EQ(diary, (Diary{"A unload visible", "A gone"}));
  EXPECT_FALSE(world.isOpen("A"));
}

TEST_F(Hands, ClosingAWindowThatIsNotThereIsHarmless) {
  closeWindow(world.runtime, "A");
  diary.clear();
  closeWindow(world.runtime, "A");
  EXPECT_TRUE(diary.empty());
}

TEST_F(Hands, AfterTheEndNoHandlerRuns) {
  world.runtime.End();
  world.click("A", "button");
  world.selectRow("A", "combo", 1);
  EXPECT_TRUE(diary.empty());
}

}  // namespace
}  // namespace brolgan::test
