#include "screen_watch.h"

#include <X11/Xatom.h>
#include <X11/Xutil.h>
#include <poll.h>

#include <algorithm>
#include <set>
#include <stdexcept>

#include "process_figures.h"

namespace brolgan::bench {

namespace {

// A lone background has one colour; text has a handful, since its edges are smoothed.
constexpr std::size_t kColoursOfContent = 6;

// Windows come and go while they are looked at.
int ignoreError(Display*, XErrorEvent*) { return 0; }

}  // namespace

ScreenWatch::ScreenWatch() : display_(XOpenDisplay(nullptr)) {
  if (display_ == nullptr) throw std::runtime_error("no display");
  XSetErrorHandler(ignoreError);
  int errors = 0;
  if (!XDamageQueryExtension(display_, &damageEvents_, &errors)) throw std::runtime_error("no damage extension");
  XSelectInput(display_, DefaultRootWindow(display_), SubstructureNotifyMask);
  XSync(display_, False);
}

ScreenWatch::~ScreenWatch() { XCloseDisplay(display_); }

std::optional<Painted> ScreenWatch::next(pid_t process, double longestMs, const std::function<bool()>& goOn) {
  const double end = nowMs() + longestMs;
  while (nowMs() < end && goOn()) {
    const auto event = nextEvent(50);
    if (!event) continue;
    const double atMs = nowMs();
    if (event->type == CreateNotify) watch(event->xcreatewindow.window);
    if (event->type != damageEvents_ + XDamageNotify) continue;
    const Window window = event->xany.window;
    if (isPainted(window, process)) return Painted{titleOf(window), atMs};
  }
  return std::nullopt;
}

std::optional<XEvent> ScreenWatch::nextEvent(int longestMs) {
  if (XPending(display_) == 0) {
    pollfd waiting{ConnectionNumber(display_), POLLIN, 0};
    poll(&waiting, 1, longestMs);
    if (XPending(display_) == 0) return std::nullopt;
  }
  XEvent event;
  XNextEvent(display_, &event);
  return event;
}

void ScreenWatch::watch(Window window) {
  watched_[window] = XDamageCreate(display_, window, XDamageReportNonEmpty);
  XFlush(display_);
}

// Once painted, a window is watched no more.
bool ScreenWatch::isPainted(Window window, pid_t process) {
  const auto damage = watched_.find(window);
  if (damage == watched_.end()) return false;
  XDamageSubtract(display_, damage->second, None, None);
  if (ownerOf(window) != process || !showsContent(window)) return false;
  XDamageDestroy(display_, damage->second);
  watched_.erase(damage);
  return true;
}

pid_t ScreenWatch::ownerOf(Window window) const {
  Atom type = None;
  int format = 0;
  unsigned long count = 0;
  unsigned long left = 0;
  unsigned char* bytes = nullptr;
  const Atom name = XInternAtom(display_, "_NET_WM_PID", False);
  XGetWindowProperty(display_, window, name, 0, 1, False, XA_CARDINAL, &type, &format, &count, &left, &bytes);
  const pid_t owner = bytes != nullptr && count == 1 ? static_cast<pid_t>(*reinterpret_cast<long*>(bytes)) : 0;
  if (bytes != nullptr) XFree(bytes);
  return owner;
}

bool ScreenWatch::showsContent(Window window) const {
  XWindowAttributes state;
  if (XGetWindowAttributes(display_, window, &state) == 0 || state.map_state != IsViewable) return false;
  XImage* const image = XGetImage(display_, window, 0, 0, static_cast<unsigned>(state.width),
                                  static_cast<unsigned>(state.height), AllPlanes, ZPixmap);
  if (image == nullptr) return false;
  std::set<unsigned long> colours;
  for (int y = 0; y < image->height && colours.size() < kColoursOfContent; ++y) {
    for (int x = 0; x < image->width; ++x) colours.insert(XGetPixel(image, x, y));
  }
  XDestroyImage(image);
  return colours.size() >= kColoursOfContent;
}

std::string ScreenWatch::titleOf(Window window) const {
  char* name = nullptr;
  if (XFetchName(display_, window, &name) == 0 || name == nullptr) return {};
  std::string title = name;
  XFree(name);
  return title;
}

}  // namespace brolgan::bench
