#include "flow/stage/form.h"

#include <algorithm>
#include <stdexcept>

namespace brolgan {

std::string member(std::string_view name, int index) { return std::string(name) + "(" + std::to_string(index) + ")"; }

std::string ControlEntry::fullName() const { return index < 0 ? name : member(name, index); }

const ControlEntry& ControlTable::find(std::string_view fullName) const {
  const auto found = std::find_if(entries_.begin(), entries_.end(),
                                  [&](const ControlEntry& entry) { return entry.fullName() == fullName; });
  if (found == entries_.end()) throw std::out_of_range("no control " + std::string(fullName));
  return *found;
}

const ControlTable& Form::controls() {
  if (table_.entries().empty()) listControls(table_);
  return table_;
}

void Form::stopPlayers() {
  for (const ControlEntry& entry : controls().entries()) {
    if (auto* const* const player = std::get_if<MediaPlayer*>(&entry.control)) (*player)->Stop();
  }
}

bool isReachable(const ControlEntry& entry) {
  const auto usable = [](const auto* control) {
    bool reachable = true;
    if constexpr (requires { control->Visible; }) reachable = reachable && control->Visible;
    if constexpr (requires { control->Enabled; }) reachable = reachable && control->Enabled;
    return reachable;
  };
  const bool shown = (entry.form == nullptr || entry.form->Visible) && (entry.frame == nullptr || entry.frame->Visible);
  return shown && std::visit(usable, entry.control);
}

}  // namespace brolgan
