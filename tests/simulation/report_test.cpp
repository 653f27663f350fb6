// The printed report belongs to the data files as they are now.
#include "simulation/report/report.h"

#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <string>

namespace brolgan::simulation {
namespace {

std::string printedReport() {
  std::ifstream file(std::string(BROLGAN_DOCS) + "/balans.md", std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

TEST(Report, WasMadeFromTheDataFilesAsTheyAre) {
  const DataFiles data = loadData(BROLGAN_ASSETS);
  EXPECT_NE(printedReport().find(fingerprintLine(data)), std::string::npos)
      << "run simulation/report.sh to make docs/balans.md anew";
}

TEST(Report, IsOutdatedByAChangeOfASingleDigit) {
  const DataFiles data = loadData(BROLGAN_ASSETS);
  DataFiles changed = data;
  changed.monsters.back() = 'x';
  EXPECT_NE(fingerprint(changed), fingerprint(data));
  changed = data;
  changed.weapons[0] = '9';
  EXPECT_NE(fingerprint(changed), fingerprint(data));
}

}  // namespace
}  // namespace brolgan::simulation
