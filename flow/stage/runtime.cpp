#include "flow/stage/runtime.h"

#include <algorithm>
#include <stdexcept>

namespace brolgan {

std::unique_ptr<Form> Runtime::make(std::string_view name) {
  const auto maker = makers_.find(name);
  if (maker == makers_.end()) throw std::logic_error("no form " + std::string(name));
  return maker->second(*this);
}

void Runtime::Load(std::string_view name) {
  if (ended_ || find(name) != nullptr) return;
  loaded_.emplace_back(name, make(name));
  Form& form = *loaded_.back().second;
  raise([&form] { form.Form_Load(); });
}

void Runtime::Unload(std::string_view name) {
  Form* const form = find(name);
  if (ended_ || form == nullptr) return;
  raise([this, form, name] {
    form->Form_Unload();
    form->stopPlayers();
    const auto found = position(name);
    auto* const place = &loaded_[static_cast<std::size_t>(found - loaded_.begin())];
    leaving_.push_back(std::move(place->second));
    loaded_.erase(found);
  });
}

void Runtime::Show(std::string_view name) {
  Load(name);
  if (Form* const form = find(name); form != nullptr && !ended_) form->Visible = true;
}

void Runtime::Hide(std::string_view name) {
  if (Form* const form = find(name)) form->Visible = false;
}

void Runtime::Reopen(std::string_view name) {
  Unload(name);
  Show(name);
}

void Runtime::Replace(std::string_view from, std::string_view to) {
  Hide(from);
  Unload(to);
  Show(to);
  Unload(from);
}

Form* Runtime::find(std::string_view name) const {
  const auto found = position(name);
  return found == loaded_.end() ? nullptr : found->second.get();
}

std::vector<std::string> Runtime::loaded() const {
  std::vector<std::string> names;
  for (const auto& [name, form] : loaded_) names.push_back(name);
  return names;
}

void Runtime::raise(const Handler& handler) {
  if (ended_) return;
  struct Depth {
    explicit Depth(Runtime& owner) : runtime(owner) { ++runtime.depth_; }
    ~Depth() {
      if (--runtime.depth_ == 0) runtime.leaving_.clear();
    }
    Depth(const Depth&) = delete;
    Depth& operator=(const Depth&) = delete;
    Runtime& runtime;
  } const depth(*this);
  handler();
}

std::string Runtime::LoadPicture(const std::string& name) {
  if (!name.empty()) outside_.pictures.load(name);
  return name;
}

Runtime::Loaded::const_iterator Runtime::position(std::string_view name) const {
  return std::find_if(loaded_.begin(), loaded_.end(), [name](const auto& entry) { return entry.first == name; });
}

}  // namespace brolgan
