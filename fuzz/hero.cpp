// The hero file. What was read is written on 161 lines. A comma in a text splits it when those are
// read again, so they may overflow, but they are never too few.
#include "rules/hero.h"

#include <algorithm>

#include "flow/text/files.h"
#include "fuzz/target.h"

namespace brolgan::fuzz {
namespace {

std::string saved(const Bohater& hero) {
  MemoryFiles files;
  Player_Save({files, "hero.boh"}, hero);
  return files.read("hero.boh");
}

void readAndWriteBack(const std::string& bytes) {
  const std::string first = saved(Player_Load({"hero.boh", bytes}));
  require(std::count(first.begin(), first.end(), '\n') == 161);
  const int code = codeOf([&] { Player_Load({"hero.boh", first}); });
  require(code == 0 || code == static_cast<int>(ErrorCode::overflow));
}

}  // namespace
}  // namespace brolgan::fuzz

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace brolgan::fuzz;
  codeOf([&] { readAndWriteBack(bytesOf(data, size)); });
  return 0;
}
