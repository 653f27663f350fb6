// The hand-over files: each reader over the same bytes.
#include "rules/handover.h"

#include <algorithm>

#include "flow/text/files.h"
#include "fuzz/target.h"

namespace brolgan::fuzz {
namespace {

void readOrder(const std::string& bytes) {
  const PlayerOrder order = readPlayerOrder({kGameFile, bytes});
  require(order.count <= PlayerOrder::kMost);
}

void readFightAndWriteItBack(const std::string& bytes) {
  MemoryFiles files;
  writeFight({files, kFightFile}, readFight({kFightFile, bytes}));
  const std::string& lines = files.contents.at(kFightFile);
  require(std::count(lines.begin(), lines.end(), '\n') == 15);
}

// A text and up to two numbers and another text: makehro.cfg, sklep.cfg and pref.cfg.
void readSmallFile(const std::string& bytes) {
  ItemReader in(kPreparationFile, bytes);
  in.string("PlikBohatera");
  in.integer("OdPotwora");
  in.integer("DoPotwora");
  in.string("PlikPotworow");
}

}  // namespace
}  // namespace brolgan::fuzz

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace brolgan::fuzz;
  const std::string bytes = bytesOf(data, size);
  codeOf([&] { readOrder(bytes); });
  codeOf([&] { readFightAndWriteItBack(bytes); });
  codeOf([&] { readSmallFile(bytes); });
  return 0;
}
