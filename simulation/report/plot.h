// Plain charts as SVG text: bars, a line, and a table of shades.
#pragma once

#include <string>
#include <vector>

namespace brolgan::simulation {

struct Bar {
  std::string name;
  double value = 0;
};

// Bars lying one below the other over an axis, each with its figure; guides are upright lines at
// these values, which the legend tells.
std::string barChart(const std::string& title, const std::string& axis, const std::vector<Bar>& bars,
                     const std::vector<double>& guides = {}, const std::string& legend = "");

// Standing bars side by side over whole numbers from first on; height tells what they count.
std::string histogram(const std::string& title, const std::string& axis, const std::string& height, int first,
                      const std::vector<double>& values);

// Rows of shares from 0 to 1; the darker, the more.
std::string shadeTable(const std::string& title, const std::string& axis, const std::vector<std::string>& rows,
                       const std::vector<std::vector<double>>& shares);

}  // namespace brolgan::simulation
