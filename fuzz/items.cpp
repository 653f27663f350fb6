// Items of one kind, and of all kinds in turn from that one on; which it is goes by the size of the
// input. Every read takes at least one byte, so a file of n bytes is at its end after n items.
#include <array>

#include "flow/text/item_reader.h"
#include "fuzz/target.h"

namespace brolgan::fuzz {
namespace {

using Read = void (*)(ItemReader&);

constexpr std::array<Read, 5> kReads = {[](ItemReader& in) { in.string("x"); }, [](ItemReader& in) { in.integer("x"); },
                                        [](ItemReader& in) { in.flag("x"); }, [](ItemReader& in) { in.boolean("x"); },
                                        [](ItemReader& in) { in.variant("x"); }};

// A thrown error costs a fuzzer as much as thousands of bytes read, and words in place of numbers
// would raise one an item.
constexpr int kMostErrors = 2;

// Reads on after an error, as only a test would.
void readToTheEnd(const std::string& bytes, std::size_t first, std::size_t step) {
  ItemReader in("plik.txt", bytes);
  std::size_t next = first;
  int errors = 0;
  for (std::size_t items = 0; items <= bytes.size(); ++items) {
    const Read read = kReads[next % kReads.size()];
    const int code = codeOf([&] { read(in); });
    if (code == static_cast<int>(ErrorCode::pastEnd)) return;
    if (code != 0 && ++errors == kMostErrors) return;
    next += step;
  }
  require(false);
}

}  // namespace
}  // namespace brolgan::fuzz

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace brolgan::fuzz;
  const std::string bytes = bytesOf(data, size);
  const std::size_t kind = size % kReads.size();
  readToTheEnd(bytes, kind, 0);
  readToTheEnd(bytes, kind, 1);
  return 0;
}
