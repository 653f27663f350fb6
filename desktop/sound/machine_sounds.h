// The sound of this machine; silence in a program that is built without sound.
#pragma once

#ifdef BROLGAN_SOUND

#include "desktop/sound/queued_sounds.h"

namespace brolgan::desktop {

class MachineSounds : public QueuedSounds {
 public:
  explicit MachineSounds(const Lookup& lookup = Lookup()) : QueuedSounds(makeMachineBackend, kPatience, lookup) {}
};

}  // namespace brolgan::desktop

#else

#include "desktop/silence.h"
#include "flow/text/lookup.h"

namespace brolgan::desktop {

class MachineSounds : public Silence {
 public:
  explicit MachineSounds(const Lookup& = Lookup()) {}
  // Nothing plays, so nothing is waited for.
  bool close() { return true; }
};

}  // namespace brolgan::desktop

#endif
