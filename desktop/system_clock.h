// The time of day of this machine.
#pragma once

#include "flow/stage/outside.h"

namespace brolgan::desktop {

class SystemClock : public Clock {
 public:
  double timer() override;
};

}  // namespace brolgan::desktop
