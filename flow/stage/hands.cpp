#include "flow/stage/hands.h"

namespace brolgan {

namespace {

void selectOption(Form& form, const ControlEntry& chosen) {
  for (const ControlEntry& entry : form.controls().entries()) {
    auto* const* const option = std::get_if<OptionButton*>(&entry.control);
    if (option != nullptr && entry.name == chosen.name) (*option)->Value = entry.index == chosen.index;
  }
}

}  // namespace

bool click(Runtime& runtime, Form& form, const ControlEntry& entry) {
  if (!isReachable(entry)) return false;
  if (std::holds_alternative<OptionButton*>(entry.control)) selectOption(form, entry);
  const auto raise = [&runtime](auto* control) {
    constexpr bool isList = requires { control->ListCount(); };
    if constexpr (!isList && requires { control->Click; }) {
      if (control->Click) runtime.raise(control->Click);
    }
  };
  std::visit(raise, entry.control);
  return true;
}

bool select(Runtime& runtime, const ControlEntry& entry, int row) {
  if (!isReachable(entry)) return false;
  const auto choose = [&](auto* control) {
    if constexpr (requires { control->ListIndex(row); }) {
      if (row >= control->ListCount()) return false;
      runtime.raise([&] { control->ListIndex(row); });
      return true;
    }
    return false;
  };
  return std::visit(choose, entry.control);
}

bool type(const ControlEntry& entry, const std::string& text) {
  auto* const* const box = std::get_if<TextBox*>(&entry.control);
  if (box == nullptr || !isReachable(entry) || (*box)->Locked) return false;
  (*box)->Text = text;
  return true;
}

void closeWindow(Runtime& runtime, std::string_view formName) { runtime.Unload(formName); }

}  // namespace brolgan
