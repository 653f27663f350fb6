// What calls for a click on a screen as it stands: the step that leads on, and goods that the points pay
// for. For every face alike; it looks at controls and changes none.
#pragma once

#include <string>

#include "flow/stage/form.h"

namespace brolgan {

// The control of the step that leads on; empty when there is none to take.
std::string invitedStep(const std::string& screen, Form& form);
// Whether a control calls for a click, where that step is the one to take.
bool isInviting(const std::string& screen, Form& form, const ControlEntry& entry, const std::string& step);

}  // namespace brolgan
