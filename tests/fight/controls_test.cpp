// The controls of the fight as they are designed, before anything is loaded.
#include <cctype>
#include <set>
#include <type_traits>

#include "fight/fight.h"
#include "tests/fight/fixture.h"

namespace brolgan::test {
namespace {

struct Designed {
  const char* name;
  const char* kind;
  const char* caption = "";
  bool visible = true;
  bool enabled = true;
  const char* frame = "";

  friend std::ostream& operator<<(std::ostream& out, const Designed& control) { return out << control.name; }
};

const std::vector<Designed> kControls = {
    {"Heroshow", "button"},
    {"Bron", "drop-down list"},
    {"Atak", "button", "Atakuj !"},
    {"Czar", "drop-down list"},
    {"mana", "text box", "0", true, false},
    {"Rzuc", "button", "Rzuć"},
    {"Przedmiot", "drop-down list"},
    {"Uzyj", "button", "Użyj"},
    {"NastTura", "button", "Następna Tura"},
    {"FZad", "frame", "", false},
    {"Picture2", "picture box", "", true, true, "FZad"},
    {"Label4", "label", "Zadałeś :", true, true, "FZad"},
    {"IleZad", "label", "", true, true, "FZad"},
    {"OpisZad", "label", "", true, true, "FZad"},
    {"CloseZad", "button", "", true, true, "FZad"},
    {"FDamage", "frame", "DAMAGE!", false},
    {"Picture1", "picture box", "", true, true, "FDamage"},
    {"Label3", "label", "Otrzymałeś :", true, true, "FDamage"},
    {"IleDMG", "label", "", true, true, "FDamage"},
    {"OpisDMG", "label", "", true, true, "FDamage"},
    {"CloseDMG", "button", "", true, true, "FDamage"},
    {"Uwaga", "label", "", false},
    {"Potwór", "picture box"},
    {"LIle", "label", "1"},
    {"Odl", "label", "DALEKA"},
    {"Label1", "label", "Odległość :"},
    {"Pstat(0)", "label", "0"},
    {"Pstat(1)", "label", "0"},
    {"Pstat(2)", "label", "0"},
    {"Pstat(3)", "label", ""},
    {"Mstat(0)", "label", "0"},
    {"Mstat(1)", "label", "0"},
    {"Mstat(2)", "label", "0"},
    {"Mstat(3)", "label", ""},
    {"Label2(0)", "label", "Twoje statystyki:"},
    {"Label2(1)", "label", "Wytrzymałość"},
    {"Label2(2)", "label", "Pancerz"},
    {"Label2(3)", "label", "Punkty Magii"},
    {"Label2(4)", "label", "DAMAGE :"},
    {"Label2(5)", "label", "Statystyki Potwora:"},
    {"Label2(6)", "label", "Wytrzymałość"},
    {"Label2(7)", "label", "Pancerz"},
    {"Label2(8)", "label", "Szybkość"},
    {"Label2(9)", "label", "DAMAGE :"},
    {"SFX", "media player"},
};

std::string kindOf(const ControlPointer& control) {
  const std::vector<std::string> kinds = {"label",       "text box",       "button",   "option button", "frame",
                                          "picture box", "drop-down list", "list box", "media player"};
  return kinds.at(control.index());
}

std::string captionOf(const ControlPointer& pointer) {
  return std::visit(
      [](auto* control) -> std::string {
        if constexpr (requires { control->Caption; }) return control->Caption;
        if constexpr (std::is_same_v<decltype(control), TextBox*>) return control->Text;
        return "";
      },
      pointer);
}

bool isVisible(const ControlPointer& pointer) {
  return std::visit(
      [](auto* control) {
        if constexpr (requires { control->Visible; }) return control->Visible;
        return true;
      },
      pointer);
}

bool isEnabled(const ControlPointer& pointer) {
  return std::visit(
      [](auto* control) {
        if constexpr (requires { control->Enabled; }) return control->Enabled;
        return true;
      },
      pointer);
}

class FightDesign : public ::testing::TestWithParam<Designed> {
 protected:
  World world;
  Fight form{world.runtime, world.scripted};
};

TEST_P(FightDesign, GivesTheControlItsKindCaptionAndState) {
  const ControlEntry& entry = form.controls().find(GetParam().name);

  EXPECT_EQ(kindOf(entry.control), GetParam().kind);
  EXPECT_EQ(captionOf(entry.control), GetParam().caption);
  EXPECT_EQ(isVisible(entry.control), GetParam().visible);
  EXPECT_EQ(isEnabled(entry.control), GetParam().enabled);
}

TEST_P(FightDesign, LaysTheControlInItsFrame) {
  const std::string frame = GetParam().frame;
  const Frame* const expected = frame.empty() ? nullptr : std::get<Frame*>(form.controls().find(frame).control);

  EXPECT_EQ(form.controls().find(GetParam().name).frame, expected);
}

INSTANTIATE_TEST_SUITE_P(Controls, FightDesign, ::testing::ValuesIn(kControls), [](const auto& row) {
  std::string name;
  for (const char letter : std::string(row.param.name)) {
    if (std::isalnum(static_cast<unsigned char>(letter)) != 0) name += letter;
  }
  return name;
});

TEST(FightScreen, HasTheseControlsAndNoOthers) {
  World world;
  Fight form(world.runtime, world.scripted);
  std::set<std::string> expected;
  for (const Designed& control : kControls) expected.insert(control.name);

  std::set<std::string> found;
  for (const ControlEntry& entry : form.controls().entries()) found.insert(entry.fullName());

  EXPECT_EQ(found, expected);
  EXPECT_EQ(form.controls().entries().size(), kControls.size());
}

TEST(FightScreen, IsTitledWalka) {
  World world;

  EXPECT_EQ(Fight(world.runtime, world.scripted).Caption, "WALKA !");
}

}  // namespace
}  // namespace brolgan::test
