#include "tests/game/invariants.h"

#include <algorithm>
#include <array>

#include "creation/creation.h"
#include "fight/fight.h"
#include "preparation/preparation.h"
#include "sheet/sheet.h"
#include "shop/shop.h"

namespace brolgan::test {

namespace {

constexpr std::array kScreens = {"Main", "CTmhero", "CTsklep", "Prefight", "Fight"};

template <class Labels>
bool allWhole(const Labels& labels) {
  return std::all_of(labels.begin(), labels.end(), [](const Label& label) { return isWhole(label.Caption); });
}

template <class Labels>
bool oneRed(const Labels& ladder) {
  return std::count_if(ladder.begin(), ladder.end(), [](const Label& step) { return step.ForeColor == Colour::red; }) ==
         1;
}

bool isFigures(const std::string& caption) {
  std::string figures = caption;
  constexpr std::string_view kAll = " wszystkim!";
  if (figures.ends_with(kAll)) figures.resize(figures.size() - kAll.size());
  return figures.find_first_not_of("0123456789 ") == std::string::npos;
}

std::string faultOf(const DevelopmentForm& form) {
  const bool ladders = oneRed(form.stat1) && oneRed(form.stat2) && oneRed(form.stat3) && oneRed(form.stat4) &&
                       oneRed(form.stat5) && oneRed(form.stat6) && oneRed(form.stat7);
  if (!ladders) return "a ladder without exactly one red step";
  if (!isWhole(form.Ile_jeszcze.Caption) || !allWhole(form.wyp)) return "points or supplies are no numbers";
  if (!isWhole(form.BWcena.Caption) || !isWhole(form.BScena.Caption)) return "a price is no number";
  if (form.Plik.Visible) return "the hidden file name shows";
  return {};
}

std::string faultOf(const CTmhero& form) {
  const auto chosen =
      std::count_if(form.Klasa.begin(), form.Klasa.end(), [](const auto& klasa) { return klasa.Value; });
  if (chosen != 1) return "not exactly one class chosen";
  return faultOf(static_cast<const DevelopmentForm&>(form));
}

std::string faultOf(const CTsklep& form) {
  if (!allWhole(form.akt) || !isWhole(form.Tura.Caption)) return "a current value in the shop is no number";
  if (form.Ile_jeszcze.Caption.front() == '-') return "points below 0 in the shop";
  if (form.Save.Visible || form.Save.Enabled) return "the shop's hidden button can be used";
  return faultOf(static_cast<const DevelopmentForm&>(form));
}

std::string faultOf(const Prefight& form) {
  const bool numbers = allWhole(form.Monstat) && allWhole(form.stat) && allWhole(form.cur) &&
                       isWhole(form.Inic.Caption) && isWhole(form.tabak.Caption);
  return numbers ? "" : "a figure of the preparation is no number";
}

std::string faultOf(const Fight& form) {
  for (std::size_t i = 0; i < 3; ++i) {
    if (!isWhole(form.Pstat[i].Caption) || !isWhole(form.Mstat[i].Caption)) return "a figure of the fight is no number";
  }
  if (!isWhole(form.LIle.Caption) || form.LIle.Caption.front() == '-') return "no count of the group";
  if (form.Odl.Caption != "BLISKA") return "the distance is far";
  if (!isFigures(form.IleZad.Caption) || !isFigures(form.IleDMG.Caption)) return "damage that is no figures";
  const bool canAct = form.Atak.Enabled || form.Rzuc.Enabled || form.Uzyj.Enabled;
  if (form.LIle.Caption == "0" && canAct) return "an action against a group that is gone";
  if (form.FDamage.Visible && form.IleDMG.Caption.empty()) return "a report of damage without damage";
  return {};
}

std::string faultOf(const FHero& form) {
  for (std::size_t i = 0; i < 5; ++i) {
    if (!isWhole(form.Pstat[i].Caption)) return "a value of the sheet is no number";
  }
  return {};
}

}  // namespace

int lineCount(const std::string& bytes) {
  if (!bytes.empty() && !bytes.ends_with("\r\n")) return -1;
  const auto feeds = std::count(bytes.begin(), bytes.end(), '\n');
  const auto returns = std::count(bytes.begin(), bytes.end(), '\r');
  return feeds == returns ? static_cast<int>(feeds) : -1;
}

bool isWhole(const std::string& caption) {
  const std::size_t digits = caption.starts_with('-') ? 1 : 0;
  return caption.size() > digits && caption.find_first_not_of("0123456789", digits) == std::string::npos;
}

std::string Invariants::check() {
  complaint_.clear();
  checkForms();
  if (!world_.runtime.ended()) checkScreens();
  checkFiles();
  return complaint_;
}

void Invariants::complain(const std::string& what) {
  if (complaint_.empty()) complaint_ = what;
}

std::string Invariants::screen() const {
  for (const char* name : kScreens) {
    if (world_.isShown(name)) return name;
  }
  return {};
}

// The title stays; one screen at most stands on it; only the set-up is ever kept hidden.
void Invariants::checkForms() {
  if (world_.runtime.ended()) return;
  if (!world_.isShown("Brolgan")) complain("the title window is gone");
  if (world_.isOpen("Starter")) complain("the start form is still there");
  int shown = 0;
  for (const char* name : kScreens) {
    if (world_.isShown(name)) ++shown;
    if (world_.isOpen(name) && !world_.isShown(name) && std::string(name) != "Main")
      complain("a screen is kept hidden");
  }
  if (shown > 1) complain("two screens at once");
  if (world_.isOpen("FHero") && !world_.isShown("FHero")) complain("the sheet is kept hidden");
  if (world_.isOpen("Main") && (world_.isOpen("CTsklep") || world_.isOpen("Fight"))) complain("the set-up came back");
}

void Invariants::checkScreens() {
  const auto judge = [this]<class Screen>(const Screen*) {
    const Form* const form = world_.runtime.find(Screen::kName);
    if (form != nullptr) complain(faultOf(static_cast<const Screen&>(*form)));
  };
  judge(static_cast<CTmhero*>(nullptr));
  judge(static_cast<CTsklep*>(nullptr));
  judge(static_cast<Prefight*>(nullptr));
  judge(static_cast<Fight*>(nullptr));
  judge(static_cast<FHero*>(nullptr));
}

// Files change only when a screen is left, or at the end of the game.
void Invariants::checkFiles() {
  const std::string now = screen();
  const bool mayWrite = now != screen_ || world_.runtime.ended();
  screen_ = now;
  const bool written = world_.files.contents != before_;
  if (!written) return;
  if (!mayWrite && !before_.empty()) complain("a file was written though no screen was left");
  before_ = world_.files.contents;
  checkHeroFiles();
  checkHandover("makehro.cfg", 2);
  checkHandover("sklep.cfg", 2);
  checkHandover("pref.cfg", 4);
  checkHandover("fight.cfg", 15);
  checkOrder();
  checkUntouchedData();
}

void Invariants::checkHeroFiles() {
  for (const auto& [name, bytes] : before_) {
    if (!name.ends_with(".cfg") && lineCount(bytes) != 161) complain("a hero file without 161 lines: " + name);
  }
}

void Invariants::checkHandover(const std::string& file, int lines) {
  const auto found = before_.find(file);
  if (found != before_.end() && lineCount(found->second) != lines) complain("a wrong number of lines: " + file);
}

// A count from 1 to 4 and as many names.
void Invariants::checkOrder() {
  const auto found = before_.find("gra.cfg");
  if (found == before_.end()) return;
  const std::string& bytes = found->second;
  const int count = bytes.size() > 1 ? bytes[1] - '0' : 0;
  if (count < 1 || count > 4) complain("gra.cfg with a wrong count");
  if (bytes.substr(0, 5) != " " + std::to_string(count) + " \r\n") complain("gra.cfg with a wrong first line");
  checkHandover("gra.cfg", count + 1);
}

void Invariants::checkUntouchedData() {
  for (const char* name : {"bron.cfg", "monsters.cfg"}) {
    if (before_.at(name) != begin_.at(name)) complain("a data file was written");
  }
}

}  // namespace brolgan::test
