// What happens in a fight is told at once, to ears by an announcement and to eyes by a movement: blows
// dealt and taken, deaths, warnings. For every face alike; it looks at controls and changes none.
#pragma once

#include <map>
#include <string>
#include <vector>

#include "flow/stage/form.h"

namespace brolgan {

// The picture that answers a blow and steps back when the group is gone.
inline constexpr const char* kMonsterPicture = "Potwór";

class News {
 public:
  // A control of the screen is about to be used.
  void expect(const std::string& screen, Form& form, const std::string& used);

  // The reports that say something new since the last call, by their full names: words that were not
  // there, or the same words because it happened again.
  std::vector<std::string> take(const std::string& screen, Form& form);

 private:
  // What a use changes when it does anything at all, and how the group stood before it.
  struct Before {
    std::string used;
    std::string form;
    std::string group;
    std::string struck;
  };
  [[nodiscard]] bool happenedAgain(Form& form, const std::string& report) const;

  std::map<std::string, std::string> told_;  // what each report said last, empty while it was not seen
  Before before_;
};

// Whether what the control says is announced as it happens.
bool isAnnounced(const std::string& screen, const ControlEntry& entry);
// Whether a report tells of a blow that the monster answers.
bool isBlowDealt(const std::string& report);

// Whether the group of the fight is gone, so that its picture may step back.
bool isGroupGone(const std::string& screen, Form& form);

}  // namespace brolgan
