#include "simulation/report/plot.h"

#include <algorithm>
#include <cmath>
#include <sstream>

namespace brolgan::simulation {

namespace {

constexpr int kWidth = 760;
constexpr int kTop = 46;
constexpr const char* kInk = "#2b2b2b";
constexpr const char* kFill = "#8a3b2a";
constexpr const char* kPaper = "#fbf7ee";

std::string text(double x, double y, const std::string& words, const char* anchor, int size = 13,
                 const char* ink = kInk) {
  std::ostringstream out;
  out << "<text x=\"" << x << "\" y=\"" << y << "\" font-size=\"" << size << "\" text-anchor=\"" << anchor
      << "\" fill=\"" << ink << "\">" << words << "</text>\n";
  return out.str();
}

std::string box(double x, double y, double width, double height, const std::string& fill) {
  std::ostringstream out;
  out << "<rect x=\"" << x << "\" y=\"" << y << "\" width=\"" << width << "\" height=\"" << height << "\" fill=\""
      << fill << "\"/>\n";
  return out.str();
}

std::string line(double x, double top, double bottom) {
  std::ostringstream out;
  out << "<line x1=\"" << x << "\" y1=\"" << top << "\" x2=\"" << x << "\" y2=\"" << bottom
      << "\" stroke=\"#4a6b3a\" stroke-dasharray=\"4 3\"/>\n";
  return out.str();
}

std::string sheet(const std::string& title, int height, const std::string& body) {
  std::ostringstream out;
  out << "<svg xmlns=\"http://www.w3.org/2000/svg\" viewBox=\"0 0 " << kWidth << " " << height
      << "\" font-family=\"DejaVu Sans, sans-serif\">\n"
      << box(0, 0, kWidth, height, kPaper) << text(kWidth / 2.0, 26, title, "middle", 17) << body << "</svg>\n";
  return out.str();
}

std::string shown(double value) {
  std::ostringstream out;
  out << std::round(value * 10) / 10;
  return out.str();
}

// A cell the darker the larger its share, with the share in it in percent, when that is not 0.
std::string shadeCell(double x, double y, double width, int height, double share) {
  constexpr double kDark = 0.7;  // from here on light figures are easier to read
  const double shade = std::min(1.0, std::sqrt(share) * 1.2);
  std::ostringstream fill;
  fill << kFill << "\" fill-opacity=\"" << shade;
  const std::string cell = box(x, y + 1, width - 1, height - 2, fill.str());
  const auto percent = std::lround(share * 100);
  if (percent == 0) return cell;
  return cell + text(x + width / 2, y + 15, std::to_string(percent), "middle", 10, shade > kDark ? kPaper : kInk);
}

double largest(const std::vector<double>& values) {
  double most = 1e-9;
  for (const double value : values) most = std::max(most, value);
  return most;
}

// A step of 1, 2 or 5 times a power of ten, at least as large.
double roundStep(double least) {
  const double power = std::pow(10, std::floor(std::log10(least)));
  for (const double factor : {1.0, 2.0, 5.0}) {
    if (factor * power >= least) return factor * power;
  }
  return 10 * power;
}

// The figure of a bar on a ground of its own, so that no guide runs through it.
std::string figureBeside(double end, double top, const Bar& bar) {
  constexpr double kDigit = 7.5;
  const std::string figure = shown(bar.value);
  const double width = kDigit * static_cast<double>(figure.size()) + 4;
  return box(end + 3, top + 4, width, 13, kPaper) + text(end + 6, top + 14, figure, "start", 12);
}

}  // namespace

std::string barChart(const std::string& title, const std::string& axis, const std::vector<Bar>& bars,
                     const std::vector<double>& guides, const std::string& legend) {
  constexpr int kLeft = 220;
  constexpr int kRow = 20;
  std::vector<double> values = guides;
  for (const Bar& bar : bars) values.push_back(bar.value);
  const double scale = (kWidth - kLeft - 70) / largest(values);
  const int bottom = kTop + kRow * static_cast<int>(bars.size());
  std::string body;
  for (std::size_t i = 0; i < bars.size(); ++i) {
    const double y = kTop + kRow * static_cast<double>(i);
    body += text(kLeft - 8, y + 14, bars[i].name, "end");
    body += box(kLeft, y + 3, bars[i].value * scale, kRow - 6, kFill);
  }
  for (const double guide : guides) body += line(kLeft + guide * scale, kTop, bottom);
  for (std::size_t i = 0; i < bars.size(); ++i) {
    body += figureBeside(kLeft + bars[i].value * scale, kTop + kRow * static_cast<double>(i), bars[i]);
  }
  const double step = roundStep(largest(values) / 6);
  for (double mark = 0; mark <= largest(values) + 1e-9; mark += step) {
    body += text(kLeft + mark * scale, bottom + 16, shown(mark), "middle", 11);
  }
  body += text(kLeft + (kWidth - kLeft - 70) / 2.0, bottom + 36, axis, "middle", 12);
  if (!legend.empty()) body += text(kLeft + (kWidth - kLeft - 70) / 2.0, bottom + 54, "– – " + legend, "middle", 12);
  return sheet(title, bottom + (legend.empty() ? 48 : 66), body);
}

std::string histogram(const std::string& title, const std::string& axis, const std::string& height, int first,
                      const std::vector<double>& values) {
  constexpr int kLeft = 40;
  constexpr int kHeight = 220;
  const double step = (kWidth - 2.0 * kLeft) / std::max<double>(1, static_cast<double>(values.size()));
  const double scale = kHeight / largest(values);
  const int bottom = kTop + kHeight + 10;
  std::string body;
  for (std::size_t i = 0; i < values.size(); ++i) {
    const double x = kLeft + step * static_cast<double>(i);
    body += box(x + 1, bottom - values[i] * scale, step - 2, values[i] * scale, kFill);
    if (values.size() <= 30) body += text(x + step / 2, bottom - values[i] * scale - 4, shown(values[i]), "middle", 9);
    const int number = first + static_cast<int>(i);
    if (values.size() <= 30 || number % 5 == 0) {
      body += text(x + step / 2, bottom + 15, std::to_string(number), "middle", 11);
    }
  }
  const double mark = roundStep(largest(values) / 5);
  for (double value = 0; value <= largest(values) + 1e-9; value += mark) {
    body += text(kLeft - 4, bottom - value * scale + 4, shown(value), "end", 10);
  }
  body += text(kLeft, kTop - 4, height, "start", 12);
  body += text(kWidth / 2.0, bottom + 34, axis, "middle", 12);
  return sheet(title, bottom + 46, body);
}

std::string shadeTable(const std::string& title, const std::string& axis, const std::vector<std::string>& rows,
                       const std::vector<std::vector<double>>& shares) {
  constexpr int kLeft = 190;
  constexpr int kRow = 22;
  const std::size_t columns = shares.empty() ? 0 : shares.front().size();
  const double step = (kWidth - kLeft - 20.0) / std::max<double>(1, static_cast<double>(columns));
  const int bottom = kTop + kRow * static_cast<int>(rows.size());
  std::string body;
  for (std::size_t row = 0; row < rows.size(); ++row) {
    const double y = kTop + kRow * static_cast<double>(row);
    body += text(kLeft - 8, y + 15, rows[row], "end");
    for (std::size_t i = 0; i < columns; ++i) {
      body += shadeCell(kLeft + step * static_cast<double>(i), y, step, kRow, shares[row][i]);
    }
  }
  for (std::size_t i = 0; i < columns; ++i) {
    body += text(kLeft + step * (static_cast<double>(i) + 0.5), bottom + 14, std::to_string(i + 1), "middle", 10);
  }
  body += text(kWidth / 2.0, bottom + 34, axis, "middle", 12);
  return sheet(title, bottom + 46, body);
}

}  // namespace brolgan::simulation
