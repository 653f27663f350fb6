// The command line of the tools: "--name value" pairs behind plain words.
#pragma once

#include <map>
#include <string>
#include <vector>

namespace brolgan::simulation {

struct Options {
  std::vector<std::string> words;
  std::map<std::string, std::string> values;

  // Raises std::invalid_argument when a name is not among the known ones or lacks its value.
  Options(int count, char** arguments, const std::vector<std::string>& known);

  [[nodiscard]] std::string text(const std::string& name, const std::string& otherwise) const;
  [[nodiscard]] int number(const std::string& name, int otherwise) const;
};

// As many threads as the machine has cores.
int allCores();

}  // namespace brolgan::simulation
