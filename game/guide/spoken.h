// What a screen reader says of a control: its name and, where it shows one, its value. Kept up with
// every change; for every face alike.
#pragma once

#include <string>

#include "flow/stage/form.h"

namespace brolgan {

// Name and value of a control of that screen, in Polish: "Pozostało punktów: 9", "Leczenie, masz".
// Empty when the control's own text says it all.
std::string spoken(const std::string& screen, const ControlEntry& entry);
// The name alone, for what tells its value by itself.
std::string spokenName(const std::string& screen, const ControlEntry& entry);

// Whether a label is bought by a click on its name, and so is a thing that can be checked.
bool isCheckable(const std::string& screen, const ControlEntry& entry);
// Whether it is owned.
bool isChecked(const ControlEntry& entry);

}  // namespace brolgan
