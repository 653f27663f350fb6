#include "game/guide/look.h"

namespace brolgan::guide {

namespace {

struct Answers {
  bool operator()(const Label* label) const { return static_cast<bool>(label->Click); }
  bool operator()(const TextBox* box) const { return box->TabStop; }
  bool operator()(const CommandButton*) const { return true; }
  bool operator()(const OptionButton* option) const { return option->Value; }
  bool operator()(const ComboBox*) const { return true; }
  bool operator()(const ListBox*) const { return true; }
  bool operator()(const Frame*) const { return false; }
  bool operator()(const PictureBox*) const { return false; }
  bool operator()(const MediaPlayer*) const { return false; }
};

}  // namespace

bool isUsable(const ControlEntry& entry) { return isReachable(entry) && std::visit(Answers(), entry.control); }

bool isUsable(Form& form, const std::string& name) { return isUsable(form.controls().find(name)); }

}  // namespace brolgan::guide
