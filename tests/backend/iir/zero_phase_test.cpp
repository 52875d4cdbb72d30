// Zero-phase filtering: forwards, then backwards.
#include "backend/support/iir.h"
#include "data/backend/filtering_vectors.inc"

#include <gmock/gmock.h>

#include <algorithm>
#include <cmath>

namespace quordsp::test {
namespace {

using testing::DoubleNear;
using testing::ElementsAre;
using testing::Pointwise;
using Array = std::vector<double>;

Array zeroPhase(const Array& a, const Array& b, Array x)
{
    EXPECT_EQ(backend::AALFunc385(x.data(), static_cast<std::int64_t>(x.size()), a.data(), static_cast<int>(a.size()),
                                  b.data(), static_cast<int>(b.size()), x.data()),
              Status::Success);
    return x;
}

Array causal(const Array& a, const Array& b, Array x)
{
    backend::AALFunc92(x.data(), static_cast<std::int64_t>(x.size()), a.data(), nullptr, static_cast<int>(a.size()),
                       b.data(), nullptr, static_cast<int>(b.size()), x.data());
    return x;
}

Array reversed(Array x)
{
    std::reverse(x.begin(), x.end());
    return x;
}

TEST(ZeroPhaseFiltering, AgreesWithSciPyForwardsAndBackwards)
{
    for (const auto& [a, b, y] : vectors::kZeroPhase)
        EXPECT_THAT(zeroPhase(a, b, vectors::kZeroPhaseSignal), Pointwise(DoubleNear(1e-12), y));
}

TEST(ZeroPhaseFiltering, HasTheBitsOfTwoCausalPasses)
{
    Array x(3000);
    for (std::size_t i = 0; i < x.size(); ++i)
        x[i] = std::cos(0.3 * static_cast<double>(i * i % 1000));
    for (const auto& [a, b, ignored] : vectors::kZeroPhase)
        EXPECT_EQ(zeroPhase(a, b, x), reversed(causal(a, b, reversed(causal(a, b, x)))));
}

TEST(ZeroPhaseFiltering, LeavesTheInputAloneUnlessItIsTheOutput)
{
    const Array a{1, -0.5}, b{0.5}, x = vectors::kZeroPhaseSignal;
    Array input = x, y(x.size());
    ASSERT_EQ(
        backend::AALFunc385(input.data(), static_cast<std::int64_t>(x.size()), a.data(), 2, b.data(), 1, y.data()),
        Status::Success);
    EXPECT_EQ(input, x);
    EXPECT_EQ(y, zeroPhase(a, b, x));
}

// Away from the ends the response to a pulse in the middle is the same to either side.
TEST(ZeroPhaseFiltering, DelaysNothing)
{
    const DirectCoefficients filter = direct(LowPass, 3, 0.1, 0);
    Array x(801);
    x[400] = 1;
    const Array y = zeroPhase(filter.a, filter.b, x);
    for (std::size_t i = 1; i <= 400; ++i)
        EXPECT_NEAR(y[400 - i], y[400 + i], 1e-15);
    EXPECT_EQ(std::max_element(y.begin(), y.end()) - y.begin(), 400);
}

// The square of 1/sqrt(2).
TEST(ZeroPhaseFiltering, HasTheSquareOfTheGain)
{
    const DirectCoefficients filter = direct(LowPass, 2, 0.125, 0);
    Array x(2000);
    for (std::size_t i = 0; i < x.size(); ++i)
        x[i] = std::cos(0.25 * std::numbers::pi * static_cast<double>(i));
    const Array y = zeroPhase(filter.a, filter.b, x);
    for (std::size_t i = 1000; i < 1016; ++i)
        EXPECT_NEAR(y[i], 0.5 * x[i], 1e-12);
}

TEST(ZeroPhaseFiltering, SquaresAGainAndCopiesWithoutCoefficients)
{
    EXPECT_THAT(zeroPhase({2}, {6}, {1, -2, 3}), ElementsAre(9, -18, 27));
    EXPECT_THAT(zeroPhase({}, {3}, {1, -2, 3}), ElementsAre(9, -18, 27));
    EXPECT_THAT(zeroPhase({}, {}, {1, -2, 3}), ElementsAre(1, -2, 3));
    EXPECT_THAT(zeroPhase({1}, {}, {1, -2, 3}), ElementsAre(0, 0, 0));
}

TEST(ZeroPhaseFiltering, LetsNaNFlowThroughTheData)
{
    const Array y = zeroPhase({1}, {1, 1}, {1, 1, NAN, 1, 1, 1});
    EXPECT_TRUE(std::isnan(y[1]) && std::isnan(y[2]) && std::isnan(y[3]));
    EXPECT_EQ(y[0], 3); // the first output knows the first input alone: 1, 2, then 1 + 2
    EXPECT_EQ(y[4], 4);
}

TEST(ZeroPhaseFiltering, ReportsTheFirstOfItsBadArgumentsAndWritesNothing)
{
    const double x[] = {1, 2}, good[] = {1, 0.5}, bad[] = {-0.0, 0.5};
    double y[] = {7, 7};
    EXPECT_EQ(backend::AALFunc385(nullptr, 0, nullptr, 2, nullptr, 2, nullptr), Status::CountNotPositive);
    EXPECT_EQ(backend::AALFunc385(nullptr, 2, bad, 2, good, 2, y), Status::ArraySize);
    EXPECT_EQ(backend::AALFunc385(x, 2, bad, 2, good, 2, nullptr), Status::ArraySize);
    EXPECT_EQ(backend::AALFunc385(x, 2, nullptr, 1, good, 2, y), Status::ArraySize);
    EXPECT_EQ(backend::AALFunc385(x, 2, bad, 2, nullptr, 1, y), Status::ArraySize);
    EXPECT_EQ(backend::AALFunc385(x, 2, bad, 2, good, 2, y), Status::DivisionByZero);
    EXPECT_THAT(y, ElementsAre(7, 7));
    EXPECT_EQ(backend::AALFunc385(x, 2, nullptr, 0, good, 2, y), Status::Success);
}

} // namespace
} // namespace quordsp::test
