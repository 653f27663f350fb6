// The lines of the data files, and the numbers of one monster among them.
#pragma once

#include <string>
#include <vector>

namespace brolgan::simulation {

inline constexpr int kLinesAMonster = 10;
// The first of the king's court, counted from 0.
inline constexpr int kCourt = 41;

// One monster's numbers, in the order of its lines.
struct Numbers {
  int count, speed, low, high, dice, plus, life, armour;

  [[nodiscard]] double mean() const { return (low + high) / 2.0 * dice; }
  [[nodiscard]] double reward() const { return (mean() + armour) / 10 * ((count - 1) * 0.33 + 1) + 1; }
};

std::vector<std::string> linesOf(const std::string& text);
std::string textOf(const std::vector<std::string>& lines);

// Where the lines of a monster or a weapon begin; both are counted from 0.
std::size_t firstLineOf(int monster);
std::size_t firstLineOfWeapon(int weapon);
// The numbers that stand from that line on; raises std::invalid_argument when one is none.
Numbers numbersOf(const std::vector<std::string>& lines, std::size_t first);
void write(std::vector<std::string>& lines, std::size_t first, const Numbers& monster);

}  // namespace brolgan::simulation
