// How the controls of a screen look, as lists that a test can compare: one line a control.
#pragma once

#include <algorithm>
#include <map>
#include <string>
#include <variant>
#include <vector>

#include "flow/stage/form.h"
#include "tests/departments/lines.h"

namespace brolgan::test {

struct KindOf {
  std::string operator()(const Label*) const { return "label"; }
  std::string operator()(const TextBox*) const { return "text"; }
  std::string operator()(const CommandButton*) const { return "button"; }
  std::string operator()(const OptionButton*) const { return "option"; }
  std::string operator()(const Frame*) const { return "frame"; }
  std::string operator()(const PictureBox*) const { return "picture"; }
  std::string operator()(const ComboBox*) const { return "combo"; }
  std::string operator()(const ListBox*) const { return "list"; }
  std::string operator()(const MediaPlayer*) const { return "player"; }
};

struct TextOf {
  template <class Control>
  std::string operator()(const Control* control) const {
    if constexpr (requires { control->Caption; }) {
      return control->Caption;
    } else if constexpr (requires { control->Locked; }) {
      return control->Text;
    } else {
      return "";
    }
  }
};

inline std::string frameOf(const ControlTable& table, const ControlEntry& entry) {
  if (entry.frame == nullptr) return "form";
  for (const ControlEntry& other : table.entries()) {
    if (std::holds_alternative<Frame*>(other.control) && std::get<Frame*>(other.control) == entry.frame) {
      return other.name;
    }
  }
  return "unknown frame";
}

// The line of one control: where it lies, what it is, how it is called, what it says.
inline std::string look(const std::string& frame, const std::string& kind, const std::string& name,
                        const std::string& text) {
  return frame + ": " + kind + " " + name + " \"" + text + "\"";
}

inline Lines sorted(Lines all) {
  std::sort(all.begin(), all.end());
  return all;
}

inline Lines looksOf(Form& form) {
  Lines all;
  const ControlTable& table = form.controls();
  for (const ControlEntry& entry : table.entries()) {
    all.push_back(look(frameOf(table, entry), std::visit(KindOf(), entry.control), entry.fullName(),
                       std::visit(TextOf(), entry.control)));
  }
  return sorted(all);
}

// The lines of a control array, from the index first on.
inline Lines arrayLooks(const std::string& frame, const std::string& kind, const std::string& name, const Lines& texts,
                        int first = 0) {
  Lines all;
  for (const std::string& text : texts) {
    all.push_back(look(frame, kind, name + "(" + std::to_string(first++) + ")", text));
  }
  return all;
}

inline Lines missingFrom(const Lines& some, const Lines& all) {
  Lines missing;
  const Lines left = sorted(some);
  const Lines right = sorted(all);
  std::set_difference(left.begin(), left.end(), right.begin(), right.end(), std::back_inserter(missing));
  return missing;
}

// The full names of the controls for which the test on the control holds; a control that does not
// have the property asked for is passed over.
template <class Test>
Lines namesWhere(Form& form, const Test& test) {
  Lines names;
  for (const ControlEntry& entry : form.controls().entries()) {
    if (std::visit([&test](const auto* control) { return test(*control); }, entry.control)) {
      names.push_back(entry.fullName());
    }
  }
  return names;
}

inline Lines hiddenControls(Form& form) {
  return namesWhere(form, [](const auto& control) {
    if constexpr (requires { control.Visible; }) return !control.Visible;
    return false;
  });
}

inline Lines disabledControls(Form& form) {
  return namesWhere(form, [](const auto& control) {
    if constexpr (requires { control.Enabled; }) return !control.Enabled;
    return false;
  });
}

inline Lines colouredControls(Form& form, Colour colour) {
  return namesWhere(form, [colour](const auto& control) {
    if constexpr (requires { control.ForeColor; }) return control.ForeColor == colour;
    return false;
  });
}

// The tool tips by full name, those that are not empty.
inline std::map<std::string, std::string> toolTips(Form& form) {
  std::map<std::string, std::string> tips;
  for (const ControlEntry& entry : form.controls().entries()) {
    const std::string tip = std::visit(
        [](const auto* control) -> std::string {
          if constexpr (requires { control->ToolTipText; }) return control->ToolTipText;
          return "";
        },
        entry.control);
    if (!tip.empty()) tips[entry.fullName()] = tip;
  }
  return tips;
}

// The departments as both screens have them, without the headings, buttons and prices that differ.
inline Lines departmentLooks() {
  return joined({
      arrayLooks("fstat", "label", "Label5",
                 {"Wytrzymałość", "Pancerz", "Moc", "Szybkość", "Regeneracja", "Modyfikator Obrażeń", "Wcielenia"}),
      arrayLooks("fstat", "label", "stat1", {"12", "15", "18", "21", "24", "27", "30", "34", "38", "42", "46", "50"}),
      arrayLooks("fstat", "label", "stat2", {"0", "1", "2", "3", "4", "5", "6", "7", "8", "9", "10"}),
      arrayLooks("fstat", "label", "stat3", {"2", "4", "6", "8", "11", "14", "17", "20"}),
      arrayLooks("fstat", "label", "stat4", {"6", "9", "12", "16", "20", "24", "29", "34"}),
      arrayLooks("fstat", "label", "stat5", {"1", "3", "5", "7", "10"}),
      arrayLooks("fstat", "label", "stat6", {"+k4", "+k6", "+k6+2", "+2k6", "+2k6+3"}),
      arrayLooks("fstat", "label", "stat7", {"1", "2", "3", "5", "8", "12"}),
      arrayLooks("fstat", "label", "Label4", {"Rozwijanie statystyk:"}),
      arrayLooks("fstat", "button", "PLUS", repeated(6, {"+"})),
      {look("form", "frame", "fstat", ""), look("form", "frame", "fbron", ""), look("form", "frame", "fczar", ""),
       look("form", "frame", "Frame4", ""), look("form", "frame", "Frame5", ""),
       look("fbron", "label", "Label3", "Bronie"), look("fbron", "list", "LBronww", ""),
       look("fbron", "list", "Lbronss", ""), look("fbron", "label", "BWnazwa", "bron1"),
       look("fbron", "label", "BSnazwa", "bron1"), look("fbron", "label", "BWdmg", "0"),
       look("fbron", "label", "BSdmg", "0"), look("fbron", "label", "BWcena", "0"),
       look("fbron", "label", "BScena", "0"), look("fbron", "label", "BWopis", "opis można rzucać czary"),
       look("fbron", "label", "BSopis", "opis można rzucać czary"), look("fbron", "button", "Kupww", "Kup"),
       look("fbron", "button", "Kupss", "Kup")},
      arrayLooks("fbron", "label", "Label7", {"Broń do walki wręcz", "Broń strzelecka"}),
      arrayLooks("fczar", "label", "Label4", {"Czary"}, 1),
      arrayLooks("fczar", "label", "Label11", {"Nazwa", "Opis", "Cena"}),
      arrayLooks("fczar", "label", "Czarn",
                 {"Leczenie", "Damage !", "BullShots", "BOOM !", "AntyLeczenie", "Przyzwanie potwora", "Klasa III A",
                  "Kaczy Fart", "Teleportacja", "Autostart"}),
      arrayLooks("fczar", "label", "czarc", {"1", "1", "3", "4", "2", "3", "1", "3", "3", "2"}),
      arrayLooks("fczar", "label", "Label13",
                 {"za 1 PM odzyskujesz k6 wytrzymałości", "za 2 PM zadaje 3k6 jednemu wrogowi",
                  "za 2+** PM zadaje 3k6 + ** wszystkim", "za 4 PM zadaje 2k30 jednemu wrogowi",
                  "za 3 PM powstrzymuje  leczenie na k3 tury",
                  "za 1-12 PM przyzywa potwora na wybrane przec Ciebie, nie zajęte miejsce",
                  "za 2 PM  zwiększa pancerz o k8 na 2k6 r ", "za 4 PM najbliższy atak nic Ci nie robi",
                  "za 3 PM przenosisz się do 3 pól dalej", "za 3 PM zwiększa inicjatywę o +k6"}),
      {look("fczar", "label", "Label12", "Czar do rzucenia tylko na planszy")},
      arrayLooks("fczar", "label", "Label10", {"Czar do rzucenia zawsze", "Czar do rzucenia tylko podczas walki"}),
      arrayLooks("Frame4", "label", "Label4", {"Wyposażenie dodatkowe"}, 2),
      {look("Frame4", "label", "Label17", "Granat"), look("Frame4", "label", "ammo", "10 x ammo +k6")},
      arrayLooks("Frame4", "label", "wyp", {"0", "0"}),
      arrayLooks("Frame4", "button", "PLUS", {"+", "+"}, 7),
      arrayLooks("Frame4", "label", "Spec", {"Moździerz", "Pas Knura", "Zasysacz", "Szperacz"}),
  });
}

// The tool tips that both screens share.
inline std::map<std::string, std::string> departmentTips() {
  return {
      {"Label5(0)", "Wytrzymałość określa jak duże obrażenia zniesiesz, zanim zginiesz"},
      {"Label5(1)", "Pancerz określa wielkość obrażeń, które absorbuje Twoja skóra i ubiór"},
      {"Label5(2)",
       "Moc jest potrzebna do rzucania czarów. W czasie gry używa się Punktów Magii, aby rzucać zaklęcia. Są one "
       "równe Mocy i regenerują się do jej poziomu ( co turę odnawia się ilość równa regeneracji)"},
      {"Label5(3)", "Szybkość określa inicjatywę w walce"},
      {"Label5(4)", "Regeneracja określa ilość wytrzymałości i punktów magii, które regenerują się co turę"},
      {"Label5(5)",
       "Modyfikator Obrażeń(MO) określa siłę postaci - wpływa bezpośrednio na obrażenia zadawane w walce wręcz."},
      {"Label5(6)", "Ilość wcieleń - jeśli zginiesz więcej razy niż wynosi ich ilość - przegrywasz grę! Koszt : 2"},
      {"Label17", "Cena 1. Zadaje k30 wszystkim przeciwnikom ( jesli rzucisz 1 - zadaje tobie). Jednorazowego uzytku"},
      {"ammo", "Cena 1. 10 sztuk wyśmienitej amunicji (+k6 do każdego strzału)"},
      {"Spec(1)",
       "Cena 1. Jeśli wygrasz inicjatywę z graczem masz 50% szans na to, że zaskoczysz go - nie będziesz musiał "
       "podchodzić do niego, aby go zaatakować bronią do walki wręcz"},
      {"Spec(3)", "Cena 2. Sam wybierasz sobie nagrod( w zakresie +1 do +4 od numeru potwora)"},
  };
}

}  // namespace brolgan::test
