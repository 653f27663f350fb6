// A covariance matrix adaptation evolution strategy in its plain form: it throws a handful of points
// around a mean, ranks them, moves the mean towards the better half and learns from the steps that
// paid along which directions to throw next.
#pragma once

#include <cstdint>
#include <iosfwd>
#include <vector>

namespace brolgan::simulation {

class CmaEs {
 public:
  // Starts at a point with steps of that size, in units in which all directions matter alike.
  CmaEs(std::vector<double> mean, double step, std::uint64_t seed);
  // Takes a search up again where save left it; raises std::runtime_error when it cannot be read.
  explicit CmaEs(std::istream& in);
  void save(std::ostream& out) const;

  // The points of the next generation.
  std::vector<std::vector<double>> ask();
  // What the points that were asked for are worth, in their order; less is better.
  void tell(const std::vector<std::vector<double>>& points, const std::vector<double>& values);

  [[nodiscard]] const std::vector<double>& mean() const { return mean_; }
  [[nodiscard]] double step() const { return step_; }
  [[nodiscard]] int generation() const { return generation_; }
  [[nodiscard]] int population() const;

 private:
  using Matrix = std::vector<std::vector<double>>;

  double normal();
  [[nodiscard]] Matrix factor() const;

  std::vector<double> mean_;
  double step_ = 1;
  std::uint64_t state_ = 0;
  int generation_ = 0;
  std::vector<double> stepPath_;
  std::vector<double> shapePath_;
  Matrix covariance_;
};

}  // namespace brolgan::simulation
