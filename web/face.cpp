#include "web/face.h"

#include <array>

#include "flow/stage/hands.h"
#include "game/game.h"
#include "game/guide/error_text.h"
#include "game/guide/keys.h"
#include "game/names/names.h"
#include "web/page.h"

namespace brolgan::web {

namespace {

// The screens behind the set-up, the sooner to be seen the earlier.
constexpr std::array kLater = {screens::kCreation, screens::kShop, screens::kPreparation, screens::kFight,
                               screens::kSheet};

// Files lie in the page's memory; those that it brings are looked for in the folder that it came from.
std::string folderOf(const std::string& file) {
  std::array<char, 2048> address{};
  page_folder(file.c_str(), address.data(), static_cast<int>(address.size()));
  return address.data();
}

}  // namespace

void Face::start() {
  isOver_ = false;
  isTouched_ = false;
  for (auto& [name, shown] : pages_) shown.release();
  runtime_ = std::make_unique<Runtime>(outside_);
  offerScreens(*runtime_, random_);
  page_ended(false);
  act([this] { runtime_->Show(screens::kStart); });
}

bool Face::prepare() {
  for (const char* const name : kLater) {
    const auto [place, isNew] = pages_.try_emplace(name, name);
    if (!isNew) continue;
    place->second.prepare(*runtime_->make(name));
    return true;
  }
  return false;
}

void Face::act(const std::function<void()>& doing) {
  if (isOver_) return;
  hasTurned_ = false;
  try {
    doing();
    synchronize();
  } catch (...) {
    fail(std::current_exception());
  }
}

// The page tells of the error first and of the end when the box is closed; all windows stay till then.
void Face::fail(const std::exception_ptr& error) {
  isOver_ = true;
  runtime_->End();
  page_error(errorText(error, folderOf).c_str());
}

void Face::synchronize() {
  if (runtime_->ended()) {
    isOver_ = true;
    end();
    return;
  }
  const bool hasOpened = showOpened();
  const bool hasClosed = hideClosed();
  hasTurned_ = hasOpened || hasClosed;
  if (!hasClosed || hasOpened) return;
  // What lay behind a form that is gone has the keyboard again.
  FormPage* left = nullptr;
  for (const std::string& name : runtime_->loaded()) {
    if (const std::optional<Target> seen = formInSight(name)) left = seen->page;
  }
  if (left != nullptr) left->focusOn(left->focused());
}

// Answers whether a form has appeared.
bool Face::showOpened() {
  bool hasOpened = false;
  for (const std::string& name : runtime_->loaded()) {
    Form& form = *runtime_->find(name);
    if (form.Visible && show(name, form)) hasOpened = true;
  }
  return hasOpened;
}

bool Face::show(const std::string& name, Form& form) {
  FormPage& page = pages_.try_emplace(name, name).first->second;
  const bool isFresh = page.form() != &form;
  if (isFresh) page.bind(form);
  if (page.isShown() && !isFresh) {
    page.mirrorAll();
    return false;
  }
  page.setShown(true);
  page.mirrorAll();
  page.focusOn(hands_[name].begin(name, form));
  return true;
}

// Answers whether a form has gone. Another may come to lie at its address.
bool Face::hideClosed() {
  bool hasClosed = false;
  for (auto& [name, page] : pages_) {
    const Form* const form = runtime_->find(name);
    if (form == nullptr) page.release();
    if (page.isShown() && (form == nullptr || !form->Visible)) {
      page.setShown(false);
      hasClosed = true;
    }
  }
  return hasClosed;
}

void Face::end() {
  for (auto& [name, shown] : pages_) shown.setShown(name == screens::kTitle);
  page_ended(true);
}

std::optional<Face::Target> Face::formInSight(std::string_view name) {
  const auto found = pages_.find(name);
  if (isOver_ || found == pages_.end() || !found->second.isShown()) return {};
  Form* const form = runtime_->find(name);
  if (form == nullptr || !form->Visible) return {};
  return Target{&found->second, form, 0};
}

std::optional<Face::Target> Face::find(std::string_view id) {
  const std::size_t dot = id.find('.');
  if (dot == std::string_view::npos) return {};
  return find(id.substr(0, dot), id.substr(dot + 1));
}

std::optional<Face::Target> Face::find(std::string_view form, std::string_view control) {
  std::optional<Target> target = formInSight(form);
  if (!target) return {};
  const auto& entries = target->form->controls().entries();
  for (target->index = 0; target->index < entries.size(); ++target->index) {
    if (target->entry().fullName() == control) return target;
  }
  return {};
}

void Face::use(const Target& at, const std::function<void(const Target&)>& doing) {
  isTouched_ = true;
  const std::string name = at.page->name();
  const std::string used = at.entry().fullName();
  const std::string focused = at.page->focused();
  at.page->expectNews(used);
  act([&] { doing(at); });
  const std::optional<Target> seen = formInSight(name);
  if (!hasTurned_ && seen && seen->form == at.form)
    seen->page->focusOn(hands_[name].after(name, *seen->form, used, focused));
}

void Face::click(std::string_view id) {
  const std::optional<Target> found = find(id);
  if (found) use(*found, [this](const Target& at) { brolgan::click(*runtime_, *at.form, at.entry()); });
}

void Face::select(std::string_view id, int row) {
  const std::optional<Target> found = find(id);
  if (!found) return;
  found->page->noteSelected(found->index, row);
  use(*found, [this, row](const Target& at) { brolgan::select(*runtime_, at.entry(), row); });
}

void Face::type(std::string_view id, const std::string& text) {
  const std::optional<Target> found = find(id);
  if (!found) return;
  isTouched_ = true;
  if (brolgan::type(found->entry(), text)) found->page->noteTyped(found->index, text);
}

void Face::focus(std::string_view id) {
  const std::optional<Target> found = find(id);
  if (found) found->page->noteFocused(found->entry().fullName());
}

void Face::close(std::string_view form) {
  if (!formInSight(form)) return;
  isTouched_ = true;
  act([&] { closeWindow(*runtime_, form); });
}

void Face::escape(std::string_view form) {
  const std::optional<Target> seen = formInSight(form);
  const std::optional<Target> found = seen ? find(form, escapeControl(seen->page->name(), *seen->form)) : seen;
  if (found) use(*found, [this](const Target& at) { brolgan::click(*runtime_, *at.form, at.entry()); });
}

// Letters press a button and put the keyboard on a list.
bool Face::reach(std::string_view form, char key) {
  std::optional<Target> at = formInSight(form);
  if (!at) return false;
  const std::size_t count = at->form->controls().entries().size();
  for (at->index = 0; at->index < count; ++at->index) {
    const ControlEntry& entry = at->entry();
    if (accessKey(at->page->name(), entry) != key || !isReachable(entry)) continue;
    at->page->focusOn(entry.fullName());
    if (std::holds_alternative<CommandButton*>(entry.control)) {
      use(*at, [this](const Target& used) { brolgan::click(*runtime_, *used.form, used.entry()); });
    }
    return true;
  }
  return false;
}

}  // namespace brolgan::web
