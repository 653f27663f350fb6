#include "desktop/face.h"

#include <QCoreApplication>
#include <QGuiApplication>
#include <QScreen>
#include <cstdio>

#include "desktop/access.h"
#include "desktop/error_box.h"
#include "desktop/picture_store.h"
#include "desktop/text.h"
#include "flow/stage/hands.h"
#include "game/names/names.h"

namespace brolgan::desktop {

namespace {

const ControlEntry& entryOf(Form& form, std::size_t index) { return form.controls().entries()[index]; }

}  // namespace

Face::Face(Runtime& runtime, PictureStore& pictures) : runtime_(runtime), pictures_(pictures) {
  installAccess();
  // What Qt itself does with the windows of a screen that goes comes first.
  connect(
      qGuiApp, &QGuiApplication::screenRemoved, this, [this] { rescueWindows(); }, Qt::QueuedConnection);
}

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
    windows_[name] = std::make_unique<FormWindow>(name, opened, pictures_, events(), unitOfNext());
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
      places_.remember(*window);
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
  if (window.isVisible() && !isFresh) {
    window.tellNews();
    return;
  }
  if (!window.isVisible()) places_.place(window, inTurn(&window));
  window.show();
  window.preparePictures();
  window.raise();
  window.activateWindow();
  window.focusOn(hands_[name].begin(name, shown));
  window.tellNews();
}

// The screen that is in turn: what opens takes its place, or stands beside it.
const FormWindow* Face::inTurn(const FormWindow* next) const {
  for (const auto& [name, window] : windows_) {
    const Place place = window->layoutOf().place;
    const bool isInTurn = place == Place::turn || place == Place::bottom;
    if (isInTurn && window.get() != next && window->isVisible()) return window.get();
  }
  return nullptr;
}

qreal Face::unitOfNext() const {
  const FormWindow* const before = inTurn(nullptr);
  if (before != nullptr && before->layoutOf().takesTurns()) return before->unit().value();
  return Places::unitOn(before == nullptr ? *QGuiApplication::primaryScreen() : *before->screen());
}

void Face::rescueWindows() {
  for (const auto& [name, window] : windows_) {
    if (window->isVisible()) Places::rescue(*window);
  }
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
    use(name, index, [this, index](Form& target) { click(runtime_, target, entryOf(target, index)); });
  };
  events.select = [this](const std::string& name, std::size_t index, int row) {
    use(name, index, [this, index, row](Form& target) { select(runtime_, entryOf(target, index), row); });
  };
  events.type = [this](const std::string& name, std::size_t index, const QString& text) {
    Form* const target = formInSight(name);
    if (target != nullptr) type(entryOf(*target, index), text.toStdString());
  };
  events.close = [this](const std::string& name) {
    if (formInSight(name) != nullptr) act([&] { closeWindow(runtime_, name); });
  };
  events.escape = [this](const std::string& name) {
    Form* const target = formInSight(name);
    const std::string control = target == nullptr ? std::string() : escapeControl(name, *target);
    if (control.empty()) return;
    const auto& entries = target->controls().entries();
    for (std::size_t i = 0; i < entries.size(); ++i) {
      if (entries[i].fullName() == control) {
        use(name, i, [this, i](Form& form) { click(runtime_, form, entryOf(form, i)); });
        return;
      }
    }
  };
  return events;
}

void Face::use(const std::string& name, std::size_t index, const std::function<void(Form&)>& doing) {
  Form* const target = formInSight(name);
  if (target == nullptr) return;
  const std::string used = entryOf(*target, index).fullName();
  const std::string focused = window(name)->focused();
  window(name)->expectNews(used);
  act([&] { doing(*target); });
  if (form(name) == target) follow(name, used, focused);
}

void Face::follow(const std::string& name, const std::string& used, const std::string& focused) {
  Form* const seen = formInSight(name);
  if (seen != nullptr) window(name)->focusOn(hands_[name].after(name, *seen, used, focused));
}

}  // namespace brolgan::desktop
