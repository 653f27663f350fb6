// The study behind the report: the games and trials that tell how well the numbers of the data
// files serve the game, and the figures drawn from them.
#pragma once

#include <array>
#include <functional>
#include <string>
#include <vector>

#include "simulation/games/batch.h"
#include "simulation/report/statistics.h"

namespace brolgan::simulation {

struct StudySetup {
  int games = 1000;     // of four sensible players with random classes
  int smaller = 300;    // games of three, two and one sensible player each
  int newcomers = 100;  // games of four newcomers
  int rivalries = 300;  // of each mind against the sensible one
  int denials = 1000;   // games of four in which most seats are denied one good
  int trials = 400;     // first fights of each class
  int players = 4;
  int points = 12;
  int threads = 1;
  std::uint64_t seed = 1;
  MindKind mind = MindKind::sensible;
};

// Wins of two kinds of minds at the same tables, two seats each.
struct Rivalry {
  MindKind other = MindKind::newcomer;
  int games = 0;
  int sensible = 0;
  int others = 0;
};

// Games won by those who wanted a good and got it, and by those who wanted it and were denied it.
struct Denial {
  int place = 0;  // of the good
  Share wanted;   // of those who were free to buy
  Share with;
  Share without;

  // How many games of a hundred fewer are won without it, with the 95 % margin.
  [[nodiscard]] double loss() const { return 100 * (with.value() - without.value()); }
  [[nodiscard]] double margin() const;
};

struct FirstFights {
  int tries = 0;
  int fresh = 0;  // won by a hero on whom the points were spent
  int bare = 0;   // won by one on whom nothing was spent
};

struct Study {
  StudySetup setup;
  std::vector<GameRecord> games;
  std::array<std::vector<GameRecord>, 3> smaller;  // of one, two and three players
  std::vector<GameRecord> newcomers;
  std::vector<Rivalry> rivalries;
  std::vector<Denial> denials;
  std::array<FirstFights, kClasses> firstFights{};
  double seconds = 0;  // that the games took
};

// Hears what is being done and how far it has come.
using Progress = std::function<void(const char* what, int done, int all)>;

Study makeStudy(const DataFiles& data, const StudySetup& setup, const Progress& progress = {});

// Wins of first fights in the weakest zone, by heroes of one class.
FirstFights tryFirstFights(const DataFiles& data, const Knowledge& known, int klasa, const StudySetup& setup);

// What it is worth to each player to have each of the goods besides steps and weapons, from games in which chance
// denied most seats one of them.
std::vector<Denial> denialsOf(const std::vector<GameRecord>& games);

// The turns at which games were won, in rising order.
std::vector<int> winningTurns(const std::vector<GameRecord>& games);
// The value below which that share of a sorted row lies.
int quantile(const std::vector<int>& sorted, double share);
// The share of the games won by each class, were all classes seated equally often.
std::array<double, kClasses> classShares(const std::vector<GameRecord>& games);

// Weapons for which another, no dearer, is at least as good against every monster in every hand.
struct Dominated {
  std::string weapon;
  std::string by;
};
std::vector<Dominated> dominatedWeapons(const Knowledge& known);

// A fingerprint of both data files.
std::string fingerprint(const DataFiles& data);

}  // namespace brolgan::simulation
