// The variants of a sound that lie in the folders of this machine.
#pragma once

#include "game/guide/sound_turns.h"

namespace brolgan::desktop {

class Variants : public SoundTurns {
 public:
  Variants();
};

}  // namespace brolgan::desktop
