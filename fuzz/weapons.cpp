// The weapon catalogue with its four readers. What the strict counts take the loose ones take too.
#include "rules/weapons.h"

#include "fuzz/target.h"

namespace brolgan::fuzz {
namespace {

template <std::size_t Capacity>
int load(const std::string& bytes, CountReading counts, FlagReading flags) {
  Catalogue<Capacity> catalogue;
  return codeOf([&] { Bron_Load({kWeaponsFile, bytes}, catalogue, counts, flags); });
}

}  // namespace
}  // namespace brolgan::fuzz

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace brolgan;
  using namespace brolgan::fuzz;
  const std::string bytes = bytesOf(data, size);
  const int strict = load<11>(bytes, CountReading::variant, FlagReading::text);
  const int loose = load<11>(bytes, CountReading::integer, FlagReading::text);
  require(strict == loose || strict == static_cast<int>(ErrorCode::typeMismatch));
  load<101>(bytes, CountReading::integer, FlagReading::boolean);
  return 0;
}
