// Sounds that never hold the game up: every order goes to one worker thread, which alone waits for
// files, devices and sound servers.
#pragma once

#include <chrono>
#include <memory>
#include <thread>

#include "desktop/sound/backend.h"
#include "flow/stage/outside.h"
#include "flow/text/lookup.h"

namespace brolgan::desktop {

class Mailbox;

class QueuedSounds : public Sounds {
 public:
  // How long the end of the program waits for the worker.
  static constexpr std::chrono::milliseconds kPatience{200};

  explicit QueuedSounds(BackendMaker make, std::chrono::milliseconds patience = kPatience, Lookup lookup = Lookup());
  // Ends the worker if that is not done yet.
  ~QueuedSounds() override;

  // The first sound starts the worker.
  void play(const std::string& player, const std::string& fileName) override;
  void stop(const std::string& player) override;

  // Ends all sound for good. False when the worker does not answer: it is left behind, possibly in
  // the middle of a system library, so the program had better end without tidying up.
  bool close();

 private:
  void startWorker();

  BackendMaker make_;
  Lookup lookup_;
  std::chrono::milliseconds patience_;
  std::shared_ptr<Mailbox> mailbox_;
  std::thread worker_;
};

}  // namespace brolgan::desktop
