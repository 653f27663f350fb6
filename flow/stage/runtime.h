// The stage on which the screens play: it loads, unloads, shows and hides them by name, ends the
// program, and hands out the services. A screen knows the others by their names alone.
#pragma once

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "flow/stage/form.h"
#include "flow/stage/outside.h"
#include "flow/text/files.h"
#include "flow/text/item_reader.h"
#include "flow/text/item_writer.h"

namespace brolgan {

// The services that a run of the game stands on; all outlive the runtime.
struct Outside {
  Files& files;
  Clock& clock;
  Pictures& pictures;
  Sounds& sounds;
};

class Runtime {
 public:
  using Maker = std::function<std::unique_ptr<Form>(Runtime&)>;

  explicit Runtime(Outside outside) : outside_(outside) {}
  Runtime(const Runtime&) = delete;
  Runtime& operator=(const Runtime&) = delete;
  ~Runtime() = default;

  // Makes a form known under its name.
  void offer(std::string name, Maker maker) { makers_[std::move(name)] = std::move(maker); }

  // The form with its design values alone: neither loaded nor known to any other.
  [[nodiscard]] std::unique_ptr<Form> make(std::string_view name);
  // Makes the form and runs its load handler, if it is not loaded yet.
  void Load(std::string_view name);
  // Runs the unload handler and takes the form away; harmless when it is not loaded.
  void Unload(std::string_view name);
  // Loads the form if needed and makes it visible.
  void Show(std::string_view name);
  // Makes the form invisible and keeps its state.
  void Hide(std::string_view name);
  // Loads the form afresh and shows it beside what is open.
  void Reopen(std::string_view name);
  // Goes from one screen to the next, which starts afresh; the one left is unloaded last.
  void Replace(std::string_view from, std::string_view to);
  // Ends the program: from here on no form is loaded or shown and no event is raised.
  void End() { ended_ = true; }
  [[nodiscard]] bool ended() const { return ended_; }

  // The form of that name, null when it is not loaded.
  [[nodiscard]] Form* find(std::string_view name) const;
  // The names of the loaded forms in the order in which they were loaded.
  [[nodiscard]] std::vector<std::string> loaded() const;

  // Runs an event handler. A form that unloads itself in it lives until the handler is done.
  void raise(const Handler& handler);

  // Seconds since midnight.
  double Timer() { return outside_.clock.timer(); }
  Sounds& sounds() { return outside_.sounds; }
  ItemReader OpenForInput(const std::string& name) { return {name, outside_.files.open(name)}; }
  ItemWriter OpenForOutput(const std::string& name) { return {outside_.files, name}; }
  // The picture of that file name, ready to be put into a picture box; an empty name is no
  // picture. Raises fileNotFound when the file is missing and invalidPicture when it is no picture.
  std::string LoadPicture(const std::string& name);

 private:
  using Loaded = std::vector<std::pair<std::string, std::unique_ptr<Form>>>;

  Loaded::const_iterator position(std::string_view name) const;

  Outside outside_;
  std::map<std::string, Maker, std::less<>> makers_;
  std::vector<std::unique_ptr<Form>> leaving_;
  Loaded loaded_;
  int depth_ = 0;
  bool ended_ = false;
};

}  // namespace brolgan
