// pojedynek HERO MONSTER --bron NAME: fights one hero file against one monster of the list, N
// times, by the policy "attack", and prints what came of it as JSON.
#include <cstdlib>
#include <exception>
#include <fstream>
#include <iostream>
#include <iterator>
#include <stdexcept>

#include "simulation/duel.h"
#include "simulation/options.h"

using namespace brolgan::simulation;

namespace {

constexpr const char* kUsage =
    "pojedynek BOHATER.boh POTWÓR --bron NAZWA [--walki N] [--ziarno S] [--watki W] [--dane FOLDER] [--polityka "
    "attack]\n"
    "POTWÓR to numer od 1 do 45 albo nazwa.\n";

std::string bytesOf(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  if (!file) throw std::runtime_error("nie ma pliku " + path);
  return {std::istreambuf_iterator<char>(file), {}};
}

int monsterOf(const Knowledge& known, const std::string& text) {
  if (text.find_first_not_of("0123456789") != std::string::npos) return known.monsterNamed(text).number;
  const int number = std::stoi(text) - 1;
  if (number < 0 || number >= kMonsters) throw std::invalid_argument("nie ma potwora numer " + text);
  return number;
}

void run(const Options& options) {
  if (options.text("--polityka", "attack") != "attack") throw std::invalid_argument("jedyna polityka to attack");
  const DataFiles data = loadData(options.text("--dane", "."));
  const Knowledge known(data);
  DuelSetup setup;
  setup.heroFile = bytesOf(options.words[0]);
  setup.monster = monsterOf(known, options.words[1]);
  setup.weapon = options.text("--bron", known.weapons[0].name);
  setup.fights = options.number("--walki", 1000);
  setup.threads = options.number("--watki", allCores());
  setup.seed = static_cast<std::uint64_t>(options.number("--ziarno", 1));
  std::cout << toJson(fightDuel(data, setup), setup, known.monsters[static_cast<std::size_t>(setup.monster)].name);
}

}  // namespace

int main(int count, char** arguments) {
  try {
    const Options options(count, arguments, {"--bron", "--walki", "--ziarno", "--watki", "--dane", "--polityka"});
    if (options.words.size() != 2) throw std::invalid_argument(kUsage);
    run(options);
  } catch (const std::exception& error) {
    std::cerr << error.what() << "\n";
    return EXIT_FAILURE;
  }
  return EXIT_SUCCESS;
}
