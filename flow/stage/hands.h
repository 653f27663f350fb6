// What a person's hands can do with the open forms: click, select, type, close a window. The face,
// the tests and the robot act through these alone, so all of them are refused alike.
#pragma once

#include <string>
#include <string_view>

#include "flow/stage/form.h"
#include "flow/stage/runtime.h"

namespace brolgan {

// Each answers whether the control could be reached; nothing happens when it could not.

// Clicks a label, button, text box or option button. An option button is selected first, alone
// among those of its name.
bool click(Runtime& runtime, Form& form, const ControlEntry& entry);
// Selects a row of a combo box or list box.
bool select(Runtime& runtime, const ControlEntry& entry, int row);
// Replaces the text of a text box, unless it is locked.
bool type(const ControlEntry& entry, const std::string& text);
// Presses the close box of a form's window. The form is gone when the name is not loaded any more.
void closeWindow(Runtime& runtime, std::string_view formName);

}  // namespace brolgan
