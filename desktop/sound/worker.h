// The worker thread's side of the sound: takes the orders from the mailbox and has the back-end
// carry them out.
#pragma once

#include <memory>

#include "desktop/sound/backend.h"
#include "desktop/sound/mailbox.h"
#include "flow/text/lookup.h"

namespace brolgan::desktop {

// How long nothing may be heard before the device is given back: an open one costs processor time
// and keeps the sound card awake.
inline constexpr std::chrono::milliseconds kRestAfter{2000};

// Works until the mailbox is closed. Touches nothing but its arguments, which are its own, so that
// it may outlive whoever started it.
void work(const std::shared_ptr<Mailbox>& mailbox, const BackendMaker& make,
          std::chrono::milliseconds restAfter = kRestAfter, const Lookup& lookup = Lookup());

}  // namespace brolgan::desktop
