#include "simulation/report/statistics.h"

#include <algorithm>
#include <cmath>

namespace brolgan::simulation {

namespace {

constexpr double kDeviations = 1.96;

double wilson(const Share& share, double sign) {
  if (share.whole <= 0) return sign < 0 ? 0 : 1;
  const double n = share.whole;
  const double p = share.value();
  const double z = kDeviations;
  const double middle = p + z * z / (2 * n);
  const double reach = z * std::sqrt(p * (1 - p) / n + z * z / (4 * n * n));
  return std::clamp((middle + sign * reach) / (1 + z * z / n), 0.0, 1.0);
}

}  // namespace

double Share::low() const { return wilson(*this, -1); }

double Share::high() const { return wilson(*this, 1); }

double Mean::margin() const {
  if (count < 2) return 0;
  const double variance = std::max(0.0, squares - sum * sum / count) / (count - 1);
  return kDeviations * std::sqrt(variance / count);
}

}  // namespace brolgan::simulation
