#include "desktop/face.h"

#include <QCoreApplication>
#include <QGuiApplication>
#include <QScreen>
#include <QTimer>
#include <cstdio>

#include "desktop/error_box.h"
#include "desktop/picture_store.h"
#include "desktop/text.h"
#include "flow/stage/hands.h"
#include "game/names/names.h"

namespace brolgan::desktop {

namespace {

// The title stays behind and the sheet beside; the other screens take each other's place.
bool takesTurns(const std::string& name) { return name != "Brolgan" && name != "FHero"; }

// About what a window manager adds above a window and on its other sides.
constexpr int kFrameTop = 26;
constexpr int kFrameSide = 4;

const ControlEntry& entryOf(Form& form, std::size_t index) { return form.controls().entries()[index]; }

}  // namespace

Face::Face(Runtime& runtime, PictureStore& pictures) : runtime_(runtime), pictures_(pictures) {}

Face::~Face() = default;

void Face::start() {
  act([this] { runtime_.Show(screens::kStart); });
}

FormWindow* Face::window(const std::string& name) const {
  const auto found = windows_.find(name);
  return found == windows_.end() ? nullptr : found->second.get();
}

void Face::act(const std::function<void()>& doing) {
  if (over_) return;
  try {
    doing();
    synchronize();
  } catch (...) {
    fail(std::current_exception());
  }
}

// Tells of the first error in the one message box of the game; behind it the program ends.
void Face::fail(const std::exception_ptr& error) {
  if (over_) return;
  over_ = true;
  runtime_.End();
  try {
    onError ? onError(errorText(error)) : showErrorBox(errorText(error));
  } catch (const std::exception& second) {  // Not even the box could be made.
    std::fprintf(stderr, "%s\n", second.what());
  }
  QCoreApplication::exit(1);
}

// To make a window and to show it takes an event each, so that neither holds up what a person does
// next. Until then all windows stay as they are.
void Face::synchronize() {
  if (over_) return;
  if (runtime_.ended()) {
    over_ = true;
    QCoreApplication::exit(0);  // Not quit(), which asks the windows to close first; they decline.
    return;
  }
  releaseGone();
  if (makeWindow()) {
    QMetaObject::invokeMethod(
        this, [this] { act([] {}); }, Qt::QueuedConnection);
    return;
  }
  showOpened();
  hideClosed();
}

// Makes one window that an open form lacks; answers whether there was one to make.
bool Face::makeWindow() {
  for (const std::string& name : runtime_.loaded()) {
    Form& opened = *form(name);
    if (!opened.Visible || windows_.contains(name)) continue;
    windows_[name] = std::make_unique<FormWindow>(name, opened, pictures_, events());
    return true;
  }
  return false;
}

// Another form may come to lie at the address of one that is gone.
void Face::releaseGone() {
  for (const auto& [name, window] : windows_) {
    if (form(name) == nullptr) window->release();
  }
}

void Face::hideClosed() {
  for (const auto& [name, window] : windows_) {
    const Form* const shown = form(name);
    if (window->isVisible() && (shown == nullptr || !shown->Visible)) {
      if (takesTurns(name)) rememberPlace(*window);
      window->leaveScreen();
    }
  }
}

void Face::showOpened() {
  for (const std::string& name : runtime_.loaded()) {
    Form& opened = *form(name);
    if (opened.Visible) show(name, opened);
  }
}

void Face::show(const std::string& name, Form& shown) {
  FormWindow& window = *windows_.at(name);
  const bool isFresh = window.form() != &shown;
  isFresh ? window.bind(shown) : window.mirrorAll();
  if (window.isVisible() && !isFresh) return;
  if (!window.isVisible()) place(name, window);
  window.show();
  window.preparePictures();
  window.raise();
  window.activateWindow();
  window.focusFirst();
}

void Face::rememberPlace(const FormWindow& window) { lastPlace_ = window.geometry().topLeft(); }

// A screen appears where the last one stood. The title keeps to the top and the first screen to the
// bottom, so that neither hides the other; the sheet opens at the right edge.
void Face::place(const std::string& name, FormWindow& window) {
  for (const auto& [other, open] : windows_) {
    if (takesTurns(name) && takesTurns(other) && open->isVisible()) rememberPlace(*open);
  }
  const QRect screen = window.screen()->availableGeometry();
  const QSize size = window.size().expandedTo(window.minimumSizeHint());
  QPoint corner = screen.center() - QPoint(size.width() / 2, size.height() / 2);
  if (name == "Brolgan") corner.setY(screen.top());
  if (name == "Main") corner.setY(screen.bottom());
  if (name == "FHero") corner = {screen.right() - size.width() - 24, screen.top() + 48};
  if (takesTurns(name) && lastPlace_) corner = *lastPlace_;
  const QRect room = screen.adjusted(kFrameSide, kFrameTop, -kFrameSide, -kFrameSide);
  corner.setX(std::max(room.left(), std::min(corner.x(), room.right() - size.width() + 1)));
  corner.setY(std::max(room.top(), std::min(corner.y(), room.bottom() - size.height() + 1)));
  window.setGeometry(QRect(corner, size));
}

// The form that a person sees in the window of that name. While the next window is being made, one may
// still stand there whose form is hidden or gone.
Form* Face::formInSight(const std::string& name) const {
  Form* const found = form(name);
  const FormWindow* const seen = window(name);
  const bool isInSight = found != nullptr && found->Visible && seen != nullptr && seen->isVisible();
  return isInSight ? found : nullptr;
}

FormWindow::Events Face::events() {
  FormWindow::Events events;
  events.click = [this](const std::string& name, std::size_t index) {
    Form* const target = formInSight(name);
    if (target != nullptr) act([&] { click(runtime_, *target, entryOf(*target, index)); });
  };
  events.select = [this](const std::string& name, std::size_t index, int row) {
    Form* const target = formInSight(name);
    if (target != nullptr) act([&] { select(runtime_, entryOf(*target, index), row); });
  };
  events.type = [this](const std::string& name, std::size_t index, const QString& text) {
    Form* const target = formInSight(name);
    if (target != nullptr) type(entryOf(*target, index), text.toStdString());
  };
  events.close = [this](const std::string& name) {
    if (formInSight(name) != nullptr) act([&] { closeWindow(runtime_, name); });
  };
  return events;
}

}  // namespace brolgan::desktop
