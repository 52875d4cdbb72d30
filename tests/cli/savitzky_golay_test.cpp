#include "savitzky_golay.h"

#include <cmath>

#include <gmock/gmock.h>

#include "data/cli/filter_kinds.inc"

namespace quordsp::cli {
namespace {

using testing::DoubleNear;
using testing::Pointwise;

FilterRequest requestOf(const vectors::Fit& fit)
{
    return {.rate = vectors::kFitRate,
            .order = fit.order,
            .side = fit.side,
            .weights = fit.weights,
            .derivative = fit.derivative};
}

// By SciPy's savgol_filter, and with weights by NumPy's polyfit of each frame; the ends of the signal included.
TEST(SavitzkyGolay, FitsAndDifferentiatesAsSciPyDoes)
{
    for (const vectors::Fit& fit : vectors::kFits) {
        std::vector<double> out(vectors::kFitSignal.size());
        FilterSignal signal{vectors::kFitSignal, out.data()};
        ASSERT_EQ(savitzkyGolayFilter(requestOf(fit), signal), QUORDSP_SUCCESS);
        const double tolerance = 1e-13 * std::pow(vectors::kFitRate, fit.derivative);
        EXPECT_THAT(out, Pointwise(DoubleNear(tolerance), fit.result)) << fit.order << ' ' << fit.derivative;
        EXPECT_EQ(signal.delay.has_value(), fit.weights.empty());
    }
}

TEST(SavitzkyGolay, TreatsTheTwoPartsOfAComplexSignalAlike)
{
    for (const vectors::Fit& fit : vectors::kFits) {
        const std::vector<double> reversed(vectors::kFitSignal.rbegin(), vectors::kFitSignal.rend());
        std::vector<double> out(reversed.size());
        std::vector<double> outImaginary(reversed.size());
        FilterSignal signal{reversed, out.data(), vectors::kFitSignal.data(), outImaginary.data()};
        ASSERT_EQ(savitzkyGolayFilter(requestOf(fit), signal), QUORDSP_SUCCESS);
        const double tolerance = 1e-13 * std::pow(vectors::kFitRate, fit.derivative);
        EXPECT_THAT(outImaginary, Pointwise(DoubleNear(tolerance), fit.result)) << fit.order << ' ' << fit.derivative;
    }
}

// Savitzky and Golay's own tables: (-3, 12, 17, 12, -3)/35 smooths, (-2, -1, 0, 1, 2)/10 differentiates.
TEST(SavitzkyGolay, AnswersAnImpulseWithTheCoefficientsInReverse)
{
    Impulse impulse;
    ASSERT_EQ(savitzkyGolayImpulse({.rate = 10, .order = 2, .side = 2}, impulse), QUORDSP_SUCCESS);
    EXPECT_EQ(impulse.lead, 2);
    EXPECT_EQ(impulse.delay(), 0);
    EXPECT_THAT(impulse.taps,
                Pointwise(DoubleNear(1e-15), std::vector{-3 / 35.0, 12 / 35.0, 17 / 35.0, 12 / 35.0, -3 / 35.0}));
    ASSERT_EQ(savitzkyGolayImpulse({.rate = 10, .order = 2, .side = 2, .derivative = 1}, impulse), QUORDSP_SUCCESS);
    EXPECT_THAT(impulse.taps, Pointwise(DoubleNear(1e-14), std::vector{2.0, 1.0, 0.0, -1.0, -2.0}));
}

TEST(SavitzkyGolay, PassesOnWhatTheBackendRefuses)
{
    const std::vector<double> in(5);
    std::vector<double> out(5);
    FilterSignal signal{in, out.data()};
    for (const int derivative : {0, 1}) {
        const auto status = [&](int order, int side) {
            return savitzkyGolayFilter({.rate = 1, .order = order, .side = side, .derivative = derivative}, signal);
        };
        EXPECT_EQ(status(2, 3), QUORDSP_ERR_ARRAY_SIZE);
        EXPECT_EQ(status(5, 2), QUORDSP_ERR_TOO_FEW_POINTS);
        EXPECT_EQ(status(-1, 2), QUORDSP_ERR_ORDER_NEGATIVE);
        EXPECT_EQ(status(2, -1), QUORDSP_ERR_COUNT_NEGATIVE);
    }
}

} // namespace
} // namespace quordsp::cli
