// FIR designs by windows: their coefficients, their frequency responses, and what they refuse.
#include "backend/support/fir.h"
#include "data/backend/fir_vectors.inc"
#include "reference/response.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <cstdio>
#include <limits>
#include <numbers>
#include <utility>

namespace quordsp::test {
namespace {

using testing::DoubleNear;
using testing::Pointwise;

constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();

double gain(const Array& h, double f)
{
    return static_cast<double>(std::abs(reference::spectrum(h, f)));
}

TEST(WindowedDesign, AgreesWithItsFormula)
{
    double largest = 0;
    for (const auto& [type, taps, fs, fl, fh, window, parameter, half] : vectors::kDesigns) {
        const Array h = designed({type, fs, fl, fh, taps, window, parameter});
        ASSERT_EQ(h.size(), static_cast<std::size_t>(taps));
        const double peak = *std::max_element(half.begin(), half.end());
        for (std::size_t k = 0; k < half.size(); ++k) {
            EXPECT_NEAR(h[k], half[k], 1e-15 * peak) << type << ' ' << window << ' ' << k;
            EXPECT_EQ(h[k], h[h.size() - 1 - k]);
            largest = std::max(largest, std::abs(h[k] - half[k]) / peak);
        }
    }
    std::printf("windowed designs: largest error %.1e of the largest coefficient\n", largest);
}

// Worked out by hand from sin(0.2 pi t) / (pi t).
TEST(WindowedDesign, OfFiveTapsHasTheKnownCoefficients)
{
    Array bare(5);
    ASSERT_EQ(backend::AALFunc79(kLowPass, 1000, 100, kNaN, 5, bare.data()), Status::Success);
    EXPECT_THAT(bare,
                Pointwise(DoubleNear(1e-12), {0.151365345728, 0.187097856758, 0.2, 0.187097856758, 0.151365345728}));
    EXPECT_THAT(designed({kLowPass, 1000, 100, 0, 5, 2}),
                Pointwise(DoubleNear(1e-12), {0.0121092276583, 0.101032842649, 0.2, 0.101032842649, 0.0121092276583}));
}

TEST(WindowedDesign, WithoutAWindowIsTheDesignWithTheRectangle)
{
    for (int type : {kLowPass, kHighPass, kBandPass, kBandStop}) {
        Array bare(33);
        ASSERT_EQ(backend::AALFunc79(type, 1, 0.1, 0.3, 33, bare.data()), Status::Success);
        EXPECT_EQ(bare, designed({type, 1, 0.1, 0.3, 33}));
    }
}

TEST(WindowedDesign, PassesHalfAtItsCutoffs)
{
    for (int window : {1, 2, 5, 7})
        for (int type : {kLowPass, kHighPass, kBandPass, kBandStop}) {
            const Array h = designed({type, 1, 0.1, 0.3, 201, window});
            EXPECT_NEAR(reference::decibels(gain(h, 0.1)), -6.02, 0.02) << window << ' ' << type;
            if (type >= kBandPass) {
                EXPECT_NEAR(reference::decibels(gain(h, 0.3)), -6.02, 0.02) << window << ' ' << type;
            }
        }
}

// Kaiser's rule: beta and the width of the transition follow from the attenuation.
TEST(WindowedDesign, OfKaiserStaysInsideItsMask)
{
    for (double attenuation : {50.0, 70.0, 100.0}) {
        const double beta = 0.1102 * (attenuation - 8.7);
        const int taps = 151;
        const double half = (attenuation - 7.95) / (2.285 * 2 * std::numbers::pi * (taps - 1)) / 2;
        const double ripple = std::pow(10, -attenuation / 20) * 1.2;
        for (int type : {kLowPass, kHighPass, kBandPass, kBandStop}) {
            const Array h = designed({type, 1, 0.15, 0.35, taps, kKaiser, beta});
            for (double f = 0; f < 0.5; f += 0.001) {
                const double edges[] = {0.15, type < kBandPass ? 2.0 : 0.35};
                if (std::abs(f - edges[0]) < half || std::abs(f - edges[1]) < half)
                    continue;
                const bool isBetween = type < kBandPass ? f < edges[0] : f > edges[0] && f < edges[1];
                const bool passes = isBetween == (type == kLowPass || type == kBandPass);
                EXPECT_NEAR(gain(h, f), passes ? 1 : 0, ripple) << type << ' ' << attenuation << ' ' << f;
            }
        }
    }
}

TEST(WindowedDesign, OfAHighPassIsWhatTheLowPassLeavesOfTheImpulse)
{
    for (const auto& [pass, stop] : {std::pair{kLowPass, kHighPass}, std::pair{kBandPass, kBandStop}}) {
        Array sum = designed({pass, 1, 0.1, 0.3, 41, 2});
        const Array rest = designed({stop, 1, 0.1, 0.3, 41, 2});
        for (std::size_t k = 0; k < sum.size(); ++k)
            EXPECT_NEAR(sum[k] + rest[k], k == 20 ? 1 : 0, 1e-16);
    }
}

TEST(WindowedDesign, DependsOnTheFrequenciesOnlyThroughTheirRatiosToFs)
{
    for (int type : {kLowPass, kHighPass, kBandPass, kBandStop})
        EXPECT_EQ(designed({type, 1024, 128, 256, 31, 5}), designed({type, 1, 0.125, 0.25, 31, 5}));
}

TEST(WindowedDesign, IgnoresTheSecondFrequencyWhereThereIsOne)
{
    for (int type : {kLowPass, kHighPass})
        EXPECT_EQ(designed({type, 1, 0.1, kNaN, 31, 5}), designed({type, 1, 0.1, 0, 31, 5}));
}

// The first fault of a list is the one reported: each case mends the one before it.
TEST(WindowedDesign, ReportsTheFirstOfItsFaults)
{
    struct Case {
        Order order;
        Status expected;
    };
    const Case cases[] = {
        {{kHighPass, -1, 0, 0, 0, 99, 0}, Status::CountNotPositive},
        {{kHighPass, -1, 0, 0, 4, 99, 0}, Status::EvenSize},
        {{kHighPass, -1, 0, 0, 5, 99, 0}, Status::Cutoff},
        {{kHighPass, 1, 0.1, 0, 5, 99, 0}, Status::InvalidSelection},
        {{kHighPass, 1, 0.1, 0, 5, 2, 0}, Status::Success},
        {{kBandStop, 1, 0.1, 0.05, 4, 99, 0}, Status::EvenSize},
        {{kBandStop, 1, 0.1, 0.05, 5, 99, 0}, Status::Band},
        {{kBandStop, 1, 0.1, 0.2, 5, 10, 0}, Status::InvalidSelection},
        {{7, 1, 0.7, 0, 4, 2, 0}, Status::Cutoff},
        {{7, 1, 0.2, 0, 4, 2, 0}, Status::InvalidSelection},
        {{kLowPass, 1, 0.2, 0, 4, kKaiser, -1}, Status::InvalidSelection},
        {{kLowPass, 1, 0.2, 0, 4, kKaiser, kInfinity}, Status::InvalidSelection},
        {{kLowPass, 1, 0.2, 0, 4, kDolphChebyshev, 0}, Status::InvalidSelection},
        {{kLowPass, 1, 0.2, 0, 4, kDolphChebyshev, kInfinity}, Status::InvalidSelection},
        {{kLowPass, 1, 0.2, 0, 4, kGaussian, 0}, Status::InvalidSelection},
        {{kLowPass, 1, 0.2, 0, 4, kGaussian, -kInfinity}, Status::InvalidSelection},
    };
    for (const auto& [order, expected] : cases) {
        Array h(5, 7.0), y(3, 7.0);
        EXPECT_EQ(design(order, h.data()), expected);
        EXPECT_EQ(filter(noise(3).data(), 3, order, y.data()), expected);
        if (expected != Status::Success) {
            EXPECT_EQ(h, Array(5, 7.0));
            EXPECT_EQ(y, Array(3, 7.0));
        }
    }
}

TEST(WindowedDesign, RefusesFrequenciesOutOfOrderOrRange)
{
    for (double fs : {0.0, -1.0, kNaN, kInfinity})
        for (int type : {kLowPass, kHighPass, kBandPass, kBandStop}) {
            Array h(5, 7.0);
            EXPECT_EQ(design({type, fs, 0.1, 0.2, 5}, h.data()), type < kBandPass ? Status::Cutoff : Status::Band);
            EXPECT_EQ(h, Array(5, 7.0));
        }
    for (double f : {0.0, -0.1, 0.5, 0.6, kNaN, kInfinity, -kInfinity}) {
        Array h(5);
        EXPECT_EQ(design({kLowPass, 1, f, 0, 5}, h.data()), Status::Cutoff);
        EXPECT_EQ(design({kHighPass, 1, f, 0, 5}, h.data()), Status::Cutoff);
        EXPECT_EQ(design({kBandPass, 1, f, 0.3, 5}, h.data()), Status::Band);
        EXPECT_EQ(design({kBandStop, 1, 0.2, f, 5}, h.data()), Status::Band);
    }
    Array h(5);
    EXPECT_EQ(design({kBandPass, 1, 0.2, 0.2, 5}, h.data()), Status::Band);
}

TEST(WindowedDesign, OfTheOldEntriesRefusesTheSame)
{
    Array h(5, 7.0);
    for (int windType : {0, 6, -1}) {
        EXPECT_EQ(backend::AALFunc189(1, 0.1, 5, h.data(), windType), Status::InvalidSelection);
        EXPECT_EQ(backend::AALFunc187(1, 0.1, 0.2, 5, h.data(), windType), Status::InvalidSelection);
    }
    EXPECT_EQ(backend::AALFunc188(1, 0.1, 4, h.data(), 1), Status::EvenSize);
    EXPECT_EQ(backend::AALFunc111(1, 0.1, 4, h.data(), 1), Status::EvenSize);
    EXPECT_EQ(backend::AALFunc110(1, 0.1, 0.2, 4, h.data(), 1), Status::EvenSize);
    EXPECT_EQ(backend::AALFunc186(1, 0.2, 0.1, 4, h.data(), 1), Status::Band);
    EXPECT_EQ(backend::AALFunc109(1, 0.1, 0.2, 0, h.data(), 1), Status::CountNotPositive);
    for (double beta : {-1.0, kNaN, kInfinity})
        EXPECT_EQ(backend::AALFunc112(1, 0.1, 5, h.data(), beta), Status::InvalidSelection);
    EXPECT_EQ(backend::AALFunc189(1, 0.1, 0, nullptr, 9), Status::ArraySize);
    EXPECT_EQ(backend::AALFunc112(1, 0.1, 5, nullptr, 0), Status::ArraySize);
    EXPECT_EQ(backend::AALFunc79(0, 1, 0.1, 0, 5, nullptr), Status::ArraySize);
    EXPECT_EQ(h, Array(5, 7.0));
}

} // namespace
} // namespace quordsp::test
