// The game without a face, for the tests of the page: does what the lines of its input say and answers
// each with one line that tells all that can be seen.
//
//   clock SECONDS | file NAME PATH | gone NAME | nopicture NAME | folder NAME: set the world up, without an
//     answer; files are looked for in the folder
//   start: starts the program anew on the files that are there
//   click FORM CONTROL | select FORM CONTROL = ROW | type FORM CONTROL = TEXT | close FORM
//   files: every file as NAME:BYTES in hexadecimal digits
//
// An answer is a list of fields, parted by tabs: "ended", "error TEXT" or a line for every control of every
// form in sight, its parts parted by the character 1 and its rows by the character 2, and one for the control
// that the keyboard stands on.
#include <exception>
#include <fstream>
#include <iostream>
#include <iterator>
#include <map>
#include <memory>
#include <set>
#include <sstream>
#include <string>
#include <utility>

#include "game/guide/error_text.h"
#include "game/guide/keys.h"
#include "game/guide/next_hand.h"
#include "game/guide/spoken.h"
#include "game/names/names.h"
#include "tests/game/replay.h"
#include "tests/support/world.h"

namespace {

using namespace brolgan;
using test::World;

const char* colourOf(Colour colour) {
  constexpr const char* kNames[] = {"plain", "red", "green", "purple", "black"};
  return kNames[static_cast<int>(colour)];
}

// What a person can see and hear of a control, in the order of the parts of a line.
struct Seen {
  std::string text;
  std::string colour = "plain";
  bool isVisible = true;
  bool isEnabled = true;
  std::string rows;
  int row = -1;
  std::string tip;
  bool isLocked = false;
  bool isPassedOver = false;
  bool isChosen = false;
  std::string spoken;
  char key = 0;
};

bool isList(const ControlEntry& entry) {
  return std::holds_alternative<ComboBox*>(entry.control) || std::holds_alternative<ListBox*>(entry.control);
}

Seen seen(const std::string& form, const ControlEntry& entry) {
  Seen result;
  result.spoken = isList(entry) ? spokenName(form, entry) : spoken(form, entry);
  result.key = accessKey(form, entry);
  if (isCheckable(form, entry)) result.isChosen = isChecked(entry);
  const auto look = [&result](const auto* control) {
    if constexpr (requires { control->Caption; }) result.text = control->Caption;
    if constexpr (requires { std::string(control->Picture); }) {
      if (!std::string(control->Picture).empty()) result.text = control->Picture;
    }
    if constexpr (requires { control->Locked; }) {
      result.text = control->Text;
      result.isLocked = control->Locked;
      result.isPassedOver = !control->TabStop;
    }
    if constexpr (requires { control->ForeColor; }) result.colour = colourOf(control->ForeColor);
    if constexpr (requires { control->Visible; }) result.isVisible = control->Visible;
    if constexpr (requires { control->Enabled; }) result.isEnabled = control->Enabled;
    if constexpr (requires { control->ToolTipText; }) result.tip = control->ToolTipText;
    if constexpr (requires { control->Value; }) result.isChosen = control->Value;
    if constexpr (requires { control->ListCount(); }) {
      for (int i = 0; i < control->ListCount(); ++i) result.rows += control->List(i) + '\2';
      result.row = control->ListIndex();
    }
  };
  std::visit(look, entry.control);
  return result;
}

std::string lineOf(const std::string& form, const ControlEntry& entry) {
  const Seen part = seen(form, entry);
  std::ostringstream line;
  line << form << '.' << entry.fullName() << '\1' << part.text << '\1' << part.colour << '\1' << part.isVisible << '\1'
       << part.isEnabled << '\1' << part.rows << '\1' << part.row << '\1' << part.tip << '\1' << part.isLocked << '\1'
       << part.isPassedOver << '\1' << part.isChosen << '\1' << part.spoken << '\1'
       << (part.key == 0 ? std::string() : std::string(1, part.key));
  return line.str();
}

std::string escaped(const std::string& text) {
  std::string result;
  for (const char c : text) result += c == '\n' ? std::string("\\n") : std::string(1, c);
  return result;
}

// Where the keyboard stands, as the guide says, when nobody moves it by hand.
class Hand {
 public:
  explicit Hand(const World& world) : world_(world) {}

  // Follows what has come of an act on a control.
  void follow(const std::string& form, const std::string& used) {
    const std::map<std::string, const Form*> before = std::exchange(shown_, formsInSight());
    bool hasOpened = false;
    for (const std::string& name : world_.runtime.loaded()) {
      const auto known = before.find(name);
      if (!shown_.contains(name) || (known != before.end() && known->second == shown_.at(name))) continue;
      places_[name] = name;
      standOn(name, hands_[name].begin(name, world_.form(name)));
      hasOpened = true;
    }
    if (hasOpened) return;
    if (before.size() != shown_.size()) {
      for (const std::string& name : world_.runtime.loaded()) {
        if (shown_.contains(name)) on_ = name;
      }
    } else if (shown_.contains(form)) {
      const std::string& place = places_[form];
      const std::string focused = place == form ? "" : place.substr(form.size() + 1);
      standOn(form, hands_[form].after(form, world_.form(form), used, focused));
    }
  }

  [[nodiscard]] std::string place() const { return places_.at(on_); }

 private:
  [[nodiscard]] std::map<std::string, const Form*> formsInSight() const {
    std::map<std::string, const Form*> forms;
    for (const std::string& name : world_.runtime.loaded()) {
      if (world_.isShown(name)) forms[name] = &world_.form(name);
    }
    return forms;
  }
  void standOn(const std::string& form, const std::string& control) {
    on_ = form;
    if (!control.empty()) places_[form] = form + "." + control;
  }

  const World& world_;
  std::map<std::string, NextHand> hands_;
  std::map<std::string, const Form*> shown_;
  std::map<std::string, std::string> places_;  // an element's id by form
  std::string on_;
};

class Table {
 public:
  void obey(const std::string& line) {
    std::istringstream words(line);
    std::string verb;
    words >> verb;
    if (verb == "start") return start();
    if (verb == "files") return showFiles();
    if (!setUp(verb, words)) act(line);
  }

 private:
  bool setUp(const std::string& verb, std::istream& words) {
    std::string name;
    if (verb == "clock") return static_cast<bool>(words >> now_);
    if (verb == "folder") return static_cast<bool>(words >> folder_);
    if (verb != "file" && verb != "gone" && verb != "nopicture") return false;
    words >> name;
    if (verb == "nopicture") missing_.insert(name);
    if (verb == "gone") files_.erase(name);
    if (verb == "file") {
      std::string path;
      words >> path;
      std::ifstream file(path, std::ios::binary);
      files_[name] = {std::istreambuf_iterator<char>(file), {}};
    }
    if (world_) world_->files.contents = files_;
    return true;
  }

  void start() {
    world_ = std::make_unique<World>(now_);
    world_->files.contents = files_;
    world_->pictures.missing = missing_;
    hand_ = std::make_unique<Hand>(*world_);
    answer([this] {
      world_->runtime.Show(screens::kStart);
      hand_->follow({}, {});
    });
  }

  void act(const std::string& line) {
    world_->clock.now = now_;
    const test::Act act = test::readActs(line).at(0);
    answer([&] {
      test::perform(*world_, act);
      if (act.verb != "type") hand_->follow(act.form, act.control);
    });
  }

  void answer(const Handler& doing) {
    std::string error;
    try {
      doing();
    } catch (...) {
      error = errorText(std::current_exception(), [this](const std::string&) { return folder_; });
    }
    files_ = world_->files.contents;
    if (!error.empty()) {
      std::cout << "error " << escaped(error);
    } else if (world_->runtime.ended()) {
      std::cout << "ended";
    } else {
      show();
    }
    std::cout << std::endl;
  }

  void show() const {
    for (const std::string& name : world_->runtime.loaded()) {
      Form& form = *world_->runtime.find(name);
      if (!form.Visible) continue;
      std::cout << name << '\1' << form.Caption << '\t';
      for (const ControlEntry& entry : form.controls().entries()) {
        if (!std::holds_alternative<MediaPlayer*>(entry.control)) std::cout << escaped(lineOf(name, entry)) << '\t';
      }
    }
    std::cout << "hand " << hand_->place();
  }

  void showFiles() const {
    static constexpr char kDigits[] = "0123456789abcdef";
    for (const auto& [name, bytes] : files_) {
      std::cout << name << ':';
      for (const char c : bytes) {
        const auto byte = static_cast<unsigned char>(c);
        std::cout << kDigits[byte / 16] << kDigits[byte % 16];
      }
      std::cout << '\t';
    }
    std::cout << std::endl;
  }

  std::unique_ptr<World> world_;
  std::unique_ptr<Hand> hand_;
  double now_ = 36000;
  test::Contents files_;
  std::set<std::string> missing_;
  std::string folder_;
};

}  // namespace

int main() {
  Table table;
  for (std::string line; std::getline(std::cin, line);) table.obey(line);
}
