// Spectral masks of the one-call filters of the other families, measured on their impulse responses.
#include "backend/support/iir_families.h"
#include "reference/response.h"

#include <gtest/gtest.h>

#include <cmath>

namespace quordsp::test {
namespace {

constexpr double kNone = -1000; // dB
constexpr double kSlack = 1e-6; // dB, of the rounding of the samples

struct Zone {
    double from, to;       // fractions of fs
    double floor, ceiling; // dB
};

struct Mask {
    Order order;
    std::vector<Zone> zones;
};

// Ripple 0.5 dB, attenuation 50 dB. The rest of the limits are the gains of the analog filters at the ends of each
// zone, rounded outwards: 1 / (1 + e^2 T(q)^2) and 1 / (1 + d^2 / T(1 / q)^2) with Chebyshev's polynomial T, the
// reverse Bessel polynomial, and for elliptic filters the product over SciPy's ellipap().
const Mask kMasks[] = {
    {{Bessel, LowPass, 4, 0.1}, {{0, 0.05, -1.58, 0}, {0.1, 0.1, -7.58, -7.57}, {0.2, 0.5, kNone, -28.9}}},
    {{Bessel, HighPass, 6, 0.2}, {{0, 0.1, kNone, -42.9}, {0.2, 0.2, -10.12, -10.11}, {0.4, 0.5, -0.49, 0}}},
    {{Bessel, BandPass, 3, 0.1, 0.2},
     {{0, 0.03, kNone, -46.7}, {0.1, 0.2, -6.24, 0}, {0.12, 0.17, -1.4, 0}, {0.4, 0.5, kNone, -52.4}}},
    {{Bessel, BandStop, 5, 0.15, 0.35},
     {{0, 0.05, -0.43, 0}, {0.22, 0.28, kNone, -58.3}, {0.15, 0.15, -8.87, -8.86}, {0.45, 0.5, -0.43, 0}}},

    {{Chebyshev, LowPass, 5, 0.1}, {{0, 0.1, -0.5, 0}, {0.1, 0.1, -0.5, -0.5}, {0.2, 0.5, kNone, -47.5}}},
    {{Chebyshev, HighPass, 4, 0.2}, {{0, 0.1, kNone, -35}, {0.2, 0.5, -0.5, 0}, {0.5, 0.5, -0.5, -0.5}}},
    {{Chebyshev, BandPass, 3, 0.1, 0.2}, {{0, 0.05, kNone, -33.5}, {0.1, 0.2, -0.5, 0}, {0.3, 0.5, kNone, -30.7}}},
    {{Chebyshev, BandStop, 6, 0.15, 0.35}, {{0, 0.15, -0.5, 0}, {0.2, 0.3, kNone, -60}, {0.35, 0.5, -0.5, 0}}},

    {{InverseChebyshev, LowPass, 5, 0.2}, {{0, 0.1, -0.85, 0}, {0.2, 0.2, -50, -50}, {0.2, 0.5, kNone, -50}}},
    {{InverseChebyshev, HighPass, 6, 0.1}, {{0, 0.1, kNone, -50}, {0.1, 0.1, -50, -50}, {0.2, 0.5, -0.053, 0}}},
    {{InverseChebyshev, BandPass, 4, 0.1, 0.3}, {{0, 0.1, kNone, -50}, {0.17, 0.2, -0.01, 0}, {0.3, 0.5, kNone, -50}}},
    {{InverseChebyshev, BandStop, 3, 0.15, 0.35}, {{0, 0.03, -0.2, 0}, {0.15, 0.35, kNone, -50}, {0.47, 0.5, -0.2, 0}}},

    {{Elliptic, LowPass, 4, 0.1}, {{0, 0.1, -0.5, 0}, {0.1, 0.1, -0.5, -0.5}, {0.18842, 0.5, kNone, -50}}},
    {{Elliptic, HighPass, 5, 0.2}, {{0, 0.14486, kNone, -50}, {0.2, 0.5, -0.5, 0}, {0.2, 0.2, -0.5, -0.5}}},
    {{Elliptic, BandPass, 3, 0.1, 0.2}, {{0, 0.04375, kNone, -50}, {0.1, 0.2, -0.5, 0}, {0.3313, 0.5, kNone, -50}}},
    {{Elliptic, BandStop, 6, 0.15, 0.35}, {{0, 0.15, -0.5, 0}, {0.1658, 0.3342, kNone, -50}, {0.35, 0.5, -0.5, 0}}},
};

double gainAt(const std::vector<double>& response, double f)
{
    return reference::decibels(std::abs(reference::spectrum(response, f)) + 1e-40L);
}

TEST(FilterMask, HoldsForEveryFamilyAndResponse)
{
    constexpr int kPoints = 25;
    for (const auto& [order, zones] : kMasks) {
        const std::vector<double> response = filtered(order, impulse(2048));
        ASSERT_FALSE(response.empty());
        for (const auto& [from, to, floor, ceiling] : zones)
            for (int i = 0; i < kPoints; ++i) {
                const double f = from + (to - from) * i / (kPoints - 1);
                const double gain = gainAt(response, f);
                EXPECT_GE(gain, floor - kSlack) << "family " << order.family << " type " << order.type << " at " << f;
                EXPECT_LE(gain, ceiling + kSlack) << "family " << order.family << " type " << order.type << " at " << f;
            }
    }
}

// Between the extremes of its ripple a filter reaches both, and the stop band's edge where the degree equation has it:
// the last three numbers of the low-pass filter of order 4 are those of SciPy's ellipap().
TEST(FilterMask, IsReachedByTheRipplesOfAnEllipticFilter)
{
    const std::vector<double> response = filtered({Elliptic, LowPass, 4, 0.1}, impulse(2048));
    double lowest = 0, highest = -1, leak = kNone;
    for (double f = 0; f < 0.1; f += 0.00025) {
        lowest = std::min(lowest, gainAt(response, f));
        highest = std::max(highest, gainAt(response, f));
    }
    for (double f = 0.18842; f <= 0.5; f += 0.001)
        leak = std::max(leak, gainAt(response, f));
    EXPECT_NEAR(lowest, -0.5, 1e-4);
    EXPECT_NEAR(highest, 0, 1e-4);
    EXPECT_NEAR(leak, -50, 2e-3);
    EXPECT_NEAR(gainAt(response, 0.18841318074458202), -50, 1e-6);
}

} // namespace
} // namespace quordsp::test
