#include "gain_grid.h"

#include <cmath>
#include <vector>

#include <gtest/gtest.h>

namespace quordsp::cli {
namespace {

// By hand: 1/4 + 1/2 + 1/4 has the gain cos^2(pi f).
TEST(GainGrid, HasTheGainsOfTheTaps)
{
    const std::vector<double> taps{0.25, 0.5, 0.25};
    const GainGrid grid(taps);
    const auto [first, last] = grid.between(0, 0.4);
    EXPECT_EQ(first, 1u);
    EXPECT_GE(last - first, 0.4 * 16 * 3 - 1);
    for (std::size_t point = first; point < last; ++point) {
        const double frequency = grid.frequency(point);
        EXPECT_LT(frequency, 0.4);
        EXPECT_NEAR(grid.decibels(point), 40 * std::log10(std::cos(std::acos(-1.0) * frequency)), 1e-12);
    }
}

TEST(GainGrid, LeavesOutTheFrequenciesItLiesBetween)
{
    const GainGrid grid(std::vector<double>(4, 1.0)); // 64 points around the circle
    EXPECT_EQ(grid.between(0.125, 0.25).first, 9u);
    EXPECT_EQ(grid.between(0.125, 0.25).last, 16u);
    EXPECT_EQ(grid.between(0.126, 0.127).first, grid.between(0.126, 0.127).last);
    EXPECT_EQ(GainGrid({}).between(0, 0.5).last, 0u);
}

} // namespace
} // namespace quordsp::cli
