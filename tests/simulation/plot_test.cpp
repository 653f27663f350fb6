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

// Where a guide crosses a figure, a box is drawn over the guide first and the figure over the box.
TEST(BarChart, LetsNoGuideRunThroughAFigure) {
  const std::string plot = barChart("title", "axis", {{"bar", 14.8}}, {15}, "aim");
  const std::size_t figure = plot.find(">14.8</text>");
  ASSERT_NE(figure, std::string::npos);
  const std::size_t guide = plot.rfind("<line");
  EXPECT_LT(guide, figure);
  EXPECT_EQ(plot.find("<line", figure), std::string::npos);
  EXPECT_LT(plot.find("<rect", guide), figure);
}

}  // namespace
}  // namespace brolgan::simulation
