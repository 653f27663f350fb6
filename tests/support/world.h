// A whole game in memory for one test: files, dice, clock, pictures and sounds that the test sets
// and inspects, and the runtime with all eight forms.
#pragma once

#include <memory>
#include <set>
#include <string>
#include <vector>

#include "flow/stage/hands.h"
#include "flow/stage/runtime.h"
#include "rules/handover.h"
#include "rules/hero.h"
#include "rules/random.h"

namespace brolgan::test {

class FixedClock : public Clock {
 public:
  double timer() override { return now; }
  double now = 43200.25;
};

// Answers every picture as there, except those named as missing or broken.
class FakePictures : public Pictures {
 public:
  void load(const std::string& name) override;

  std::vector<std::string> loaded;
  std::set<std::string> missing;
  std::set<std::string> broken;
};

// Remembers what was played, as "SFX czar.wav", and what was stopped, as "SFX stop".
class RecordingSounds : public Sounds {
 public:
  void play(const std::string& player, const std::string& fileName) override;
  void stop(const std::string& player) override;

  std::vector<std::string> events;
  // The files played, in order, without the stops.
  [[nodiscard]] std::vector<std::string> played() const;
};

// The random number that makes a die of faces kmin to kmax show face.
float rollOf(int kmin, int kmax, int face);

// Files in memory that can be told to store no more.
class FillingFiles : public MemoryFiles {
 public:
  void append(const std::string& name, std::string_view bytes) override;

  // How many more writings find room.
  int room = 1'000'000;
};

class World {
 public:
  // With dice that the test scripts; each draw that no script foresees fails the test.
  World();
  // With a generator that the screens seed from the clock.
  explicit World(double timer);

  // Adds the draws that make dice show these faces.
  void roll(int kmin, int kmax, const std::vector<int>& faces);
  // Draws that were scripted and not used.
  [[nodiscard]] std::size_t unusedRolls() const { return scripted.left(); }

  // The form of that name; fails when it is not loaded.
  [[nodiscard]] Form& form(const std::string& name) const;
  [[nodiscard]] bool isOpen(const std::string& name) const { return runtime.find(name) != nullptr; }
  [[nodiscard]] bool isShown(const std::string& name) const { return isOpen(name) && form(name).Visible; }

  // What a person can do; each answers whether the control could be reached.
  bool click(const std::string& formName, const std::string& control);
  bool select(const std::string& formName, const std::string& control, const std::string& row);
  bool selectRow(const std::string& formName, const std::string& control, int row);
  bool type(const std::string& formName, const std::string& control, const std::string& text);

  // What a person can see.
  template <class Control>
  [[nodiscard]] Control& get(const std::string& formName, const std::string& control) const {
    return *std::get<Control*>(form(formName).controls().find(control).control);
  }
  [[nodiscard]] std::string caption(const std::string& formName, const std::string& label) const;
  [[nodiscard]] std::string text(const std::string& formName, const std::string& control) const;
  [[nodiscard]] bool isVisible(const std::string& formName, const std::string& control) const;
  [[nodiscard]] bool isEnabled(const std::string& formName, const std::string& control) const;
  [[nodiscard]] Colour colour(const std::string& formName, const std::string& label) const;
  [[nodiscard]] std::vector<std::string> rows(const std::string& formName, const std::string& list) const;

  // Files by line: write() ends every line as the game does and encodes the text; line() counts
  // from 1 and gives the text back, lines() all of them.
  void write(const std::string& name, const std::vector<std::string>& lines);
  [[nodiscard]] std::vector<std::string> lines(const std::string& name) const;
  [[nodiscard]] std::string line(const std::string& name, int number) const;
  [[nodiscard]] bool exists(const std::string& name) const { return files.contents.contains(name); }

  // Heroes: writes one to a file, or reads one back.
  void writeHero(const std::string& name, const Bohater& hero);
  [[nodiscard]] Bohater hero(const std::string& name);
  void writeFightFile(const FightSetup& setup);

  FillingFiles files;
  ScriptedRandom scripted;
  SeededRandom seeded;
  FixedClock clock;
  FakePictures pictures;
  RecordingSounds sounds;
  Runtime runtime;

 private:
  void prepare(RandomSource& random);
};

// A hero as creation makes him with nothing bought: step 1 everywhere, the first weapon of each
// kind, class "Strzelec" without its percents unless set, turn 1.
Bohater plainHero();

// A monster group for fight.cfg: one "Szczur", speed 5, attack 1k4, endurance 20, armour 0.
FightSetup plainFight();

// The project's own data files, as they lie in assets/.
std::string assetBytes(const std::string& name);

// The code of the run-time error that doing it raises, 0 when it raises none.
int errorOf(const Handler& doing);
// The whole text of that error, empty when there is none.
std::string errorTextOf(const Handler& doing);

}  // namespace brolgan::test
