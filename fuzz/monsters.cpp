// The list of monsters with both capacities. The smaller list never takes more than the larger.
#include "rules/monsters.h"

#include "fuzz/target.h"

namespace brolgan::fuzz {
namespace {

template <std::size_t Capacity>
int load(const std::string& bytes, Array<Potwor, Capacity>& monsters) {
  return codeOf([&] { Potwory_Load({"monsters.cfg", bytes}, monsters); });
}

}  // namespace
}  // namespace brolgan::fuzz

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace brolgan::fuzz;
  const std::string bytes = bytesOf(data, size);
  brolgan::Array<brolgan::Potwor, 46> small;
  brolgan::Array<brolgan::Potwor, 101> large;
  if (load(bytes, small) != 0) {
    load(bytes, large);
    return 0;
  }
  require(load(bytes, large) == 0);
  for (int i = 0; i < small.size; ++i) require(small(i) == large(i));
  return 0;
}
