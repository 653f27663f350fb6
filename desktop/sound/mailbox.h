// The orders on their way from the game to the worker thread. Both ends hold it together, so that
// it lives as long as the one that ends last.
#pragma once

#include <chrono>
#include <condition_variable>
#include <mutex>
#include <optional>
#include <string>
#include <variant>
#include <vector>

namespace brolgan::desktop {

struct SoundOrder {
  std::string player;
  // Nothing: the player falls silent.
  std::optional<std::string> file;
};

// What the worker can find in the mailbox instead of an order.
struct Quiet {};
struct Closed {};

class Mailbox {
 public:
  using Letter = std::variant<SoundOrder, Quiet, Closed>;

  // Adds an order. It overtakes an order for the same player that the worker has not taken yet, so
  // that a worker that hangs leaves one order a player behind and no more. False once it is closed.
  bool post(SoundOrder order);
  // Takes back an order that could not be carried out at once: it is the next again, unless a newer
  // one for its player came meanwhile.
  void giveBack(SoundOrder order);
  // Waits for the next order; Closed once there are no more to come. With a patience it gives up
  // after that long and answers Quiet.
  Letter take(std::optional<std::chrono::milliseconds> patience);

  // Drops what is not taken yet and lets no more orders in.
  void close();
  // The worker's last word.
  void finish();
  // Waits for that word; answers whether it came in time.
  bool waitForFinish(std::chrono::milliseconds patience);

 private:
  [[nodiscard]] bool hasOrderFor(const std::string& player) const;
  [[nodiscard]] bool hasNews() const { return closed_ || !orders_.empty(); }

  std::mutex mutex_;
  std::condition_variable news_;
  std::vector<SoundOrder> orders_;
  bool closed_ = false;
  bool finished_ = false;
};

}  // namespace brolgan::desktop
