#include "desktop/sound/worker.h"

#include <exception>

#include "desktop/sound/variants.h"

namespace brolgan::desktop {

namespace {

class Worker {
 public:
  Worker(Mailbox& mailbox, const BackendMaker& make, std::chrono::milliseconds restAfter, const Lookup& lookup)
      : mailbox_(mailbox), make_(make), restAfter_(restAfter), lookup_(lookup) {}

  // Does the next thing to do; answers whether there may be more.
  bool step() {
    const Mailbox::Letter letter = mailbox_.take(awake_ ? std::optional(restAfter_) : std::nullopt);
    if (std::holds_alternative<Closed>(letter)) return false;
    if (const auto* const order = std::get_if<SoundOrder>(&letter)) {
      obey(*order);
    } else {
      rest();
    }
    return true;
  }

 private:
  void obey(const SoundOrder& order) {
    if (!awake_) {
      if (order.file) wakeFor(order);
    } else if (order.file) {
      backend_->play(order.player, variants_.next(lookup_(*order.file)));
    } else {
      backend_->stop(order.player);
    }
  }

  // Without a device each new sound asks for one again: somebody may have plugged it in. That may
  // take long, and the sound may be out of date behind it.
  void wakeFor(const SoundOrder& order) {
    if (!backend_) backend_ = make_();
    if (!backend_ || !backend_->open()) return;
    awake_ = true;
    mailbox_.giveBack(order);
  }

  void rest() {
    if (backend_->busy()) return;
    backend_->close();
    awake_ = false;
  }

  Mailbox& mailbox_;
  const BackendMaker& make_;
  std::unique_ptr<SoundBackend> backend_;
  Variants variants_;
  std::chrono::milliseconds restAfter_;
  const Lookup& lookup_;
  bool awake_ = false;
};

// A sound too large for the memory is no reason to end: it is not heard, and the next one is.
bool stepSafely(Worker& worker) {
  try {
    return worker.step();
  } catch (const std::exception&) {
    return true;
  }
}

}  // namespace

void work(const std::shared_ptr<Mailbox>& mailbox, const BackendMaker& make, std::chrono::milliseconds restAfter,
          const Lookup& lookup) {
  {
    Worker worker(*mailbox, make, restAfter, lookup);
    while (stepSafely(worker)) {
    }
  }
  mailbox->finish();
}

}  // namespace brolgan::desktop
