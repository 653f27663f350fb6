#include "game/guide/news.h"

#include <algorithm>
#include <array>

#include "game/guide/look.h"
#include "game/names/names.h"

namespace brolgan {

namespace {

using guide::get;

constexpr const char* kDealt = "IleZad";
constexpr const char* kVerdict = "OpisZad";
constexpr const char* kTaken = "IleDMG";
constexpr const char* kFate = "OpisDMG";
constexpr std::array kReports = {kDealt, kVerdict, kTaken, kFate, "Uwaga"};

std::string groupOf(Form& form) { return get<Label>(form, "LIle").Caption; }

// How many there are and how much the one in front can still take.
std::string struckOf(Form& form) { return groupOf(form) + " " + get<Label>(form, "Mstat(0)").Caption; }

// All that a person can see to change.
std::string lookOf(Form& form) {
  std::string look;
  for (const ControlEntry& entry : form.controls().entries()) {
    const auto* const* const label = std::get_if<Label*>(&entry.control);
    look += isReachable(entry) ? '+' : '-';
    if (label != nullptr) look += (*label)->Caption;
  }
  return look;
}

std::string wordsOf(Form& form, const std::string& report) {
  const ControlEntry& entry = form.controls().find(report);
  return isReachable(entry) ? std::get<Label*>(entry.control)->Caption : std::string();
}

}  // namespace

void News::expect(const std::string& screen, Form& form, const std::string& used) {
  before_ = {};
  if (screen == screens::kFight) before_ = {used, lookOf(form), groupOf(form), struckOf(form)};
}

std::vector<std::string> News::take(const std::string& screen, Form& form) {
  std::vector<std::string> news;
  if (screen != screens::kFight) return news;
  for (const std::string report : kReports) {
    const std::string words = wordsOf(form, report);
    if (!words.empty() && (told_[report] != words || happenedAgain(form, report))) news.push_back(report);
    told_[report] = words;
  }
  before_ = {};
  return news;
}

// A blow of the same strength, another death. A blow that harms nobody still changes something, unless it
// was refused.
bool News::happenedAgain(Form& form, const std::string& report) const {
  if (before_.used.empty()) return false;
  if (report == kTaken || report == kFate) return before_.used == "NastTura";
  if (report == kVerdict) return groupOf(form) != before_.group;
  if (report != kDealt) return false;
  return before_.used == "Atak" ? lookOf(form) != before_.form : struckOf(form) != before_.struck;
}

bool isAnnounced(const std::string& screen, const ControlEntry& entry) {
  return screen == screens::kFight && std::ranges::find(kReports, entry.name) != kReports.end();
}

bool isBlowDealt(const std::string& report) { return report == kDealt; }

bool isGroupGone(const std::string& screen, Form& form) {
  if (screen != screens::kFight) return false;
  const std::string& verdict = get<Label>(form, kVerdict).Caption;
  return verdict == verdicts::kGroupGone || verdict.starts_with(verdicts::kGameWon);
}

}  // namespace brolgan
