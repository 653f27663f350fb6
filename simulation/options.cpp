#include "simulation/options.h"

#include <algorithm>
#include <stdexcept>
#include <thread>

namespace brolgan::simulation {

Options::Options(int count, char** arguments, const std::vector<std::string>& known) {
  for (int i = 1; i < count; ++i) {
    const std::string word = arguments[i];
    if (!word.starts_with("--")) {
      words.push_back(word);
      continue;
    }
    if (std::find(known.begin(), known.end(), word) == known.end() || i + 1 == count) {
      throw std::invalid_argument("unknown option or no value: " + word);
    }
    values[word] = arguments[++i];
  }
}

std::string Options::text(const std::string& name, const std::string& otherwise) const {
  const auto found = values.find(name);
  return found == values.end() ? otherwise : found->second;
}

int Options::number(const std::string& name, int otherwise) const {
  const auto found = values.find(name);
  return found == values.end() ? otherwise : std::stoi(found->second);
}

int allCores() { return static_cast<int>(std::max(1U, std::thread::hardware_concurrency())); }

}  // namespace brolgan::simulation
