// simulate: plays many whole games over all cores and writes the report of what came of them.
#include <unistd.h>

#include <cstdlib>
#include <exception>
#include <iostream>
#include <stdexcept>

#include "simulation/options.h"
#include "simulation/report/aims.h"
#include "simulation/report/report.h"

using namespace brolgan::simulation;

namespace {

constexpr const char* kUsage =
    "simulate [--games N] [--players 1..4] [--mind sensible|newcomer|greedy|gambler] [--rivalries N]\n"
    "         [--smaller N] [--newcomers N] [--denials N]\n"
    "         [--trials N] [--points P] [--seed S] [--threads T] [--data FOLDER] [--results FOLDER]\n";

MindKind mindNamed(const std::string& name) {
  for (int i = 0; i < kMindKinds; ++i) {
    if (name == kMindWords[static_cast<std::size_t>(i)]) return static_cast<MindKind>(i);
  }
  throw std::invalid_argument("no mind " + name);
}

StudySetup setupFrom(const Options& options) {
  StudySetup setup;
  setup.games = options.number("--games", setup.games);
  setup.players = options.number("--players", setup.players);
  setup.smaller = options.number("--smaller", setup.smaller);
  setup.newcomers = options.number("--newcomers", setup.newcomers);
  setup.denials = options.number("--denials", setup.denials);
  setup.rivalries = options.number("--rivalries", setup.rivalries);
  setup.trials = options.number("--trials", setup.trials);
  setup.points = options.number("--points", setup.points);
  setup.seed = static_cast<std::uint64_t>(options.number("--seed", 1));
  setup.threads = options.number("--threads", allCores());
  setup.mind = mindNamed(options.text("--mind", "sensible"));
  if (setup.players < 1 || setup.players > 4) throw std::invalid_argument(kUsage);
  return setup;
}

// A bar on a terminal, nothing anywhere else.
void showProgress(const char* what, int done, int all) {
  if (isatty(STDERR_FILENO) == 0) return;
  constexpr int kBar = 40;
  const int filled = done * kBar / all;
  std::cerr << "\r[" << std::string(filled, '#') << std::string(kBar - filled, '.') << "] " << what << " " << done
            << "/" << all << "   " << (done == all ? "\n" : "") << std::flush;
}

void run(const Options& options) {
  const DataFiles data = loadData(options.text("--data", "."));
  const Study study = makeStudy(data, setupFrom(options), showProgress);
  writeReport(options.text("--results", "."), data, study);
  for (const Aim& aim : allAims(Knowledge(data), study, tally(study.games))) {
    std::cout << (aim.reached ? "  met     " : "  MISSED  ") << aim.text << ": " << aim.found << " (" << aim.wanted
              << ")\n";
  }
  std::cout << study.games.size() << " games in " << study.seconds << " s\n";
}

}  // namespace

int main(int count, char** arguments) {
  try {
    const Options options(count, arguments,
                          {"--games", "--players", "--mind", "--rivalries", "--smaller", "--newcomers", "--denials",
                           "--trials", "--points", "--seed", "--threads", "--data", "--results"});
    if (!options.words.empty()) throw std::invalid_argument(kUsage);
    run(options);
  } catch (const std::exception& error) {
    std::cerr << error.what() << "\n";
    return EXIT_FAILURE;
  }
  return EXIT_SUCCESS;
}
