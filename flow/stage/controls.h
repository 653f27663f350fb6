// The controls of the screens as plain values. A face draws them and raises their events; the
// rules read and write them. Nothing here knows how a control looks.
#pragma once

#include <array>
#include <cstddef>
#include <functional>
#include <string>
#include <vector>

#include "flow/stage/outside.h"

namespace brolgan {

// The colours that carry meaning. Red is the colour value 255.
enum class Colour { buttonText, red, green, purple, black };

using Handler = std::function<void()>;

struct Label {
  std::string Caption;
  Colour ForeColor = Colour::buttonText;
  bool Visible = true;
  bool Enabled = true;
  const char* ToolTipText = "";
  Handler Click;
};

struct TextBox {
  std::string Text;
  bool Visible = true;
  bool Enabled = true;
  bool Locked = false;
  bool TabStop = true;
  bool MultiLine = false;
  Handler Click;
};

struct CommandButton {
  std::string Caption;
  bool Visible = true;
  bool Enabled = true;
  const char* Picture = "";
  Handler Click;
};

struct OptionButton {
  std::string Caption;
  bool Value = false;
  const char* ToolTipText = "";
  Handler Click;
};

struct Frame {
  std::string Caption;
  bool Visible = true;
};

struct PictureBox {
  std::string Picture;
  bool Visible = true;
};

// The rows of a combo box or list box and the selected one, -1 when there is none.
class Rows {
 public:
  void AddItem(std::string text) { rows_.push_back(std::move(text)); }
  // Removes a row that exists; a selection below it moves up, one on it is gone. Raises no event.
  void RemoveItem(int row);
  void Clear();
  [[nodiscard]] int ListCount() const { return static_cast<int>(rows_.size()); }
  [[nodiscard]] const std::string& List(int row) const { return rows_.at(static_cast<std::size_t>(row)); }
  [[nodiscard]] int ListIndex() const { return selected_; }
  // Selects a row, -1 for none, and raises the click event as selecting by hand does.
  void ListIndex(int row);
  // The selected row's text, empty without a selection.
  [[nodiscard]] std::string Text() const;

  Handler Click;

 private:
  std::vector<std::string> rows_;
  int selected_ = -1;
};

// A drop-down list; typing in it is not possible.
struct ComboBox : Rows {};

struct ListBox : Rows {};

// Plays one sound at a time, beside the game; what it plays ends with its form.
class MediaPlayer {
 public:
  MediaPlayer(Sounds& sounds, std::string name) : sounds_(sounds), name_(std::move(name)) {}
  MediaPlayer(const MediaPlayer&) = delete;
  MediaPlayer& operator=(const MediaPlayer&) = delete;
  ~MediaPlayer() { Stop(); }

  // Starts the file set and returns at once.
  void Play() { sounds_.play(name_, FileName); }
  // Ends what plays, for good: the form of the player is going.
  void Stop() {
    if (!stopped_) sounds_.stop(name_);
    stopped_ = true;
  }

  std::string FileName;

 private:
  Sounds& sounds_;
  std::string name_;
  bool stopped_ = false;
};

}  // namespace brolgan
