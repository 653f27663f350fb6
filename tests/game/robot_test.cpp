// Thousands of whole games, played at random from the set-up to their ends.
#include "tests/robot/robot.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <map>
#include <set>
#include <string>
#include <vector>

#include "creation/creation.h"
#include "fight/fight.h"
#include "flow/setup.h"
#include "preparation/preparation.h"
#include "sheet/sheet.h"
#include "shop/shop.h"
#include "tests/game/invariants.h"
#include "tests/game/known_errors.h"

namespace brolgan::test {
namespace {

using robot::Ending;
using robot::Report;
using robot::Robot;

using Lines = std::vector<std::string>;

// Two thousand games, in rows that can run side by side.
constexpr int kRows = 4;
constexpr int kGames = 500;

// What many games together have shown.
struct Tally {
  std::map<Ending, int> endings;
  std::map<std::string, int> causes;
  std::set<std::string> touched;
  int turns = 0;
};

// Judges every act of one game.
class Judge {
 public:
  Judge(const World& world, Tally& tally) : invariants_(world), tally_(tally) {}

  void see(const Report& report) {
    tally_.touched.insert(report.last.form + "." + report.last.control);
    if (report.error || !complaint_.empty()) return;
    complaint_ = invariants_.check();
    if (!complaint_.empty()) complaint_ += " after " + report.last.form + "." + report.last.control;
  }
  [[nodiscard]] const std::string& complaint() const { return complaint_; }

 private:
  Invariants invariants_;
  Tally& tally_;
  std::string complaint_;
};

// Makes the last monster one that nearly every hero beats.
void tameLastMonster(World& world) {
  Lines monsters = world.lines("monsters.cfg");
  const auto name = std::find(monsters.begin(), monsters.end(), "Król Zagłady");
  *(name + 4) = "2";  // the highest face of its dice
  *(name + 6) = "0";
  *(name + 7) = "9";  // its endurance
  *(name + 8) = "0";
  world.write("monsters.cfg", monsters);
}

void play(std::uint64_t seed, Tally& tally) {
  World world(static_cast<double>(seed));
  if (seed % 4 == 0) tameLastMonster(world);
  Judge judge(world, tally);
  robot::Habits habits;
  if (seed % 5 == 0) habits.sillyTexts = 2;
  if (seed % 5 == 0) habits.misers = 8;
  Robot player(world, seed, habits);
  player.watcher = [&judge](const Report& report) { judge.see(report); };
  const Report report = player.play();
  EXPECT_EQ(judge.complaint(), "") << "game " << seed;
  if (report.error) {
    const std::string cause = causeOf(world, report);
    EXPECT_NE(cause, "") << "game " << seed << ", " << report.last.form << "." << report.last.control << ": "
                         << report.error->what();
    ++tally.causes[cause];
  }
  ++tally.endings[report.ending];
  tally.turns += report.turns;
}

// The controls of a screen that do something when they are clicked or chosen from, and that a
// player can reach at some time.
void addLiveControls(const std::string& name, Form& form, std::set<std::string>& live) {
  for (const ControlEntry& entry : form.controls().entries()) {
    const bool acts = std::visit(
        [](const auto* control) {
          if constexpr (requires { control->Click; }) return static_cast<bool>(control->Click);
          return false;
        },
        entry.control);
    const bool everReachable = isReachable(entry) || (entry.frame != nullptr && !entry.frame->Visible);
    if (acts && everReachable) live.insert(name + "." + entry.fullName());
  }
}

std::set<std::string> liveControls() {
  World world;
  std::set<std::string> live;
  const auto add = [&live](auto&& form) { addLiveControls(form.kName, form, live); };
  add(Main(world.runtime, world.scripted));
  add(CTmhero(world.runtime));
  add(CTsklep(world.runtime));
  add(Prefight(world.runtime, world.scripted));
  add(Fight(world.runtime, world.scripted));
  add(FHero(world.runtime));
  return live;
}

void expectAllEndings(const Tally& tally) {
  const auto count = [&](Ending ending) { return tally.endings.contains(ending) ? tally.endings.at(ending) : 0; };
  EXPECT_GT(count(Ending::lastLife), kGames / 3);
  EXPECT_GT(count(Ending::lastMonster), kGames / 100);
  EXPECT_GT(count(Ending::titleClosed), 0);
  EXPECT_LT(count(Ending::error), kGames / 3);
}

void expectAllCauses(const Tally& tally) {
  for (const char* cause :
       {"BullShots without a number in mana", "starting points beyond an Integer", "a budget above 32767 saved",
        "a reward beyond 32767 points", "a hero file that nobody has saved", "a hero saved without a file name",
        "a name that shifts the hero file"}) {
    EXPECT_TRUE(tally.causes.contains(cause)) << cause;
  }
}

void expectAllTouched(const Tally& tally) {
  for (const std::string& control : liveControls()) EXPECT_TRUE(tally.touched.contains(control)) << control;
}

class Robots : public testing::TestWithParam<int> {};

INSTANTIATE_TEST_SUITE_P(Rows, Robots, testing::Range(0, kRows));

// Only together do the games of a row show every end, error and control.
TEST_P(Robots, FiveHundredGamesEndInAllWaysAndWithoutAnErrorThatNoRuleNames) {
  Tally tally;
  const auto start = std::chrono::steady_clock::now();
  for (int i = 1; i <= kGames; ++i) play(static_cast<std::uint64_t>(GetParam() * kGames + i), tally);
  const std::chrono::duration<double> seconds = std::chrono::steady_clock::now() - start;
  RecordProperty("turns_per_second", std::to_string(tally.turns / seconds.count()));
  expectAllEndings(tally);
  expectAllCauses(tally);
  expectAllTouched(tally);
}

TEST(Robot, TheSameSeedPlaysTheSameGame) {
  World first(7);
  World second(7);
  const Report one = Robot(first, 7).play();
  const Report two = Robot(second, 7).play();
  EXPECT_EQ(one.clicks, two.clicks);
  EXPECT_EQ(one.turns, two.turns);
  EXPECT_EQ(first.files.contents, second.files.contents);
}

}  // namespace
}  // namespace brolgan::test
