// What a screen reader says of a control: its name and, where it shows one, its value. Kept up with
// every change; for every face alike.
#pragma once

#include <string>

#include "flow/stage/form.h"

namespace brolgan {

// Name and value of a control of that screen, in Polish: "Pozostało punktów: 9", "Leczenie, masz".
// Empty when the control's own text says it all.
std::string spoken(const std::string& screen, const ControlEntry& entry);

// Whether a label is bought by a click on its name, and so is a thing that can be checked.
bool isCheckable(const std::string& screen, const ControlEntry& entry);
// Whether it is owned.
bool isChecked(const ControlEntry& entry);

// Whether a change of the control is to be announced as it happens: blows, deaths, warnings.
bool isAnnounced(const std::string& screen, const ControlEntry& entry);
// Whether what the control says is news after that one was used, even when the words are the same as
// before: a blow of the same strength falls again.
bool isToldAnew(const std::string& screen, const std::string& used, const ControlEntry& entry);

// Whether the group of the fight is gone, so that its picture may step back.
bool isGroupGone(const std::string& screen, Form& form);

}  // namespace brolgan
