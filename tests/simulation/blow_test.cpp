// Blows by their means and spreads.
#include "simulation/forecasts/blow.h"

#include <gtest/gtest.h>

#include "simulation/stage/stage.h"

namespace brolgan::simulation {
namespace {

TEST(Blow, BelowIsTheNormalDistribution) {
  EXPECT_NEAR(below(0), 0.5, 1e-6);
  EXPECT_NEAR(below(1), 0.8413, 0.001);
  EXPECT_NEAR(below(-1.96), 0.025, 0.001);
}

TEST(Blow, KnowsTheSpreadOfTheUnevenDie) {
  EXPECT_NEAR(knowThrow({1, 3, 1, 0}).variance, 0.5, 1e-9);
  EXPECT_NEAR(knowThrow({1, 6, 2, 3}).mean, 10, 1e-9);
}

}  // namespace
}  // namespace brolgan::simulation
