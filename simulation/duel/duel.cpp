#include "simulation/duel/duel.h"

#include <charconv>
#include <cmath>
#include <memory>
#include <sstream>
#include <stdexcept>
#include <vector>

#include "fight/fight.h"
#include "rules/handover.h"
#include "rules/hero.h"
#include "simulation/games/batch.h"
#include "simulation/stage/screens.h"

namespace brolgan::simulation {

namespace {

constexpr const char* kHero = "hero1.boh";
constexpr const char* kOther = "hero2.boh";
constexpr int kMostRounds = 1000;
constexpr int kFightsAtATime = 500;

struct Outcome {
  bool won = false;
  bool decided = true;
  int rounds = 0;
  int endurance = 0;
  int points = 0;
  int dealt = 0;
  int taken = 0;
};

// The texts that every fight of a duel starts from.
struct Beginning {
  Beginning(const DataFiles& data, const DuelSetup& setup) : hero(setup.heroFile) {
    MemoryFiles files;
    const Bohater record = Player_Load(ItemReader(kHero, hero));
    Array<Potwor, 46> list;
    Potwory_Load(ItemReader(kMonstersFile, data.monsters), list);
    const Potwor& monster = list(setup.monster);
    points = record.Ile_jeszcze.value();
    endurance = record.AktWytrzymalosc.value();
    const Integer first = record.Wartosci(kSpeed) > monster.Szybkosc ? 0 : 1;
    writeFight(ItemWriter(files, kFightFile), {first, kHero, 0, 0, monster, setup.monster});
    // A second player keeps the program running when the hero spends his last life.
    writePlayerOrder(ItemWriter(files, kGameFile), 2, {kHero, kOther});
    fight = files.contents[kFightFile];
    order = files.contents[kGameFile];
  }

  void lay(Stage& stage) const {
    stage.files.contents[kHero] = hero;
    stage.files.contents[kFightFile] = fight;
    stage.files.contents[kGameFile] = order;
  }

  std::string hero;
  std::string fight;
  std::string order;
  int points = 0;
  int endurance = 0;  // before anyone strikes
};

// The points stand on the second line of the hero file.
int pointsOf(const std::string& heroFile) {
  const std::size_t line = heroFile.find('\n') + 1;
  const std::size_t start = heroFile.find_first_not_of(' ', line);
  int points = 0;
  std::from_chars(heroFile.data() + start, heroFile.data() + heroFile.size(), points);
  return points;
}

// Attacks while the button lets, then ends the round.
void attackAndWait(FightScreen& screen, Outcome& outcome) {
  while (screen.mayAttack()) {
    screen.attack();
    outcome.dealt += screen.shownDamage();
  }
  ++outcome.rounds;
}

// Fights until one side is gone or neither can end it. What the hero has lost counts from before the
// monsters' opening strike to after his own last attack, which may cost him something too.
Outcome fightOnce(Stage& stage, const Beginning& beginning, const std::string& weapon) {
  beginning.lay(stage);
  Outcome outcome;
  stage.runtime.Show(Fight::kName);
  FightScreen screen(stage.runtime);
  if (!screen.chooseWeapon(weapon)) throw std::invalid_argument("the hero does not own " + weapon);
  while (!screen.fallen() && !screen.cleared()) {
    attackAndWait(screen, outcome);
    if (screen.cleared()) break;
    if (outcome.rounds >= kMostRounds) return {.decided = false};
    screen.nextRound();
  }
  outcome.won = screen.cleared();
  outcome.endurance = screen.endurance();
  outcome.taken = beginning.endurance - outcome.endurance;
  if (outcome.won) {
    screen.nextRound();
  } else {
    screen.closeReport();
  }
  outcome.points = outcome.won ? pointsOf(stage.files.contents[kHero]) - beginning.points : 0;
  return outcome;
}

// Fights one share of the duel on a stage of its own, which is built anew when a program ended.
void fightShare(const DataFiles& data, const DuelSetup& setup, const Beginning& beginning, int share,
                std::vector<Outcome>& outcomes) {
  std::unique_ptr<Stage> stage;
  const int last = std::min(setup.fights, (share + 1) * kFightsAtATime);
  for (int i = share * kFightsAtATime; i < last; ++i) {
    if (!stage || stage->runtime.ended() || stage->runtime.find(Fight::kName) != nullptr) {
      stage = std::make_unique<Stage>(data, 0, Cast::fightAlone);
    }
    stage->clock.restart(seedOf(setup.seed, i));
    outcomes[static_cast<std::size_t>(i)] = fightOnce(*stage, beginning, setup.weapon);
  }
}

template <class Value>
Figure meanOf(const std::vector<Outcome>& outcomes, Value value) {
  double count = 0;
  double sum = 0;
  double squares = 0;
  for (const Outcome& outcome : outcomes) {
    const auto [counts, x] = value(outcome);
    if (!counts) continue;
    count += 1;
    sum += x;
    squares += x * x;
  }
  if (count < 1) return {};
  const double mean = sum / count;
  const double variance = count > 1 ? std::max(0.0, squares - count * mean * mean) / (count - 1) : 0;
  return {mean, std::sqrt(variance / count)};
}

// The quotient of two sums, with the error that follows from the scatter around it.
template <class Value>
Figure perRound(const std::vector<Outcome>& outcomes, Value value) {
  double rounds = 0;
  double sum = 0;
  for (const Outcome& outcome : outcomes) {
    rounds += outcome.rounds;
    sum += value(outcome);
  }
  if (rounds < 1) return {};
  const double ratio = sum / rounds;
  double squares = 0;
  for (const Outcome& outcome : outcomes) {
    const double off = value(outcome) - ratio * outcome.rounds;
    squares += off * off;
  }
  return {ratio, std::sqrt(squares) / rounds};
}

DuelResult summarize(const std::vector<Outcome>& outcomes) {
  DuelResult result;
  result.fights = static_cast<int>(outcomes.size());
  for (const Outcome& outcome : outcomes) result.undecided += outcome.decided ? 0 : 1;
  using Pair = std::pair<bool, double>;
  result.win = meanOf(outcomes, [](const Outcome& o) { return Pair(true, o.won ? 1 : 0); });
  result.rounds = meanOf(outcomes, [](const Outcome& o) { return Pair(o.decided, o.rounds); });
  result.enduranceAfterWin = meanOf(outcomes, [](const Outcome& o) { return Pair(o.won, o.endurance); });
  result.points = meanOf(outcomes, [](const Outcome& o) { return Pair(true, o.points); });
  result.dealtARound = perRound(outcomes, [](const Outcome& o) { return static_cast<double>(o.dealt); });
  result.takenARound = perRound(outcomes, [](const Outcome& o) { return static_cast<double>(o.taken); });
  return result;
}

}  // namespace

DuelResult fightDuel(const DataFiles& data, const DuelSetup& setup) {
  const Beginning beginning(data, setup);
  std::vector<Outcome> outcomes(static_cast<std::size_t>(setup.fights));
  const int shares = (setup.fights + kFightsAtATime - 1) / kFightsAtATime;
  inParallel(shares, setup.threads, [&](int share) { fightShare(data, setup, beginning, share, outcomes); });
  return summarize(outcomes);
}

std::string toJson(const DuelResult& result, const DuelSetup& setup, const std::string& monsterName) {
  std::ostringstream out;
  const auto figure = [&out](const char* name, const Figure& value, const char* end) {
    out << "  \"" << name << "\": {\"mean\": " << value.mean << ", \"error\": " << value.error << "}" << end << "\n";
  };
  out << "{\n  \"monster\": \"" << monsterName << "\",\n  \"weapon\": \"" << setup.weapon << "\",\n";
  out << "  \"policy\": \"attack\",\n  \"seed\": " << setup.seed << ",\n  \"fights\": " << result.fights << ",\n";
  out << "  \"undecided\": " << result.undecided << ",\n";
  figure("wins", result.win, ",");
  figure("rounds", result.rounds, ",");
  figure("endurance_after_win", result.enduranceAfterWin, ",");
  figure("points", result.points, ",");
  figure("dealt_per_round", result.dealtARound, ",");
  figure("taken_per_round", result.takenARound, "");
  out << "}\n";
  return out.str();
}

}  // namespace brolgan::simulation
