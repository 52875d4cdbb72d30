#include "fir_designs.h"

#include <cmath>
#include <numbers>

#include <gmock/gmock.h>

#include "data/cli/filter_kinds.inc"

namespace quordsp::cli {
namespace {

using testing::DoubleNear;
using testing::Pointwise;

constexpr double kTurn = 2 * std::numbers::pi;

std::vector<double> tapsOf(fir::Design design, const FilterRequest& request)
{
    Impulse impulse;
    EXPECT_EQ(design(request, impulse), QUORDSP_SUCCESS);
    EXPECT_EQ(impulse.delay(), (request.taps - 1) / 2.0);
    return impulse.taps;
}

TEST(FirDesigns, OfSeveralBandsAreThoseOfSciPy)
{
    const FilterRequest request{.rate = 1000, .taps = 24, .bands = {{0, 100}, {160, 250, 0.5, 3}, {300, 500, 0, 10}}};
    EXPECT_THAT(tapsOf(fir::multiband, request), Pointwise(DoubleNear(1e-6), vectors::kMultiband));
}

// The gain 2 pi f is 2 pi times the rate times the share.
TEST(FirDesigns, OfADifferentiatorAreThoseOfSciPyByTheSecond)
{
    const FilterRequest request{.rate = 1000, .taps = 20, .bands = {{0, 400}}};
    std::vector<double> wanted = vectors::kDifferentiator;
    for (double& tap : wanted)
        tap *= kTurn * 1000;
    EXPECT_THAT(tapsOf(fir::differentiator, request), Pointwise(DoubleNear(0.01), wanted));
}

TEST(FirDesigns, OfAHilbertTransformerAreThoseOfSciPy)
{
    const FilterRequest request{.rate = 1000, .taps = 21, .bands = {{50, 450}}};
    EXPECT_THAT(tapsOf(fir::hilbert, request), Pointwise(DoubleNear(1e-6), vectors::kHilbert));
}

// d/dt sin(w t) = w cos(w t), ten and a half samples later.
TEST(FirDesigns, DifferentiateASineBySeconds)
{
    const FilterRequest request{.rate = 200, .taps = 22, .bands = {{0, 70}}};
    std::vector<double> sine;
    for (int i = 0; i < 100; ++i)
        sine.push_back(std::sin(kTurn * 20 * i / 200));
    std::vector<double> out(sine.size());
    FilterSignal signal{sine, out.data()};
    ASSERT_EQ(fir::filter<fir::differentiator>(request, signal), QUORDSP_SUCCESS);
    EXPECT_EQ(signal.delay, 10.5);
    for (int i = 22; i < 100; ++i)
        EXPECT_NEAR(out[static_cast<std::size_t>(i)], kTurn * 20 * std::cos(kTurn * 20 * (i - 10.5) / 200), 0.02);
}

// By hand: the taps 1, -2 over 1, 2, 3 and over 4, 0, -1.
TEST(FirDesigns, FilterBothPartsOfAComplexSignalFromZeroState)
{
    const std::vector<double> real{1, 2, 3};
    const std::vector<double> imaginary{4, 0, -1};
    std::vector<double> outReal(3);
    std::vector<double> outImaginary(3);
    const std::vector<double> taps{1, -2};
    ASSERT_EQ(fir::convolve(taps, {real, outReal.data(), imaginary.data(), outImaginary.data()}), QUORDSP_SUCCESS);
    EXPECT_THAT(outReal, testing::ElementsAre(1, 0, -1));
    EXPECT_THAT(outImaginary, testing::ElementsAre(4, -8, -1));
}

TEST(FirDesigns, PassOnWhatTheBackendRefuses)
{
    Impulse impulse;
    EXPECT_EQ(fir::multiband({.rate = 1000, .taps = 2, .bands = {{0, 100}}}, impulse), QUORDSP_ERR_TOO_FEW_TAPS);
    EXPECT_EQ(fir::hilbert({.rate = 1000, .taps = 21, .bands = {{0, 100}}}, impulse), QUORDSP_ERR_BAND);
    EXPECT_EQ(fir::differentiator({.rate = 1000, .taps = 21, .bands = {{0, 500}}}, impulse), QUORDSP_ERR_ODD_SIZE);
}

} // namespace
} // namespace quordsp::cli
