// The one-call Butterworth filters on signals.
#include "backend/support/iir.h"
#include "data/backend/iir_vectors.inc"
#include "reference/direct_form.h"

#include <gmock/gmock.h>

#include <cmath>
#include <limits>

namespace quordsp::test {
namespace {

using testing::DoubleNear;
using testing::ElementsAreArray;
using testing::Pointwise;
using vectors::kSignal;

TEST(ButterworthFilter, AgreesWithSciPy)
{
    for (const auto& [type, order, fl, fh, y] : vectors::kFiltered)
        EXPECT_THAT(butterworth(type, kSignal, fl, fh, order), Pointwise(DoubleNear(1e-11), y)) << type << ' ' << order;
}

TEST(ButterworthFilter, FollowsTheDifferenceEquationOfItsDirectForm)
{
    for (int type : kTypes)
        for (int order : {1, 2, 3, 4}) {
            const DirectCoefficients filter = direct(type, order, 0.1, 0.3);
            EXPECT_THAT(butterworth(type, kSignal, 0.1, 0.3, order),
                        Pointwise(DoubleNear(1e-11), reference::directForm(filter.a, filter.b, kSignal)));
        }
}

// Sums of other terms: some roundings of numbers as large as the signal, each of which goes through the filter.
TEST(ButterworthFilter, EqualsTheCascadeButForRounding)
{
    for (int type : kTypes) {
        const Filter filter = cascade(type, 5, 0.1, 0.3);
        std::vector<double> y(kSignal.size());
        backend::AALFunc91(kSignal.data(), static_cast<std::int64_t>(y.size()), filter.get(), y.data());
        EXPECT_THAT(butterworth(type, kSignal, 0.1, 0.3, 5), Pointwise(DoubleNear(1e-14), y));
    }
}

TEST(ButterworthFilter, DependsOnTheFrequenciesOnlyThroughTheirRatiosToFs)
{
    std::vector<double> y(kSignal.size());
    const auto n = static_cast<std::int64_t>(y.size());
    for (int type : kTypes) {
        ASSERT_EQ(butterworth(type, kSignal.data(), n, 1024, 128, 256, 3, y.data()), Status::Success);
        EXPECT_EQ(y, butterworth(type, kSignal, 0.125, 0.25, 3));
    }
}

TEST(ButterworthFilter, WorksInPlace)
{
    for (int type : kTypes) {
        std::vector<double> y = kSignal;
        const auto n = static_cast<std::int64_t>(y.size());
        ASSERT_EQ(butterworth(type, y.data(), n, 1, 0.1, 0.2, 5, y.data()), Status::Success);
        EXPECT_EQ(y, butterworth(type, kSignal, 0.1, 0.2, 5));
    }
}

TEST(ButterworthFilter, IsTheSameForAPrefixOfTheSignal)
{
    for (int type : kTypes) {
        const std::vector<double> whole = butterworth(type, kSignal, 0.1, 0.2, 4);
        for (std::size_t n : {1u, 2u, 3u, 17u})
            EXPECT_THAT(
                butterworth(type, {kSignal.begin(), kSignal.begin() + static_cast<std::ptrdiff_t>(n)}, 0.1, 0.2, 4),
                ElementsAreArray(whole.begin(), whole.begin() + static_cast<std::ptrdiff_t>(n)));
    }
}

TEST(ButterworthFilter, IsLinear)
{
    std::vector<double> mixture(kSignal.size());
    const std::vector<double> other(kSignal.rbegin(), kSignal.rend());
    for (std::size_t i = 0; i < mixture.size(); ++i)
        mixture[i] = 3 * kSignal[i] - 0.5 * other[i];
    for (int type : kTypes) {
        const auto first = butterworth(type, kSignal, 0.05, 0.2, 4), second = butterworth(type, other, 0.05, 0.2, 4);
        const auto both = butterworth(type, mixture, 0.05, 0.2, 4);
        for (std::size_t i = 0; i < both.size(); ++i)
            EXPECT_NEAR(both[i], 3 * first[i] - 0.5 * second[i], 1e-13);
    }
}

TEST(ButterworthFilter, PassesAConstantThroughALowPassAndABandStop)
{
    const std::vector<double> constant(4000, 2.5);
    EXPECT_NEAR(butterworth(LowPass, constant, 0.01, 0, 6).back(), 2.5, 1e-12);
    EXPECT_NEAR(butterworth(BandStop, constant, 0.05, 0.1, 3).back(), 2.5, 1e-12);
    EXPECT_NEAR(butterworth(HighPass, constant, 0.01, 0, 6).back(), 0, 1e-12);
    EXPECT_NEAR(butterworth(BandPass, constant, 0.05, 0.1, 3).back(), 0, 1e-12);
}

TEST(ButterworthFilter, LetsNaNAndInfinityFlowThroughTheData)
{
    for (double special : {std::numeric_limits<double>::quiet_NaN(), std::numeric_limits<double>::infinity()}) {
        std::vector<double> x(6, 1.0);
        x[3] = special;
        const std::vector<double> y = butterworth(LowPass, x, 0.1, 0, 2);
        EXPECT_TRUE(std::isfinite(y[2]));
        EXPECT_FALSE(std::isfinite(y[3]));
        EXPECT_FALSE(std::isfinite(y[5]));
    }
}

TEST(ButterworthFilter, EndsItsTailWithoutSubnormalNumbers)
{
    const std::vector<double> y = butterworth(LowPass, impulse(20000), 0.05, 0, 4);
    EXPECT_THAT(y, testing::Each(testing::Truly([](double v) { return v == 0 || std::isnormal(v); })));
    EXPECT_EQ(y.back(), 0);
    const volatile double tiny = std::numeric_limits<double>::min();
    EXPECT_GT(tiny / 2, 0) << "the caller's own arithmetic still has them";
}

TEST(ButterworthFilter, CrossesTheBlocksOfItsKernelUnseen)
{
    std::vector<double> x(5000);
    for (std::size_t i = 0; i < x.size(); ++i)
        x[i] = std::sin(0.1 * static_cast<double>(i));
    const DirectCoefficients filter = direct(LowPass, 3, 0.1, 0);
    EXPECT_THAT(butterworth(LowPass, x, 0.1, 0, 3),
                Pointwise(DoubleNear(1e-12), reference::directForm(filter.a, filter.b, x)));
}

} // namespace
} // namespace quordsp::test
