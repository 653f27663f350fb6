#include "tests/sound/stand_in.h"

#include <gtest/gtest.h>

#include <chrono>

namespace brolgan::test {

namespace {

// Far beyond what any machine needs: only a defect takes so long.
constexpr std::chrono::seconds kNever{60};

class StandIn : public desktop::SoundBackend {
 public:
  explicit StandIn(std::shared_ptr<Diary> diary) : diary_(std::move(diary)) { diary_->made(); }
  ~StandIn() override { diary_->enter("gone"); }

  bool open() override {
    const bool there = diary_->device();
    diary_->enter("open");
    return there;
  }
  void play(const std::string& player, const std::string& path) override { diary_->enter(player + " " + path); }
  void stop(const std::string& player) override { diary_->enter(player + " stop"); }
  bool busy() override { return diary_->busy(); }
  void close() override { diary_->enter("close"); }

 private:
  std::shared_ptr<Diary> diary_;
};

}  // namespace

Events Diary::events() const {
  const std::lock_guard lock(mutex_);
  return events_;
}

Events Diary::await(std::size_t count) const {
  std::unique_lock lock(mutex_);
  const bool came = changed_.wait_for(lock, kNever, [&] { return events_.size() >= count; });
  EXPECT_TRUE(came) << "waited for " << count << " events, got " << events_.size();
  return events_;
}

Events Diary::awaitLast(const std::string& event) const {
  std::unique_lock lock(mutex_);
  const auto isLast = [&] { return !events_.empty() && events_.back() == event; };
  EXPECT_TRUE(changed_.wait_for(lock, kNever, isLast)) << event << " never came last";
  return events_;
}

void Diary::awaitHang() const {
  std::unique_lock lock(mutex_);
  EXPECT_TRUE(changed_.wait_for(lock, kNever, [this] { return hanging_; })) << "nothing hangs";
}

std::size_t Diary::awaitBusy(std::size_t times) const {
  std::unique_lock lock(mutex_);
  EXPECT_TRUE(changed_.wait_for(lock, kNever, [&] { return asked_ >= times; })) << "asked " << asked_ << " times";
  return asked_;
}

std::thread::id Diary::thread() const {
  const std::lock_guard lock(mutex_);
  return thread_;
}

void Diary::hangIn(const std::string& event) {
  const std::lock_guard lock(mutex_);
  hang_ = event;
}

void Diary::release() {
  const std::lock_guard lock(mutex_);
  hang_.clear();
  changed_.notify_all();
}

void Diary::setDevice(bool there) {
  const std::lock_guard lock(mutex_);
  device_ = there;
}

void Diary::setBusy(bool busy) {
  const std::lock_guard lock(mutex_);
  busy_ = busy;
}

void Diary::made() {
  const std::lock_guard lock(mutex_);
  thread_ = std::this_thread::get_id();
}

void Diary::enter(const std::string& event) {
  std::unique_lock lock(mutex_);
  events_.push_back(event);
  hanging_ = event == hang_;
  changed_.notify_all();
  changed_.wait(lock, [&] { return event != hang_; });
  hanging_ = false;
}

bool Diary::device() const {
  const std::lock_guard lock(mutex_);
  return device_;
}

bool Diary::busy() {
  const std::lock_guard lock(mutex_);
  ++asked_;
  changed_.notify_all();
  return busy_;
}

desktop::BackendMaker standIn(const std::shared_ptr<Diary>& diary) {
  return [diary] { return std::make_unique<StandIn>(diary); };
}

}  // namespace brolgan::test
