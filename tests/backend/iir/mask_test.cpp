// Spectral masks of the one-call filters, measured on their impulse responses.
#include "backend/support/iir.h"
#include "reference/response.h"

#include <gtest/gtest.h>

#include <cmath>

namespace quordsp::test {
namespace {

constexpr double kNone = -1000; // dB

struct Zone {
    double from, to;       // fractions of fs
    double floor, ceiling; // dB
};

struct Mask {
    int type, order;
    double fl, fh;
    std::vector<Zone> zones;
};

// The limits are those of 1 / (1 + q^(2 order)) at the ends of each zone, rounded outwards; q = tan(pi f) / tan(pi fc),
// for band filters (w^2 - wl wh) / (w (wh - wl)).
const Mask kMasks[] = {
    {LowPass, 1, 0.1, 0, {{0, 0.05, -1.0, 0}, {0.1, 0.1, -3.0104, -3.0102}, {0.4, 0.5, kNone, -19.5}}},
    {LowPass, 4, 0.1, 0, {{0, 0.05, -0.014, 0}, {0, 0.1, -3.0104, 0}, {0.2, 0.5, kNone, -27.9}}},
    {LowPass, 8, 0.02, 0, {{0, 0.015, -0.05, 0}, {0.04, 0.5, kNone, -48.2}}},
    {LowPass, 20, 0.3, 0, {{0, 0.25, -0.02, 0}, {0.35, 0.5, kNone, -61}}},
    {HighPass, 1, 0.25, 0, {{0, 0.05, kNone, -15.9}, {0.45, 0.5, -0.12, 0}}},
    {HighPass, 5, 0.05, 0, {{0, 0.02, kNone, -40}, {0.1, 0.5, -0.004, 0}}},
    {HighPass, 12, 0.4, 0, {{0, 0.3, kNone, -83}, {0.45, 0.5, -0.0001, 0}}},
    {BandPass,
     2,
     0.1,
     0.2,
     {{0, 0.04, kNone, -21}, {0.1, 0.2, -3.0104, 0}, {0.12, 0.17, -0.6, 0}, {0.35, 0.5, kNone, -24}}},
    {BandPass, 6, 0.2, 0.25, {{0, 0.15, kNone, -63}, {0.21, 0.24, -0.05, 0}, {0.3, 0.5, kNone, -59}}},
    {BandPass, 3, 0.002, 0.004, {{0, 0.001, kNone, -32}, {0.0024, 0.0034, -0.1, 0}, {0.01, 0.5, kNone, -37}}},
    {BandStop, 2, 0.1, 0.3, {{0, 0.03, -0.06, 0}, {0.16, 0.21, kNone, -16}, {0.45, 0.5, -0.06, 0}}},
    {BandStop, 7, 0.2, 0.3, {{0, 0.18, -0.5, 0}, {0.23, 0.27, kNone, -54}, {0.32, 0.5, -0.5, 0}}},
};

TEST(ButterworthMask, HoldsForEveryResponseAndOrder)
{
    constexpr int kPoints = 41;
    constexpr double kSlack = 1e-9; // of the measurement
    for (const auto& [type, order, fl, fh, zones] : kMasks) {
        const std::vector<double> response = butterworth(type, impulse(16384), fl, fh, order);
        ASSERT_FALSE(response.empty());
        for (const auto& [from, to, floor, ceiling] : zones)
            for (int i = 0; i < kPoints; ++i) {
                const double f = from + (to - from) * i / (kPoints - 1);
                const double gain = reference::decibels(std::abs(reference::spectrum(response, f)) + 1e-40L);
                EXPECT_GE(gain, floor - kSlack) << "type " << type << " order " << order << " at " << f;
                EXPECT_LE(gain, ceiling + kSlack) << "type " << type << " order " << order << " at " << f;
            }
    }
}

// Where sections of fourth order would be off by 1e-2 dB, these are not.
TEST(ButterworthMask, KeepsNarrowBandsAtLowFrequencies)
{
    for (int type : {BandPass, BandStop})
        for (int order : {1, 3, 8}) {
            const std::vector<double> response = butterworth(type, impulse(600000), 1e-4, 2e-4, order);
            for (double f : {0.5e-4, 1e-4, 1.4e-4, 2e-4, 3e-4, 1e-3}) {
                const long double wanted = reference::butterworthGain(type, order, 1e-4, 2e-4, f);
                EXPECT_NEAR(static_cast<double>(std::abs(reference::spectrum(response, f))),
                            static_cast<double>(wanted), 1e-7)
                    << "type " << type << " order " << order << " at " << f;
            }
        }
}

} // namespace
} // namespace quordsp::test
