// The eight screens of the game under their names, for whatever shows them or plays them.
#pragma once

#include "flow/stage/runtime.h"
#include "rules/random.h"

namespace brolgan {

// Makes all eight screens known to a runtime. Those that roll dice draw from random, which must
// outlive the runtime.
void offerScreens(Runtime& runtime, RandomSource& random);

}  // namespace brolgan
