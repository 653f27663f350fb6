// What a widget of a screen must be: rows that a test writes down, one a control.
#pragma once

#include <QColor>
#include <string>
#include <utility>
#include <vector>

#include "tests/desktop/stage.h"

namespace brolgan::test {

enum class Kind { label, textBox, notes, button, option, frame, comboBox, listBox, picture };
// Current values are green; a badge is light on a dark ground; what only keeps the place of words is pale.
enum class Ink { plain, red, green, purple, black, grey, current, badge, pale };

struct Expected {
  std::string name;
  Kind kind;
  std::string text;
  std::string toolTip;
  std::string frame;
  Ink ink = Ink::plain;
  bool visible = true;
  bool enabled = true;

  Expected tip(std::string words) && { return toolTip = std::move(words), std::move(*this); }
  Expected in(std::string name_) && { return frame = std::move(name_), std::move(*this); }
  Expected drawn(Ink with) && { return ink = with, std::move(*this); }
  Expected hidden() && { return visible = false, std::move(*this); }
  // Deaf to clicks and grey.
  Expected disabled() && { return enabled = false, ink = Ink::grey, std::move(*this); }
};

using Expectations = std::vector<Expected>;

inline Expected expected(Kind kind, std::string name, std::string text = {}) {
  return {std::move(name), kind, std::move(text), {}, {}};
}
inline Expected label(std::string name, std::string text) {
  return expected(Kind::label, std::move(name), std::move(text));
}
inline Expected button(std::string name, std::string text) {
  return expected(Kind::button, std::move(name), std::move(text));
}

// An array of labels with these captions, in a frame unless that is empty. red is the index of the
// only red one, -1 for none.
inline Expectations labels(const std::string& array, const std::vector<std::string>& captions,
                           const std::string& frame = {}, int red = -1) {
  Expectations all;
  for (int i = 0; i < static_cast<int>(captions.size()); ++i) {
    all.push_back(label(member(array, i), captions[static_cast<std::size_t>(i)]).in(frame));
    if (i == red) all.back().ink = Ink::red;
  }
  return all;
}

// A row that the list holds, to change what is special about it.
inline Expected& of(Expectations& all, const std::string& name) {
  for (Expected& one : all) {
    if (one.name == name) return one;
  }
  throw std::logic_error("no expectation of " + name);
}

inline void add(Expectations& all, const Expectations& more) { all.insert(all.end(), more.begin(), more.end()); }

// Compares a screen with all its rows, and sees that no control of the form is without one.
void expectScreen(const Stage& stage, const std::string& form, const Expectations& rows);

}  // namespace brolgan::test
