// Reading the controls of a form by their full names.
#pragma once

#include <string>
#include <variant>

#include "flow/stage/form.h"

namespace brolgan::guide {

// The control of that name; raises std::bad_variant_access when it is of another kind.
template <class Control>
const Control& get(Form& form, const std::string& name) {
  return *std::get<Control*>(form.controls().find(name).control);
}

// Whether a person can use the control now: it can be reached and answers to hands.
bool isUsable(const ControlEntry& entry);
bool isUsable(Form& form, const std::string& name);

}  // namespace brolgan::guide
