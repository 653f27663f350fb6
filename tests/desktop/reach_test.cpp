// What cannot be reached: closed departments, goods that are not sold, boxes that are locked.
#include <gtest/gtest.h>

#include <QTest>
#include <algorithm>

#include "tests/desktop/expected.h"
#include "tests/desktop/scenes.h"

namespace brolgan::test {
namespace {

using Names = std::vector<std::string>;

// All that a form holds, to see that nothing has changed.
std::vector<std::string> stateOf(const Stage& stage, const std::string& form) {
  std::vector<std::string> state;
  const auto colourOf = [&](const std::string& name) { return stage.colour(form, name).name().toStdString(); };
  for (const ControlEntry& entry : stage.runtime.find(form)->controls().entries()) {
    if (std::holds_alternative<MediaPlayer*>(entry.control)) continue;
    const std::string name = entry.fullName();
    state.push_back(name + "=" + stage.text(form, name) + colourOf(name));
  }
  return state;
}

// The controls of a frame.
Names controlsIn(const Stage& stage, const std::string& form, const std::string& frame) {
  const ControlTable& table = stage.runtime.find(form)->controls();
  const Frame* const holder = std::get<Frame*>(table.find(frame).control);
  Names names;
  for (const ControlEntry& entry : table.entries()) {
    if (entry.frame == holder) names.push_back(entry.fullName());
  }
  return names;
}

// The shop has been open in all departments, so that each control had its place; then it opens
// again in that mode.
void openShopAgain(Stage& stage, int mode) {
  setShop(stage.world, richHero(), 1);
  stage.open({"CTsklep"});
  setShop(stage.world, richHero(), mode);
  stage.open({"CTsklep"});
}

const std::vector<Names> kClosed = {{}, {"fbron", "fczar"}, {"fbron", "fstat"}, {"fstat", "fczar"}};

TEST(Reach, ClosedDepartmentsAreDeafToTheMouse) {
  for (int mode = 2; mode <= 4; ++mode) {
    Stage stage;
    openShopAgain(stage, mode);
    const auto before = stateOf(stage, "CTsklep");
    int clicked = 0;
    for (const std::string& frame : kClosed[static_cast<std::size_t>(mode - 1)]) {
      for (const std::string& name : controlsIn(stage, "CTsklep", frame)) {
        EXPECT_FALSE(stage.isVisible("CTsklep", name)) << name;
        stage.click("CTsklep", name);
        ++clicked;
      }
    }
    EXPECT_GE(clicked, 60);
    EXPECT_EQ(stateOf(stage, "CTsklep"), before) << mode;
  }
}

TEST(Reach, ClosedDepartmentsAreOutOfTheKeyboardsWay) {
  for (int mode = 2; mode <= 4; ++mode) {
    Stage stage;
    openShopAgain(stage, mode);
    for (const std::string& frame : kClosed[static_cast<std::size_t>(mode - 1)]) {
      const Names closed = controlsIn(stage, "CTsklep", frame);
      for (int i = 0; i < 60; ++i) {
        stage.press("CTsklep", Qt::Key_Tab);
        EXPECT_EQ(std::count(closed.begin(), closed.end(), stage.focus("CTsklep")), 0) << stage.focus("CTsklep");
      }
    }
  }
}

TEST(Reach, FocusDoesNotStayInADepartmentThatHasClosed) {
  Stage stage;
  setShop(stage.world, richHero(), 1);
  stage.open({"CTsklep"});
  ASSERT_TRUE(stage.tabTo("CTsklep", "Kupww"));
  setShop(stage.world, richHero(), 2);
  stage.open({"CTsklep"});
  EXPECT_NE(stage.focus("CTsklep"), "Kupww");
  EXPECT_TRUE(stage.isVisible("CTsklep", stage.focus("CTsklep"))) << stage.focus("CTsklep");
}

void expectNotForSale(Stage& stage, const std::string& form) {
  const auto before = stateOf(stage, form);
  for (const char* name : {"Czarn(4)", "Czarn(5)", "Czarn(8)", "Spec(1)", "Spec(3)"}) {
    stage.click(form, name);
    QTest::mouseClick(&stage.at(form, name), Qt::LeftButton);
    EXPECT_FALSE(stage.tabTo(form, name)) << name;
    EXPECT_EQ(stateOf(stage, form), before) << name;
  }
}

TEST(Reach, GoodsNotForSaleDoNothingAtCreation) {
  Stage stage;
  setCreation(stage.world, 100);
  stage.open({"CTmhero"});
  expectNotForSale(stage, "CTmhero");
}

TEST(Reach, GoodsNotForSaleDoNothingInTheShop) {
  Stage stage;
  setShop(stage.world, richHero());
  stage.open({"CTsklep"});
  expectNotForSale(stage, "CTsklep");
}

TEST(Reach, NameInTheShopIsLocked) {
  Stage stage;
  setShop(stage.world, richHero());
  stage.open({"CTsklep"});
  EXPECT_FALSE(stage.tabTo("CTsklep", "Imie"));
  stage.click("CTsklep", "Imie");
  stage.typeKeys("CTsklep", "Inny");
  stage.press("CTsklep", Qt::Key_Backspace);
  stage.press("CTsklep", Qt::Key_V, Qt::ControlModifier);
  EXPECT_EQ(stage.text("CTsklep", "Imie"), "Kosiarz");
  EXPECT_EQ(std::get<TextBox*>(stage.runtime.find("CTsklep")->controls().find("Imie").control)->Text, "Kosiarz");
}

TEST(Reach, ManaIsTypedForBullShotsAlone) {
  Stage stage;
  setFight(stage.world, richHero());
  stage.open({"Fight"});
  for (const char* spell : {"Leczenie", "Damage!", "BOOM!", "Klasa III A", "Kaczy Fart", "Czar Leczniczy"}) {
    stage.choose("Fight", "Czar", spell);
    const std::string cost = stage.text("Fight", "mana");
    stage.click("Fight", "mana");
    stage.typeKeys("Fight", "9");
    EXPECT_EQ(stage.text("Fight", "mana"), cost) << spell;
    EXPECT_FALSE(stage.tabTo("Fight", "mana")) << spell;
  }
  stage.choose("Fight", "Czar", "BullShots");
  stage.write("Fight", "mana", "9");
  EXPECT_EQ(stage.text("Fight", "mana"), "9");
}

TEST(Reach, HiddenSaveOfTheShopCannotBePressed) {
  Stage stage;
  setShop(stage.world, richHero());
  stage.open({"CTsklep"});
  QTest::mouseClick(&stage.at("CTsklep", "Save"), Qt::LeftButton);
  EXPECT_FALSE(stage.tabTo("CTsklep", "Save"));
  EXPECT_TRUE(stage.isShown("CTsklep"));
  EXPECT_FALSE(stage.world.exists("pref.cfg"));
}

TEST(Reach, ListsOfComboBoxesTakeNoTyping) {
  Stage stage;
  setFight(stage.world, richHero());
  stage.open({"Fight"});
  ASSERT_TRUE(stage.tabTo("Fight", "Bron"));
  stage.typeKeys("Fight", "xyz");
  EXPECT_EQ(stage.text("Fight", "Bron"), "");
  EXPECT_EQ(stage.rows("Fight", "Bron").size(), 4U);
}

TEST(Reach, TheOtherMouseButtonsDoNothing) {
  Stage stage;
  setCreation(stage.world, 12);
  stage.open({"CTmhero"});
  const auto before = stateOf(stage, "CTmhero");
  for (const char* name : {"PLUS(0)", "Czarn(0)", "Spec(0)", "Klasa(5)", "Kupww"}) {
    const QWidget& widget = stage.at("CTmhero", name);
    QTest::mouseClick(stage.window("CTmhero").windowHandle(), Qt::MiddleButton, {},
                      widget.mapTo(&stage.window("CTmhero"), QPoint(20, widget.height() / 2)));
  }
  EXPECT_EQ(stateOf(stage, "CTmhero"), before);
}

}  // namespace
}  // namespace brolgan::test
