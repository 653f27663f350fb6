// The controls as plain values.
#include "flow/stage/controls.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tests/support/world.h"

namespace brolgan::test {
namespace {

class RowsTest : public testing::Test {
 protected:
  void SetUp() override {
    for (const char* const name : {"Nóż", "Laska", "Miecz"}) box.AddItem(name);
    box.Click = [this] { clicks.push_back(box.Text()); };
  }

  ComboBox box;
  std::vector<std::string> clicks;
};

TEST_F(RowsTest, KeepTheOrderInWhichTheyWereAdded) {
  EXPECT_EQ(box.ListCount(), 3);
  EXPECT_EQ(box.List(0), "Nóż");
  EXPECT_EQ(box.List(2), "Miecz");
}

TEST_F(RowsTest, WithoutASelectionTheTextIsEmpty) {
  EXPECT_EQ(box.ListIndex(), -1);
  EXPECT_EQ(box.Text(), "");
}

TEST_F(RowsTest, SelectingARowRaisesTheClickWithTheRowSelected) {
  box.ListIndex(1);
  EXPECT_EQ(clicks, (std::vector<std::string>{"Laska"}));
  EXPECT_EQ(box.ListIndex(), 1);
}

TEST_F(RowsTest, SelectingTheSelectedRowRaisesTheClickAgain) {
  box.ListIndex(1);
  box.ListIndex(1);
  EXPECT_EQ(clicks.size(), 2U);
}

TEST_F(RowsTest, TakingTheSelectionAwayRaisesTheClickToo) {
  box.ListIndex(1);
  box.ListIndex(-1);
  EXPECT_EQ(clicks, (std::vector<std::string>{"Laska", ""}));
  EXPECT_EQ(box.Text(), "");
}

TEST_F(RowsTest, RemovingTheSelectedRowTakesTheSelectionAwayWithoutAClick) {
  box.ListIndex(1);
  clicks.clear();
  box.RemoveItem(1);
  EXPECT_EQ(box.ListIndex(), -1);
  EXPECT_EQ(box.Text(), "");
  EXPECT_EQ(box.ListCount(), 2);
  EXPECT_TRUE(clicks.empty());
}

TEST_F(RowsTest, RemovingARowAboveMovesTheSelectionUpWithItsText) {
  box.ListIndex(2);
  clicks.clear();
  box.RemoveItem(0);
  EXPECT_EQ(box.ListIndex(), 1);
  EXPECT_EQ(box.Text(), "Miecz");
  EXPECT_TRUE(clicks.empty());
}

TEST_F(RowsTest, RemovingARowBelowLeavesTheSelection) {
  box.ListIndex(0);
  box.RemoveItem(2);
  EXPECT_EQ(box.ListIndex(), 0);
  EXPECT_EQ(box.Text(), "Nóż");
}

TEST_F(RowsTest, RemovingTheFirstRowAgainAndAgainEmptiesTheList) {
  box.ListIndex(2);
  while (box.ListCount() > 0) box.RemoveItem(0);
  EXPECT_EQ(box.ListIndex(), -1);
  EXPECT_EQ(box.Text(), "");
}

TEST_F(RowsTest, ClearingTakesRowsAndSelectionWithoutAClick) {
  box.ListIndex(2);
  clicks.clear();
  box.Clear();
  EXPECT_EQ(box.ListCount(), 0);
  EXPECT_EQ(box.ListIndex(), -1);
  EXPECT_TRUE(clicks.empty());
}

TEST_F(RowsTest, RowsOfOneNameAreTwoRows) {
  box.AddItem("Nóż");
  EXPECT_EQ(box.ListCount(), 4);
  box.ListIndex(3);
  EXPECT_EQ(box.ListIndex(), 3);
  EXPECT_EQ(box.Text(), "Nóż");
}

TEST(Rows, SelectingWithoutAHandlerOnlySelects) {
  ListBox list;
  list.AddItem("a");
  list.ListIndex(0);
  EXPECT_EQ(list.Text(), "a");
}

TEST(Controls, AreVisibleEnabledAndEmptyUnlessTheDesignSaysOtherwise) {
  const Label label;
  EXPECT_TRUE(label.Visible && label.Enabled && label.Caption.empty());
  EXPECT_EQ(label.ForeColor, Colour::buttonText);
  const TextBox box;
  EXPECT_TRUE(box.Visible && box.Enabled && box.Text.empty() && !box.Locked);
  const CommandButton button;
  EXPECT_TRUE(button.Visible && button.Enabled);
  EXPECT_FALSE(OptionButton().Value);
  EXPECT_TRUE(Frame().Visible);
  EXPECT_TRUE(PictureBox().Visible);
}

TEST(MediaPlayer, PlaysTheFileSetUnderItsOwnName) {
  RecordingSounds sounds;
  MediaPlayer player(sounds, "SFX");
  player.FileName = "czar.wav";
  EXPECT_TRUE(sounds.events.empty());
  player.Play();
  EXPECT_EQ(sounds.events, (std::vector<std::string>{"SFX czar.wav"}));
}

TEST(MediaPlayer, IsSilencedWhenItGoes) {
  RecordingSounds sounds;
  { MediaPlayer(sounds, "Music1").Play(); }
  EXPECT_EQ(sounds.events.back(), "Music1 stop");
}

}  // namespace
}  // namespace brolgan::test
