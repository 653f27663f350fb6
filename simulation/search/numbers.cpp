#include "simulation/search/numbers.h"

#include <array>
#include <sstream>

#include "simulation/knowledge/knowledge.h"

namespace brolgan::simulation {

std::vector<std::string> linesOf(const std::string& text) {
  std::vector<std::string> lines;
  std::istringstream in(text);
  for (std::string line; std::getline(in, line);) {
    if (line.ends_with('\r')) line.pop_back();
    lines.push_back(line);
  }
  return lines;
}

std::string textOf(const std::vector<std::string>& lines) {
  std::string text;
  for (const std::string& line : lines) text += line + "\r\n";
  return text;
}

std::size_t firstLineOf(int monster) { return static_cast<std::size_t>(1 + monster * kLinesAMonster); }

std::size_t firstLineOfWeapon(int weapon) {
  constexpr int kLinesAWeapon = 9;
  return static_cast<std::size_t>(1 + weapon * kLinesAWeapon + (weapon >= kMelees ? 1 : 0));
}

Numbers numbersOf(const std::vector<std::string>& lines, std::size_t first) {
  const auto at = [&](std::size_t i) { return std::stoi(lines[first + i]); };
  return {at(0), at(3), at(4), at(5), at(6), at(7), at(8), at(9)};
}

void write(std::vector<std::string>& lines, std::size_t first, const Numbers& monster) {
  lines[first] = std::to_string(monster.count);
  const std::array values = {monster.speed, monster.low,  monster.high,  monster.dice,
                             monster.plus,  monster.life, monster.armour};
  for (std::size_t i = 0; i < values.size(); ++i) lines[first + 3 + i] = std::to_string(values[i]);
}

}  // namespace brolgan::simulation
