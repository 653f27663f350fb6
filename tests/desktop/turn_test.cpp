// A whole turn, from the title to the next player's shop, done at the windows. What comes out in
// files and sounds is what comes out without a window.
#include "tests/desktop/turn.h"

#include <gtest/gtest.h>

#include <QRadioButton>
#include <optional>

namespace brolgan::test {
namespace {

using Names = std::vector<std::string>;

// The turn played without a face.
struct Twin {
  Twin() {
    setTurn(world);
    world.runtime.Show("Starter");
    for (const Deed& deed : wholeTurn()) doByHand(world, deed);
  }
  World world;
};

// What a control says, if it says anything.
std::optional<std::string> wordsOf(const ControlEntry& entry) {
  return std::visit(
      [](const auto* control) -> std::optional<std::string> {
        if constexpr (requires { control->ListIndex(); }) {
          return control->Text();
        } else if constexpr (requires { std::string(control->Text); }) {
          return control->Text;
        } else if constexpr (requires { control->Caption; }) {
          return control->Caption;
        }
        return std::nullopt;
      },
      entry.control);
}

void expectWords(const Stage& stage, const std::string& form, const ControlEntry& entry) {
  const auto words = wordsOf(entry);
  if (!words || std::holds_alternative<Frame*>(entry.control)) return;
  EXPECT_EQ(stage.text(form, entry.fullName()), *words) << form << "." << entry.fullName();
  if (const auto* const* const option = std::get_if<OptionButton*>(&entry.control)) {
    EXPECT_EQ(stage.get<QRadioButton>(form, entry.fullName()).isChecked(), (*option)->Value) << entry.fullName();
  }
}

// All open windows say what their forms say.
void expectMirrored(const Stage& stage) {
  for (const std::string& form : stage.runtime.loaded()) {
    Form& shown = *stage.runtime.find(form);
    ASSERT_EQ(stage.isShown(form), shown.Visible) << form;
    if (!shown.Visible) continue;
    for (const ControlEntry& entry : shown.controls().entries()) expectWords(stage, form, entry);
  }
}

void play(Stage& stage, void (*doing)(Stage&, const Deed&)) {
  setTurn(stage.world);
  stage.start();
  for (const Deed& deed : wholeTurn()) {
    SCOPED_TRACE(deed.form + "." + deed.control + " " + deed.with);
    doing(stage, deed);
    ASSERT_EQ(stage.errors, Names());
    expectMirrored(stage);
    if (testing::Test::HasFailure()) return;
  }
}

void expectSameOutcome(const Stage& stage) {
  const Twin twin;
  EXPECT_EQ(stage.world.unusedRolls(), 0U);
  for (const auto& [name, bytes] : twin.world.files.contents) {
    ASSERT_TRUE(stage.world.exists(name)) << name;
    EXPECT_EQ(stage.world.files.contents.at(name), bytes) << name;
  }
  EXPECT_EQ(stage.world.files.contents.size(), twin.world.files.contents.size());
  EXPECT_EQ(stage.world.sounds.events, twin.world.sounds.events);
}

TEST(Turn, PlaysWithTheMouseToTheNextPlayersShop) {
  Stage stage;
  play(stage, doByMouse);
  expectSameOutcome(stage);
  EXPECT_EQ(stage.world.lines("gra.cfg"), (Names{" 2 ", "hero2.boh", "hero1.boh"}));
  EXPECT_EQ(stage.world.lines("sklep.cfg"), (Names{"hero2.boh", " 3 "}));
  EXPECT_EQ(stage.world.lines("makehro.cfg"), (Names{"hero2.boh", "22"}));
  EXPECT_EQ(stage.world.lines("pref.cfg"), (Names{"hero1.boh", " 1 ", " 5 ", "monsters.cfg"}));
  EXPECT_EQ(stage.world.line("hero1.boh", 1), "Żółć Łódzka");
  EXPECT_EQ(stage.world.line("hero1.boh", 3), "Wojownik");
  EXPECT_EQ(stage.world.line("hero1.boh", 113), " 2 ");
  EXPECT_EQ(stage.world.line("hero1.boh", 114), "BullShots");
  EXPECT_EQ(stage.world.line("hero1.boh", 116), "Tasak");
  EXPECT_EQ(stage.world.line("hero1.boh", 118), " 1 ");
  EXPECT_EQ(stage.world.line("hero2.boh", 3), "Wiedźmin");
}

TEST(Turn, ShowsTheNextPlayersShopAtTheEnd) {
  Stage stage;
  play(stage, doByMouse);
  EXPECT_TRUE(stage.isShown("CTsklep"));
  EXPECT_TRUE(stage.isShown("Brolgan"));
  EXPECT_FALSE(stage.isShown("Fight"));
  EXPECT_EQ(stage.text("CTsklep", "Imie"), "Druga");
  EXPECT_EQ(stage.text("CTsklep", "Ile_jeszcze"), "22");
  EXPECT_FALSE(stage.isVisible("CTsklep", "fstat"));
  EXPECT_TRUE(stage.isVisible("CTsklep", "fczar"));
  EXPECT_FALSE(stage.isVisible("CTsklep", "fbron"));
}

TEST(Turn, PlaysWithTheKeyboardAlone) {
  Stage stage;
  play(stage, doByKeyboard);
  expectSameOutcome(stage);
  EXPECT_TRUE(stage.isShown("CTsklep"));
}

// What the player reads on the way.
TEST(Turn, ReportsTheFightAsItGoes) {
  Stage stage;
  setTurn(stage.world);
  stage.start();
  Names seen;
  for (const Deed& deed : wholeTurn()) {
    doByMouse(stage, deed);
    if (deed.form != "Fight" || deed.doing != Doing::click || !stage.isShown("Fight")) continue;
    for (const auto& [frame, figures] : {std::pair("FZad", "IleZad"), std::pair("FDamage", "IleDMG")}) {
      if (stage.isVisible("Fight", frame)) seen.push_back(stage.text("Fight", figures));
    }
  }
  EXPECT_EQ(seen, (Names{" 7 ", "3 3 4 ", " 22 wszystkim!"}));
  EXPECT_EQ(stage.world.sounds.played(),
            (Names{"guit\\hard2.wav", "specammo.wav", "huk.wav", "huk.wav", "czarbul.wav"}));
}

}  // namespace
}  // namespace brolgan::test
