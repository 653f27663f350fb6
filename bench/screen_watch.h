// Watches the X screen and tells when a window of one process has been painted with its content.
#pragma once

#include <X11/Xlib.h>
#include <X11/extensions/Xdamage.h>
#include <sys/types.h>

#include <functional>
#include <map>
#include <optional>
#include <string>

namespace brolgan::bench {

struct Painted {
  std::string title;
  double atMs = 0;
};

class ScreenWatch {
 public:
  // Opens the display; from here on every new window is seen.
  ScreenWatch();
  ScreenWatch(const ScreenWatch&) = delete;
  ScreenWatch& operator=(const ScreenWatch&) = delete;
  ~ScreenWatch();

  // Waits for the next window of the process whose first content is on the screen, and tells when
  // that was; nothing when it takes too long or goOn says no.
  std::optional<Painted> next(pid_t process, double longestMs, const std::function<bool()>& goOn);

 private:
  std::optional<XEvent> nextEvent(int longestMs);
  void watch(Window window);
  bool isPainted(Window window, pid_t process);
  [[nodiscard]] pid_t ownerOf(Window window) const;
  [[nodiscard]] bool showsContent(Window window) const;
  [[nodiscard]] std::string titleOf(Window window) const;

  Display* display_;
  int damageEvents_ = 0;
  std::map<Window, Damage> watched_;
};

}  // namespace brolgan::bench
