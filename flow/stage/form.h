// A screen: its controls by name and its load and unload handlers. The table of controls serves
// the face, the tests and the robot alike; its order is the order of the keyboard.
#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "flow/stage/controls.h"

namespace brolgan {

using ControlPointer = std::variant<Label*, TextBox*, CommandButton*, OptionButton*, Frame*, PictureBox*, ComboBox*,
                                    ListBox*, MediaPlayer*>;

class Form;

// The name of a member of a control array: "PLUS(7)".
std::string member(std::string_view name, int index);

// One control of a form: "Imie", or "PLUS(7)" for a member of an array.
struct ControlEntry {
  std::string name;
  int index = -1;
  ControlPointer control;
  // The frame that holds the control; null when it lies on the form itself.
  const Frame* frame = nullptr;
  // The form that owns it; null in a table that stands by itself.
  const Form* form = nullptr;

  [[nodiscard]] std::string fullName() const;
};

class ControlTable {
 public:
  explicit ControlTable(const Form* owner = nullptr) : owner_(owner) {}

  template <class Control>
  void add(const char* name, Control& control, const Frame* frame = nullptr) {
    addMember(name, -1, control, frame);
  }
  template <class Control, std::size_t Size>
  void add(const char* name, std::array<Control, Size>& controls, const Frame* frame = nullptr) {
    for (std::size_t i = 0; i < Size; ++i) addMember(name, static_cast<int>(i), controls[i], frame);
  }
  template <class Control>
  void addMember(const char* name, int index, Control& control, const Frame* frame = nullptr) {
    entries_.push_back({name, index, &control, frame, owner_});
  }

  [[nodiscard]] const std::vector<ControlEntry>& entries() const { return entries_; }
  // The control of that full name; raises std::out_of_range when the form has none.
  [[nodiscard]] const ControlEntry& find(std::string_view fullName) const;

 private:
  const Form* owner_;
  std::vector<ControlEntry> entries_;
};

class Form {
 public:
  Form() = default;
  Form(const Form&) = delete;
  Form& operator=(const Form&) = delete;
  virtual ~Form() = default;

  // The handlers of the form itself. Load runs once, before anything is shown.
  virtual void Form_Load() {}
  virtual void Form_Unload() {}

  [[nodiscard]] const ControlTable& controls();
  // Stops all media players of the form. A form that is loaded again at once has players of the
  // same names, which the old ones must not silence later.
  void stopPlayers();

  std::string Caption;
  bool Visible = false;

 protected:
  // Lists every control of the form in the order of the keyboard.
  virtual void listControls(ControlTable& table) = 0;

 private:
  ControlTable table_{this};
};

// Whether a person can reach the control now: it is visible, enabled, in no hidden frame and on no
// hidden form.
bool isReachable(const ControlEntry& entry);

}  // namespace brolgan
