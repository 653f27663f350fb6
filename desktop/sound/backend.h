// What makes sounds heard, as the worker thread uses it. Every call may take as long as it likes;
// all of them come from that one thread.
#pragma once

#include <functional>
#include <memory>
#include <string>

namespace brolgan::desktop {

class SoundBackend {
 public:
  SoundBackend() = default;
  SoundBackend(const SoundBackend&) = delete;
  SoundBackend& operator=(const SoundBackend&) = delete;
  // Gives the device back if it is held.
  virtual ~SoundBackend() = default;

  // Takes hold of the sound device; answers whether there is one.
  virtual bool open() = 0;
  // Loads the file and starts it on the player, whose sound before gives way in any case.
  virtual void play(const std::string& player, const std::string& path) = 0;
  virtual void stop(const std::string& player) = 0;
  // Whether any player still has something to be heard.
  virtual bool busy() = 0;
  // Gives the device back, with all that still plays.
  virtual void close() = 0;
};

// Makes the back-end in the worker thread; null when this machine has none.
using BackendMaker = std::function<std::unique_ptr<SoundBackend>()>;

// Makes the back-end of this machine; null when the library that it needs is not installed.
std::unique_ptr<SoundBackend> makeMachineBackend();

}  // namespace brolgan::desktop
