// A back-end that plays nothing: it remembers what it is told, and hangs or fails when the test
// says so. The test keeps the diary, the worker thread the back-end.
#pragma once

#include <condition_variable>
#include <cstddef>
#include <memory>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

#include "desktop/sound/backend.h"

namespace brolgan::test {

using Events = std::vector<std::string>;

class Diary {
 public:
  // What was done, as "open", "SFX czar.wav", "SFX stop" and "close".
  [[nodiscard]] Events events() const;
  // Waits until that many events stand here, and gives them; fails the test when they never come.
  Events await(std::size_t count) const;
  // Waits until that event is the last, and gives all.
  Events awaitLast(const std::string& event) const;
  // Waits until the back-end hangs in the call that hangIn() named.
  void awaitHang() const;
  // Waits until the back-end was asked so many times whether something is heard; gives the number.
  std::size_t awaitBusy(std::size_t times) const;
  // The thread that made the back-end, none before there is one.
  [[nodiscard]] std::thread::id thread() const;

  // From now on each call of that event hangs until release().
  void hangIn(const std::string& event);
  void release();

  // What the back-end finds.
  void setDevice(bool there);
  void setBusy(bool busy);

  // For the back-end.
  void made();
  void enter(const std::string& event);
  [[nodiscard]] bool device() const;
  bool busy();

 private:
  mutable std::mutex mutex_;
  mutable std::condition_variable changed_;
  Events events_;
  std::string hang_;
  bool hanging_ = false;
  bool device_ = true;
  bool busy_ = false;
  std::size_t asked_ = 0;
  std::thread::id thread_;
};

// Makes back-ends that write into that diary.
desktop::BackendMaker standIn(const std::shared_ptr<Diary>& diary);

}  // namespace brolgan::test
