// Where a player's hand is next: the control that the keyboard should stand on when a screen begins,
// after what he did, and when the one that he used can be used no longer. For every face alike; it
// looks at controls and changes none.
#pragma once

#include <string>

#include "flow/stage/form.h"

namespace brolgan {

class NextHand {
 public:
  // The control on which a screen begins; the first that can be used where the screen has no better.
  std::string begin(const std::string& screen, Form& form);

  // The control to go to after an event. used is the control that raised it, focused the one that the
  // keyboard stands on; either may be empty. Answers focused when the keyboard is to stay.
  std::string after(const std::string& screen, Form& form, const std::string& used, const std::string& focused);

 private:
  void notice(Form& form, const std::string& used);
  [[nodiscard]] std::string beginRound(Form& form) const;
  [[nodiscard]] std::string restOfRound(Form& form) const;

  bool castLast_ = false;
  bool castsInVain_ = false;  // in this fight
};

// Whether the report of a fight that is open tells of the hero's death.
bool hasFallen(Form& form);
// Whether a blow is open in a fight: the hero has a weapon in hand and has not struck; behind a spell only
// with a staff.
bool canStrike(Form& form);

// The control that Escape presses on a screen: what closes a report or the sheet. Empty when nothing
// is open that it could close.
std::string escapeControl(const std::string& screen, Form& form);

}  // namespace brolgan
