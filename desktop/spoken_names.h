// What a screen reader says of a control whose own text does not say enough.
#pragma once

#include <QString>
#include <string>

#include "flow/stage/form.h"

namespace brolgan::desktop {

// The spoken name of a control, in Polish; empty when its text speaks for itself.
QString spokenName(const std::string& form, const ControlEntry& entry);

}  // namespace brolgan::desktop
