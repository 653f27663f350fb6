#include "simulation/search/cma_es.h"

#include <algorithm>
#include <cmath>
#include <istream>
#include <numbers>
#include <numeric>
#include <ostream>
#include <stdexcept>

#include "simulation/stage/stage.h"

namespace brolgan::simulation {

namespace {

// The weights of the better half, the best counting most, and how many points they amount to.
struct Weights {
  explicit Weights(int population) {
    const int parents = population / 2;
    for (int i = 0; i < parents; ++i) values.push_back(std::log(parents + 0.5) - std::log(i + 1));
    const double sum = std::accumulate(values.begin(), values.end(), 0.0);
    double squares = 0;
    for (double& value : values) {
      value /= sum;
      squares += value * value;
    }
    effective = 1 / squares;
  }
  std::vector<double> values;
  double effective = 0;
};

double length(const std::vector<double>& vector) {
  return std::sqrt(std::inner_product(vector.begin(), vector.end(), vector.begin(), 0.0));
}

// Solves factor * x = right for a lower triangular factor.
std::vector<double> solve(const std::vector<std::vector<double>>& factor, std::vector<double> right) {
  for (std::size_t i = 0; i < right.size(); ++i) {
    for (std::size_t k = 0; k < i; ++k) right[i] -= factor[i][k] * right[k];
    right[i] /= factor[i][i];
  }
  return right;
}

}  // namespace

CmaEs::CmaEs(std::vector<double> mean, double step, std::uint64_t seed)
    : mean_(std::move(mean)), step_(step), state_(seed), stepPath_(mean_.size()), shapePath_(mean_.size()) {
  covariance_.assign(mean_.size(), std::vector<double>(mean_.size(), 0));
  for (std::size_t i = 0; i < mean_.size(); ++i) covariance_[i][i] = 1;
}

CmaEs::CmaEs(std::istream& in) {
  std::size_t size = 0;
  in >> size >> step_ >> state_ >> generation_;
  const auto read = [&in, size](std::vector<double>& row) {
    row.resize(size);
    for (double& value : row) in >> value;
  };
  read(mean_);
  read(stepPath_);
  read(shapePath_);
  covariance_.resize(size);
  for (auto& row : covariance_) read(row);
  if (!in) throw std::runtime_error("the state of the search cannot be read");
}

void CmaEs::save(std::ostream& out) const {
  out.precision(17);
  out << mean_.size() << ' ' << step_ << ' ' << state_ << ' ' << generation_ << '\n';
  const auto write = [&out](const std::vector<double>& row) {
    for (const double value : row) out << value << ' ';
    out << '\n';
  };
  write(mean_);
  write(stepPath_);
  write(shapePath_);
  for (const auto& row : covariance_) write(row);
}

int CmaEs::population() const { return 4 + static_cast<int>(3 * std::log(static_cast<double>(mean_.size()))); }

double CmaEs::normal() {
  const auto share = [this] { return (static_cast<double>(nextNumber(state_) >> 11U) + 0.5) * 0x1p-53; };
  const double radius = std::sqrt(-2 * std::log(share()));
  return radius * std::cos(2 * std::numbers::pi * share());
}

// The lower triangular root of the covariance.
CmaEs::Matrix CmaEs::factor() const {
  const std::size_t size = mean_.size();
  Matrix root(size, std::vector<double>(size, 0));
  for (std::size_t i = 0; i < size; ++i) {
    for (std::size_t j = 0; j <= i; ++j) {
      double rest = covariance_[i][j];
      for (std::size_t k = 0; k < j; ++k) rest -= root[i][k] * root[j][k];
      root[i][j] = i == j ? std::sqrt(std::max(rest, 1e-12)) : rest / root[j][j];
    }
  }
  return root;
}

std::vector<std::vector<double>> CmaEs::ask() {
  const Matrix root = factor();
  std::vector<std::vector<double>> points;
  for (int p = 0; p < population(); ++p) {
    std::vector<double> deviates(mean_.size());
    for (double& deviate : deviates) deviate = normal();
    std::vector<double> point = mean_;
    for (std::size_t i = 0; i < point.size(); ++i) {
      for (std::size_t k = 0; k <= i; ++k) point[i] += step_ * root[i][k] * deviates[k];
    }
    points.push_back(std::move(point));
  }
  return points;
}

void CmaEs::tell(const std::vector<std::vector<double>>& points, const std::vector<double>& values) {
  const auto n = static_cast<double>(mean_.size());
  const Weights weights(static_cast<int>(points.size()));
  const double mu = weights.effective;
  const double stepRate = (mu + 2) / (n + mu + 5);
  const double shapeRate = (4 + mu / n) / (n + 4 + 2 * mu / n);
  const double oneRate = 2 / ((n + 1.3) * (n + 1.3) + mu);
  const double manyRate = std::min(1 - oneRate, 2 * (mu - 2 + 1 / mu) / ((n + 2) * (n + 2) + mu));
  const double damping = 1 + stepRate + 2 * std::max(0.0, std::sqrt((mu - 1) / (n + 1)) - 1);
  const double usualLength = std::sqrt(n) * (1 - 1 / (4 * n) + 1 / (21 * n * n));

  std::vector<std::size_t> order(points.size());
  std::iota(order.begin(), order.end(), 0);
  std::sort(order.begin(), order.end(), [&](std::size_t a, std::size_t b) { return values[a] < values[b]; });

  const Matrix root = factor();
  const std::vector<double> before = mean_;
  std::vector<double> moved(mean_.size());
  for (std::size_t i = 0; i < mean_.size(); ++i) {
    for (std::size_t k = 0; k < weights.values.size(); ++k) {
      moved[i] += weights.values[k] * (points[order[k]][i] - before[i]) / step_;
    }
    mean_[i] = before[i] + step_ * moved[i];
  }
  const std::vector<double> plain = solve(root, moved);
  for (std::size_t i = 0; i < mean_.size(); ++i) {
    stepPath_[i] = (1 - stepRate) * stepPath_[i] + std::sqrt(stepRate * (2 - stepRate) * mu) * plain[i];
    shapePath_[i] = (1 - shapeRate) * shapePath_[i] + std::sqrt(shapeRate * (2 - shapeRate) * mu) * moved[i];
  }
  for (std::size_t i = 0; i < mean_.size(); ++i) {
    for (std::size_t j = 0; j < mean_.size(); ++j) {
      double many = 0;
      for (std::size_t k = 0; k < weights.values.size(); ++k) {
        const std::vector<double>& point = points[order[k]];
        many += weights.values[k] * (point[i] - before[i]) * (point[j] - before[j]) / (step_ * step_);
      }
      covariance_[i][j] =
          (1 - oneRate - manyRate) * covariance_[i][j] + oneRate * shapePath_[i] * shapePath_[j] + manyRate * many;
    }
  }
  step_ *= std::exp(stepRate / damping * (length(stepPath_) / usualLength - 1));
  ++generation_;
}

}  // namespace brolgan::simulation
