// symulacja: plays many whole games over all cores and writes the report of what came of them.
#include <unistd.h>

#include <cstdlib>
#include <exception>
#include <iostream>
#include <stdexcept>

#include "simulation/aims.h"
#include "simulation/options.h"
#include "simulation/report.h"

using namespace brolgan::simulation;

namespace {

constexpr const char* kUsage =
    "symulacja [--gry N] [--gracze 1..4] [--umysl rozsądny|naiwny|chciwy] [--pojedynki-umyslow N]\n"
    "          [--proby N] [--punkty P] [--ziarno S] [--watki W] [--dane FOLDER] [--wyniki FOLDER]\n";

MindKind mindNamed(const std::string& name) {
  for (int i = 0; i < kMindKinds; ++i) {
    if (name == kMindNames[static_cast<std::size_t>(i)]) return static_cast<MindKind>(i);
  }
  throw std::invalid_argument("nie ma umysłu " + name);
}

StudySetup setupFrom(const Options& options) {
  StudySetup setup;
  setup.games = options.number("--gry", setup.games);
  setup.players = options.number("--gracze", setup.players);
  setup.rivalries = options.number("--pojedynki-umyslow", setup.rivalries);
  setup.trials = options.number("--proby", setup.trials);
  setup.points = options.number("--punkty", setup.points);
  setup.seed = static_cast<std::uint64_t>(options.number("--ziarno", 1));
  setup.threads = options.number("--watki", allCores());
  setup.mind = mindNamed(options.text("--umysl", "rozsądny"));
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
  const DataFiles data = loadData(options.text("--dane", "."));
  const Study study = makeStudy(data, setupFrom(options), showProgress);
  writeReport(options.text("--wyniki", "."), data, study);
  for (const Aim& aim : allAims(Knowledge(data), study, tally(study.games))) {
    std::cout << (aim.reached ? "  tak  " : "  NIE  ") << aim.text << ": " << aim.found << " (" << aim.wanted << ")\n";
  }
  std::cout << study.games.size() << " partii w " << study.seconds << " s\n";
}

}  // namespace

int main(int count, char** arguments) {
  try {
    const Options options(count, arguments,
                          {"--gry", "--gracze", "--umysl", "--pojedynki-umyslow", "--proby", "--punkty", "--ziarno",
                           "--watki", "--dane", "--wyniki"});
    if (!options.words.empty()) throw std::invalid_argument(kUsage);
    run(options);
  } catch (const std::exception& error) {
    std::cerr << error.what() << "\n";
    return EXIT_FAILURE;
  }
  return EXIT_SUCCESS;
}
