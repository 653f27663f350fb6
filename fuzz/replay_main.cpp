// Feeds saved inputs to a target as an ordinary program: replay_hero FILE-OR-FOLDER...
// Fails when there is no input at all.
#include <algorithm>
#include <cstdio>
#include <exception>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

#include "fuzz/target.h"

namespace fs = std::filesystem;

namespace {

// The files named, and those in the folders named, in a fixed order.
std::vector<fs::path> inputsOf(int count, char** names) {
  std::vector<fs::path> inputs;
  for (int i = 1; i < count; ++i) {
    if (!fs::is_directory(names[i])) {
      inputs.emplace_back(names[i]);
      continue;
    }
    for (const auto& entry : fs::directory_iterator(names[i])) inputs.push_back(entry.path());
  }
  std::sort(inputs.begin(), inputs.end());
  return inputs;
}

void replay(const fs::path& input) {
  std::ifstream file(input, std::ios::binary);
  if (!file) throw std::runtime_error("cannot open");
  const std::vector<char> bytes(std::istreambuf_iterator<char>(file), {});
  LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size());
}

}  // namespace

int main(int count, char** names) {
  const auto inputs = inputsOf(count, names);
  for (const fs::path& input : inputs) {
    std::printf("%s\n", input.c_str());
    std::fflush(stdout);
    try {
      replay(input);
    } catch (const std::exception& error) {
      std::printf("find: %s\n", error.what());
      return 1;
    }
  }
  std::printf("%zu inputs\n", inputs.size());
  return inputs.empty() ? 1 : 0;
}
