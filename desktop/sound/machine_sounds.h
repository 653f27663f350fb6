// The sound of this machine; silence in a program that is built without sound.
#pragma once

#ifdef BROLGAN_SOUND

#include "desktop/sound/queued_sounds.h"

namespace brolgan::desktop {

class MachineSounds : public QueuedSounds {
 public:
  MachineSounds() : QueuedSounds(makeMachineBackend) {}
};

}  // namespace brolgan::desktop

#else

#include "desktop/silence.h"

namespace brolgan::desktop {

class MachineSounds : public Silence {
 public:
  // Nothing plays, so nothing is waited for.
  bool close() { return true; }
};

}  // namespace brolgan::desktop

#endif
