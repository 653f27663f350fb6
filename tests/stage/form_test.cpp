// The table of a form's controls.
#include "flow/stage/form.h"

#include <gtest/gtest.h>

#include <stdexcept>

#include "tests/stage/probe_form.h"
#include "tests/support/world.h"

namespace brolgan::test {
namespace {

class FormTest : public testing::Test {
 protected:
  void SetUp() override { form.Visible = true; }

  [[nodiscard]] bool reachable(const std::string& name) { return isReachable(form.controls().find(name)); }

  World world;
  Diary diary;
  Probe form{world.runtime, "A", diary};
};

TEST_F(FormTest, AControlOfAnArrayIsNamedWithItsIndex) {
  EXPECT_EQ(form.controls().find("button").fullName(), "button");
  EXPECT_EQ(form.controls().find("option(2)").fullName(), "option(2)");
}

TEST_F(FormTest, TheTableLeadsToTheControlsThemselves) {
  EXPECT_EQ(std::get<CommandButton*>(form.controls().find("button").control), &form.button);
  EXPECT_EQ(std::get<OptionButton*>(form.controls().find("option(1)").control), &form.options[1]);
}

TEST_F(FormTest, AControlThatIsNotThereIsRefused) {
  EXPECT_THROW(static_cast<void>(form.controls().find("option")), std::out_of_range);
  EXPECT_THROW(static_cast<void>(form.controls().find("option(3)")), std::out_of_range);
  EXPECT_THROW(static_cast<void>(form.controls().find("")), std::out_of_range);
}

TEST_F(FormTest, TheTableIsListedOnceAndKeepsItsOrder) {
  ASSERT_EQ(form.controls().entries().size(), 15U);
  const auto& entries = form.controls().entries();
  ASSERT_EQ(entries.size(), 15U);
  EXPECT_EQ(entries.front().fullName(), "label");
  EXPECT_EQ(entries[4].fullName(), "option(0)");
  EXPECT_EQ(entries.back().fullName(), "player");
}

TEST_F(FormTest, AMemberMayBeAddedByItself) {
  ControlTable table;
  table.addMember("PLUS", 7, form.button, &form.frame);
  EXPECT_EQ(table.find("PLUS(7)").index, 7);
  EXPECT_EQ(table.find("PLUS(7)").frame, &form.frame);
}

TEST_F(FormTest, AVisibleEnabledControlIsReachable) {
  for (const char* const name :
       {"label", "button", "box", "option(0)", "combo", "list", "framed", "picture", "player"}) {
    EXPECT_TRUE(reachable(name)) << name;
  }
}

TEST_F(FormTest, AHiddenControlIsNotReachable) {
  form.button.Visible = false;
  form.box.Visible = false;
  form.label.Visible = false;
  for (const char* const name : {"button", "box", "label"}) EXPECT_FALSE(reachable(name)) << name;
}

TEST_F(FormTest, ADisabledControlIsNotReachable) {
  form.button.Enabled = false;
  form.box.Enabled = false;
  form.label.Enabled = false;
  for (const char* const name : {"button", "box", "label"}) EXPECT_FALSE(reachable(name)) << name;
}

TEST_F(FormTest, NothingOnAHiddenFormIsReachable) {
  form.Visible = false;
  for (const char* const name : {"label", "button", "box", "combo", "framed"}) EXPECT_FALSE(reachable(name)) << name;
}

TEST_F(FormTest, NothingInAHiddenFrameIsReachableAndAllOutsideIs) {
  form.frame.Visible = false;
  for (const char* const name : {"framed", "framedBox", "framedCombo", "frame"}) EXPECT_FALSE(reachable(name)) << name;
  EXPECT_TRUE(reachable("button"));
  form.frame.Visible = true;
  EXPECT_TRUE(reachable("framed"));
}

}  // namespace
}  // namespace brolgan::test
