// A form for the tests of the stage: one control of each kind, inside a frame or outside, and a
// diary of what happens to it.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "flow/stage/runtime.h"

namespace brolgan::test {

using Diary = std::vector<std::string>;

class Probe : public Form {
 public:
  Probe(Runtime& runtime, std::string name, Diary& diary)
      : player(runtime.sounds(), name), diary_(diary), name_(std::move(name)) {
    const auto noting = [this](const char* what) { return [this, what] { note(what); }; };
    label.Click = noting("label");
    button.Click = noting("button");
    box.Click = noting("box");
    combo.Click = noting("combo");
    list.Click = noting("list");
    framed.Click = noting("framed");
    framedCombo.Click = noting("framedCombo");
    for (OptionButton& option : options) option.Click = noting("option");
    for (const char* const row : {"a", "b"}) {
      combo.AddItem(row);
      list.AddItem(row);
      framedCombo.AddItem(row);
    }
  }
  ~Probe() override { note("gone"); }

  void Form_Load() override {
    note("load");
    if (onLoad) onLoad();
  }
  void Form_Unload() override { note(Visible ? "unload visible" : "unload"); }

  void note(const std::string& what) { diary_.push_back(name_ + " " + what); }

  Label label{"napis"};
  CommandButton button{"przycisk"};
  TextBox box{"tekst"};
  OptionButton other;
  std::array<OptionButton, 3> options;
  ComboBox combo;
  ListBox list;
  Frame frame;
  CommandButton framed;
  TextBox framedBox;
  ComboBox framedCombo;
  PictureBox picture;
  MediaPlayer player;
  Handler onLoad;

 protected:
  void listControls(ControlTable& table) override {
    table.add("label", label);
    table.add("button", button);
    table.add("box", box);
    table.add("other", other);
    table.add("option", options);
    table.add("combo", combo);
    table.add("list", list);
    table.add("frame", frame);
    table.add("framed", framed, &frame);
    table.add("framedBox", framedBox, &frame);
    table.add("framedCombo", framedCombo, &frame);
    table.add("picture", picture);
    table.add("player", player);
  }

 private:
  Diary& diary_;
  std::string name_;
};

}  // namespace brolgan::test
