// search: looks for numbers of the data files that bring the games nearer to the aims. It can be
// stopped at any time and goes on where it was when it is started again with the same folder.
//
//   search run      throws, plays, ranks; one line a generation into FOLDER/search.csv
//   search try      plays one shape, told as NAME=VALUE, and prints its score
//   search settle   moves the monsters one by one; writes the best data files into FOLDER
//   search climb    moves single numbers, keeps what helps; goes on from the data files in FOLDER; one line
//                   for each change taken into FOLDER/climb.csv
//   search write    writes the data files of a shape into FOLDER
#include <algorithm>
#include <cstdlib>
#include <exception>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <limits>
#include <set>
#include <sstream>
#include <stdexcept>
#include <string_view>

#include "simulation/options.h"
#include "simulation/report/tallies.h"
#include "simulation/report/worth.h"
#include "simulation/search/climb.h"
#include "simulation/search/cma_es.h"
#include "simulation/search/score.h"
#include "simulation/search/settle.h"
#include "simulation/search/shape.h"

using namespace brolgan::simulation;

namespace {

namespace fs = std::filesystem;

constexpr const char* kUsage =
    "search run|try|settle|climb|write [NAME=VALUE...] [--games N] [--generations G] [--seed S] [--threads T]\n"
    "       [--data FOLDER] [--results FOLDER] [--dials NAME,NAME...]\n"
    "A dial is meant by its name or the beginning of it; those not meant stay where they are told.\n";
// The games that confirm a mean are none of those that chose it.
constexpr std::uint64_t kHeldOut = 0x100000;

struct Setup {
  DataFiles data;
  fs::path results;
  int games = 40;
  int generations = 1000;
  int threads = 1;
  std::uint64_t seed = 1;
  std::vector<std::size_t> dials;  // that the search may turn
  Shape start{};
};

std::vector<std::size_t> dialsBeginning(const std::string& name) {
  std::vector<std::size_t> found;
  for (std::size_t i = 0; i < kDials; ++i) {
    if (std::string_view(kDialTable[i].name).starts_with(name)) found.push_back(i);
  }
  if (found.empty()) throw std::invalid_argument("no dial begins like that: " + name);
  return found;
}

// The dials of a list of names or beginnings of names, each once; all for an empty one.
std::vector<std::size_t> dialsOf(const std::string& list) {
  if (list.empty()) return dialsBeginning("");
  std::set<std::size_t> found;
  std::istringstream names(list);
  for (std::string name; std::getline(names, name, ',');) {
    for (const std::size_t dial : dialsBeginning(name)) found.insert(dial);
  }
  return {found.begin(), found.end()};
}

Shape shapeFrom(const std::vector<std::string>& words) {
  Shape shape{};
  for (std::size_t i = 1; i < words.size(); ++i) {
    const std::size_t equals = words[i].find('=');
    if (equals == std::string::npos) throw std::invalid_argument(kUsage);
    shape[static_cast<std::size_t>(dialNamed(words[i].substr(0, equals)))] = std::stod(words[i].substr(equals + 1));
  }
  return shape;
}

Shape shapeAt(const Setup& setup, const std::vector<double>& point) {
  Shape shape = setup.start;
  for (std::size_t i = 0; i < setup.dials.size(); ++i) {
    const Dial& dial = kDialTable[setup.dials[i]];
    shape[setup.dials[i]] = std::clamp(point[i] * dial.step, dial.least, dial.most);
  }
  return shape;
}

std::vector<double> pointOf(const Setup& setup) {
  std::vector<double> point;
  for (const std::size_t i : setup.dials) point.push_back(setup.start[i] / kDialTable[i].step);
  return point;
}

void print(const Score& score) {
  for (const Term& term : score.terms) {
    std::cout << term.name << '\t' << term.found << "\tmiss " << term.miss << '\n';
  }
  std::cout << "sum\t\tmiss " << score.sum() << std::endl;
}

// What a zone was like: how often it was chosen, and what became of those who went there.
void printZones(const Knowledge& known, const Measures& all, const Tallies& tallies) {
  const auto chosen = favours(tallies);
  std::cout << "zone\tof turns\tdeaths\tone round\tlost\tarmour\tranks\tfavour\n";
  for (const Danger& zone : all.zones) {
    const auto place = static_cast<std::size_t>(&zone - all.zones.data());
    std::cout << place + 1 << '\t' << 100 * zone.deaths.whole / all.oneRound.whole << '\t' << 100 * zone.deaths.value()
              << '\t' << 100 * zone.oneRound.value() << '\t' << zone.lost.value() << '\t' << all.usualArmour[place];
    if (place < chosen.size()) {
      std::cout << '\t' << rewardFollowsDanger(known, all, static_cast<int>(place)) << '\t' << chosen[place];
    }
    std::cout << '\n';
  }
}

// How each monster fared, wherever it was met.
void printMonsters(const Measures& all) {
  std::cout << "monster\tmet\tdeaths\tone round\tcostless\tlost\n";
  for (const Danger& monster : all.monsters) {
    std::cout << &monster - all.monsters.data() + 1 << '\t' << monster.deaths.whole << '\t'
              << 100 * monster.deaths.value() << '\t' << 100 * monster.oneRound.value() << '\t'
              << 100 * monster.costless.value() << '\t' << monster.lost.value() << '\n';
  }
}

// Which weapons were bought, and which classes won.
void printCareers(const Knowledge& known, const Sample& sample, const Tallies& tallies) {
  std::cout << "weapon\tbought\n";
  for (int i = 0; i < kWeapons; ++i) {
    std::cout << known.weapons[static_cast<std::size_t>(i)].name << '\t'
              << tallies.boughtShare(brolgan::kStatistics + i) << '\n';
  }
  std::cout << "class\twins\n";
  const auto shares = classShares(sample.games);
  for (std::size_t i = 0; i < shares.size(); ++i) {
    std::cout << brolgan::kClassTable[i].caption << '\t' << 100 * shares[i] << '\n';
  }
}

// How many of a hundred won games end too soon and too late.
void printLengths(const std::vector<GameRecord>& games) {
  const auto turns = winningTurns(games);
  const double won = std::max(1.0, static_cast<double>(turns.size()));
  const auto share = [&](auto isSuch) {
    return 100 * static_cast<double>(std::count_if(turns.begin(), turns.end(), isSuch)) / won;
  };
  std::cout << "length\tshare\nsoon\t" << share([](int turn) { return turn < 18; }) << "\nlate\t"
            << share([](int turn) { return turn > 30; }) << '\n';
}

void printDear(const Knowledge& known, const std::vector<GameRecord>& games) {
  constexpr int kHeroes = 100;
  std::cout << "dear\tgain\n";
  for (const auto& worth : worthOfDearWeapons(known, games, kHeroes)) {
    std::cout << known.weapons[static_cast<std::size_t>(worth.weapon)].name << '\t' << 100 * worth.gain.value() << '\n';
  }
}

void tryOut(const Setup& setup) {
  const DataFiles data = shaped(setup.data, setup.start);
  const Sample sample = playSample(data, setup.games, setup.threads, setup.seed);
  print(scoreOf(data, sample));
  const Measures all = measure(sample.games);
  const Knowledge known(data);
  const Tallies tallies = tally(sample.games);
  printZones(known, all, tallies);
  printMonsters(all);
  printCareers(known, sample, tallies);
  printLengths(sample.games);
  printDear(known, sample.games);
  for (const int monster : harmlessMonsters(known, all)) std::cout << "harmless: " << monster + 1 << '\n';
}

Score play(const Setup& setup, const Shape& shape, std::uint64_t seed) {
  const DataFiles data = shaped(setup.data, shape);
  return scoreOf(data, playSample(data, setup.games, setup.threads, seed));
}

void store(const fs::path& path, const std::string& bytes) {
  std::ofstream file(path, std::ios::binary);
  file << bytes;
  if (!file.flush()) throw std::runtime_error("cannot write " + path.string());
}

void writeFiles(const DataFiles& data, const fs::path& folder) {
  fs::create_directories(folder);
  store(folder / "bron.cfg", data.weapons);
  store(folder / "monsters.cfg", data.monsters);
}

CmaEs begin(const fs::path& state, const Setup& setup) {
  std::ifstream in(state);
  if (in) {
    CmaEs search(in);
    if (search.mean().size() == setup.dials.size()) return search;
    throw std::runtime_error(state.string() + " is of a search with other dials");
  }
  constexpr double kFirstStep = 0.4;
  return CmaEs(pointOf(setup), kFirstStep, setup.seed);
}

// The log: what the generation's points were worth, what its mean is worth on games held out, and the
// shape of that mean.
void note(const fs::path& log, const CmaEs& search, const Shape& mean, const std::vector<double>& values,
          double confirmed) {
  const bool fresh = !fs::exists(log);
  std::ofstream out(log, std::ios::app);
  if (fresh) {
    out << "generation,best,worst,held_out,step";
    for (const Dial& dial : kDialTable) out << ',' << dial.name;
    out << '\n';
  }
  const auto [best, worst] = std::minmax_element(values.begin(), values.end());
  out << search.generation() << ',' << *best << ',' << *worst << ',' << confirmed << ',' << search.step();
  for (const double value : mean) out << ',' << value;
  out << '\n';
}

void run(const Setup& setup) {
  fs::create_directories(setup.results);
  const fs::path state = setup.results / "search.state";
  CmaEs search = begin(state, setup);
  while (search.generation() < setup.generations) {
    const auto points = search.ask();
    // All points of a generation play the same games, the next generation plays others.
    const std::uint64_t seed = setup.seed + static_cast<std::uint64_t>(search.generation()) + 1;
    std::vector<double> values;
    for (const auto& point : points) {
      values.push_back(play(setup, shapeAt(setup, point), seed).sum());
      std::cerr << "generation " << search.generation() + 1 << ": " << values.size() << "/" << points.size()
                << " score " << values.back() << std::endl;
    }
    search.tell(points, values);
    const Shape mean = shapeAt(setup, search.mean());
    note(setup.results / "search.csv", search, mean, values, play(setup, mean, seed + kHeldOut).sum());
    std::ofstream out(state);
    search.save(out);
  }
}

// One line a round: what its numbers are worth on games that no other round plays.
void settle(const Setup& setup) {
  Settler settler(shaped(setup.data, setup.start));
  double best = std::numeric_limits<double>::infinity();
  for (int round = 0; round < setup.generations; ++round) {
    const DataFiles data = settler.data();
    const Sample sample =
        playSample(data, setup.games, setup.threads, setup.seed + static_cast<std::uint64_t>(round) + 1);
    const Score score = scoreOf(data, sample);
    std::cout << "round " << round + 1 << ": score " << score.sum() << std::endl;
    if (score.sum() < best) writeFiles(data, setup.results);
    best = std::min(best, score.sum());
    settler.hear(measure(sample.games));
  }
}

// A line of the log of a climb: after how many steps, and what the numbers come to on games held out.
void noteClimb(const fs::path& log, int step, const Score& heldOut) {
  const bool fresh = !fs::exists(log);
  std::ofstream out(log, std::ios::app);
  if (fresh) {
    out << "step";
    for (const Term& term : heldOut.terms) out << ',' << term.name;
    out << ",score\n";
  }
  out << step;
  for (const Term& term : heldOut.terms) out << ',' << term.found;
  out << ',' << heldOut.sum() << std::endl;
}

std::uint64_t linesIn(const fs::path& path) {
  std::ifstream in(path);
  std::uint64_t lines = 0;
  for (std::string line; std::getline(in, line);) ++lines;
  return lines;
}

// A climb that goes on proposes other changes and plays other games than the one that was stopped.
void climb(const Setup& setup) {
  const fs::path log = setup.results / "climb.csv";
  const bool begun = fs::exists(setup.results / "monsters.cfg");
  const DataFiles start = begun ? loadData(setup.results.string()) : shaped(setup.data, setup.start);
  const auto scored = [&](const DataFiles& data, std::uint64_t seed) {
    return scoreOf(data, playSample(data, setup.games, setup.threads, seed));
  };
  Climber climber(start, setup.seed + linesIn(log),
                  [&](const DataFiles& data, std::uint64_t seed) { return scored(data, seed).sum(); });
  for (int step = 1; step <= setup.generations; ++step) {
    const bool taken = climber.step();
    std::cerr << "step " << step << ": score " << climber.score() << (taken ? ", taken" : "") << std::endl;
    if (!taken) continue;
    writeFiles(climber.data(), setup.results);
    noteClimb(log, step, scored(climber.data(), setup.seed + kHeldOut));
  }
}

void act(const Options& options) {
  if (options.words.empty()) throw std::invalid_argument(kUsage);
  Setup setup;
  setup.data = loadData(options.text("--data", "."));
  setup.results = options.text("--results", ".");
  setup.games = options.number("--games", setup.games);
  setup.generations = options.number("--generations", setup.generations);
  setup.threads = options.number("--threads", 1);
  setup.seed = static_cast<std::uint64_t>(options.number("--seed", 1));
  setup.dials = dialsOf(options.text("--dials", ""));
  setup.start = shapeFrom(options.words);
  if (options.words[0] == "run") {
    run(setup);
  } else if (options.words[0] == "try") {
    tryOut(setup);
  } else if (options.words[0] == "settle") {
    settle(setup);
  } else if (options.words[0] == "climb") {
    climb(setup);
  } else if (options.words[0] == "write") {
    writeFiles(shaped(setup.data, setup.start), setup.results);
  } else {
    throw std::invalid_argument(kUsage);
  }
}

}  // namespace

int main(int count, char** arguments) {
  try {
    act(Options(count, arguments,
                {"--games", "--generations", "--seed", "--threads", "--data", "--results", "--dials"}));
  } catch (const std::exception& error) {
    std::cerr << error.what() << "\n";
    return EXIT_FAILURE;
  }
  return EXIT_SUCCESS;
}
