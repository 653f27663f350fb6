// The letters that reach buttons and lists together with Alt. They stand beside captions, never in them.
#pragma once

#include <string>

#include "flow/stage/form.h"

namespace brolgan {

// The letter or digit of a control of that screen, 0 when it has none. No two controls of a screen that
// can be seen at one time share one.
char accessKey(const std::string& screen, const ControlEntry& entry);

}  // namespace brolgan
