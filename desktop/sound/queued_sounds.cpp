#include "desktop/sound/queued_sounds.h"

#include <system_error>
#include <utility>

#include "desktop/sound/mailbox.h"
#include "desktop/sound/worker.h"

namespace brolgan::desktop {

QueuedSounds::QueuedSounds(BackendMaker make, std::chrono::milliseconds patience, Lookup lookup)
    : make_(std::move(make)), lookup_(std::move(lookup)), patience_(patience), mailbox_(std::make_shared<Mailbox>()) {}

QueuedSounds::~QueuedSounds() { close(); }

void QueuedSounds::play(const std::string& player, const std::string& fileName) {
  const bool posted = mailbox_->post({player, fileName});
  if (posted && !worker_.joinable()) startWorker();
}

// Nothing plays before the first sound, so stopping needs no worker.
void QueuedSounds::stop(const std::string& player) {
  if (worker_.joinable()) mailbox_->post({player, std::nullopt});
}

// A machine out of threads is a silent one.
void QueuedSounds::startWorker() {
  try {
    worker_ =
        std::thread([mailbox = mailbox_, make = make_, lookup = lookup_] { work(mailbox, make, kRestAfter, lookup); });
  } catch (const std::system_error&) {
  }
}

bool QueuedSounds::close() {
  mailbox_->close();
  if (!worker_.joinable()) return true;
  const bool finished = mailbox_->waitForFinish(patience_);
  if (finished) {
    worker_.join();
  } else {
    worker_.detach();
  }
  return finished;
}

}  // namespace brolgan::desktop
