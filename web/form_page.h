// The elements of one form, as they stand on the page: keeps what each shows and tells the browser what
// has changed. It outlives the form that it shows.
#pragma once

#include <string>
#include <vector>

#include "flow/stage/form.h"
#include "game/guide/news.h"
#include "sheet/sheet.h"

namespace brolgan::web {

// What an element of the page shows. As it stands here, so the page is served.
struct Shown {
  std::string text;
  std::string picture;
  Colour colour = Colour::buttonText;
  bool isVisible = true;
  bool isEnabled = true;
  bool isLocked = false;
  bool isTabStop = true;
  bool isChosen = false;
  const char* tip = "";
  std::string spoken;
  std::vector<std::string> rows;
  bool isHeaded = true;  // whether the rows have all that goes with them
  int selected = -1;
  bool isDimmed = false;
  bool isInviting = false;
};

class FormPage {
 public:
  explicit FormPage(std::string name) : name_(std::move(name)) {}

  [[nodiscard]] const std::string& name() const { return name_; }

  // Shows another form of the same kind from now on, as fresh as it was loaded.
  void bind(Form& form);
  // Makes the elements as those of a fresh form, which may be gone then, and lays them out unseen.
  void prepare(Form& fresh);
  // Forgets a form that is gone; another may come to lie at its address.
  void release() { form_ = nullptr; }
  [[nodiscard]] const Form* form() const { return form_; }
  [[nodiscard]] bool isShown() const { return isShown_; }

  // Makes every element like its control, and tells what is news.
  void mirrorAll();
  void setShown(bool shown);
  // A control is about to be used.
  void expectNews(const std::string& used);
  // Puts the keyboard on a control, on the form itself when the name is empty.
  void focusOn(const std::string& control) const;
  // The control that the keyboard stood on last, empty when there is none.
  [[nodiscard]] const std::string& focused() const { return focused_; }

  // Notes what a person has done to an element, so that it is not taken for a difference.
  void noteTyped(std::size_t entry, const std::string& text) { shown_.at(entry).text = text; }
  void noteSelected(std::size_t entry, int row) { shown_.at(entry).selected = row; }
  void noteFocused(const std::string& control) { focused_ = control; }

 private:
  [[nodiscard]] std::string idOf(const std::string& control) const { return name_ + "." + control; }
  void mirror();
  void showHeads(const FHero& sheet);
  void tellNews();

  std::string name_;
  Form* form_ = nullptr;
  std::string title_;
  std::vector<Shown> shown_;
  News news_;
  std::string focused_;
  bool isShown_ = false;
};

}  // namespace brolgan::web
