// What a reader must be able to read in the plots.
#include "simulation/report/plot.h"

#include <gtest/gtest.h>

#include <string>

namespace brolgan::simulation {
namespace {

// The colour in which those words stand, empty when they do not.
std::string inkOf(const std::string& plot, const std::string& words) {
  const std::size_t end = plot.find(">" + words + "</text>");
  if (end == std::string::npos) return "";
  const std::size_t begin = plot.rfind("fill=\"", end) + 6;
  return plot.substr(begin, plot.find('"', begin) - begin);
}

TEST(ShadeTable, WritesLightFiguresInDarkCellsAndDarkOnesInLightCells) {
  const std::string plot = shadeTable("title", "axis", {"zone"}, {{0.08, 0.58}});
  EXPECT_EQ(inkOf(plot, "8"), inkOf(plot, "zone"));
  EXPECT_NE(inkOf(plot, "58"), "");
  EXPECT_NE(inkOf(plot, "58"), inkOf(plot, "zone"));
}

TEST(ShadeTable, LeavesCellsOfNoShareWithoutAFigure) {
  EXPECT_EQ(inkOf(shadeTable("title", "axis", {"zone"}, {{0.004}}), "0"), "");
  EXPECT_NE(inkOf(shadeTable("title", "axis", {"zone"}, {{0.016}}), "2"), "");
}

}  // namespace
}  // namespace brolgan::simulation
