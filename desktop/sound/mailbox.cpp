#include "desktop/sound/mailbox.h"

#include <algorithm>
#include <utility>

namespace brolgan::desktop {

bool Mailbox::post(SoundOrder order) {
  {
    const std::lock_guard lock(mutex_);
    if (closed_) return false;
    std::erase_if(orders_, [&order](const SoundOrder& older) { return older.player == order.player; });
    orders_.push_back(std::move(order));
  }
  news_.notify_all();
  return true;
}

void Mailbox::giveBack(SoundOrder order) {
  const std::lock_guard lock(mutex_);
  if (closed_ || hasOrderFor(order.player)) return;
  orders_.insert(orders_.begin(), std::move(order));
}

bool Mailbox::hasOrderFor(const std::string& player) const {
  return std::ranges::any_of(orders_, [&player](const SoundOrder& order) { return order.player == player; });
}

Mailbox::Letter Mailbox::take(std::optional<std::chrono::milliseconds> patience) {
  std::unique_lock lock(mutex_);
  if (patience) {
    news_.wait_for(lock, *patience, [this] { return hasNews(); });
  } else {
    news_.wait(lock, [this] { return hasNews(); });
  }
  if (closed_) return Closed{};
  if (orders_.empty()) return Quiet{};
  SoundOrder order = std::move(orders_.front());
  orders_.erase(orders_.begin());
  return order;
}

void Mailbox::close() {
  {
    const std::lock_guard lock(mutex_);
    closed_ = true;
  }
  news_.notify_all();
}

void Mailbox::finish() {
  const std::lock_guard lock(mutex_);
  finished_ = true;
  news_.notify_all();
}

bool Mailbox::waitForFinish(std::chrono::milliseconds patience) {
  std::unique_lock lock(mutex_);
  return news_.wait_for(lock, patience, [this] { return finished_; });
}

}  // namespace brolgan::desktop
