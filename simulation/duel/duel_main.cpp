// duel HERO MONSTER --weapon NAME: fights one hero file against one monster of the list, N
// times, by the policy "attack", and prints what came of it as JSON.
#include <cstdlib>
#include <exception>
#include <fstream>
#include <iostream>
#include <iterator>
#include <stdexcept>

#include "simulation/duel/duel.h"
#include "simulation/options.h"

using namespace brolgan::simulation;

namespace {

constexpr const char* kUsage =
    "duel HERO.boh MONSTER --weapon NAME [--fights N] [--seed S] [--threads T] [--data FOLDER] [--policy attack]\n"
    "MONSTER is a number from 1 to 45 or a name.\n";

std::string bytesOf(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  if (!file) throw std::runtime_error("no file " + path);
  return {std::istreambuf_iterator<char>(file), {}};
}

int monsterOf(const Knowledge& known, const std::string& text) {
  if (text.find_first_not_of("0123456789") != std::string::npos) return known.monsterNamed(text).number;
  const int number = std::stoi(text) - 1;
  if (number < 0 || number >= kMonsters) throw std::invalid_argument("no monster number " + text);
  return number;
}

void run(const Options& options) {
  if (options.text("--policy", "attack") != "attack") throw std::invalid_argument("the only policy is attack");
  const DataFiles data = loadData(options.text("--data", "."));
  const Knowledge known(data);
  DuelSetup setup;
  setup.heroFile = bytesOf(options.words[0]);
  setup.monster = monsterOf(known, options.words[1]);
  setup.weapon = options.text("--weapon", known.weapons[0].name);
  setup.fights = options.number("--fights", 1000);
  setup.threads = options.number("--threads", allCores());
  setup.seed = static_cast<std::uint64_t>(options.number("--seed", 1));
  std::cout << toJson(fightDuel(data, setup), setup, known.monsters[static_cast<std::size_t>(setup.monster)].name);
}

}  // namespace

int main(int count, char** arguments) {
  try {
    const Options options(count, arguments, {"--weapon", "--fights", "--seed", "--threads", "--data", "--policy"});
    if (options.words.size() != 2) throw std::invalid_argument(kUsage);
    run(options);
  } catch (const std::exception& error) {
    std::cerr << error.what() << "\n";
    return EXIT_FAILURE;
  }
  return EXIT_SUCCESS;
}
