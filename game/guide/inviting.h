// What calls for a click on a screen as it stands: the step that leads on, and goods that the points pay
// for. For every face alike; it looks at controls and changes none.
#pragma once

#include <string>

#include "flow/stage/form.h"

namespace brolgan {

bool isInviting(const std::string& screen, Form& form, const ControlEntry& entry);

}  // namespace brolgan
