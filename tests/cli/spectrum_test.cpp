#include "spectrum.h"

#include <cmath>
#include <complex>
#include <numbers>
#include <vector>

#include <gtest/gtest.h>

#include "complex_spectrum.h"

namespace quordsp::cli {
namespace {

constexpr double kTurn = 2 * std::numbers::pi;

void expectNear(const std::vector<double>& values, const std::vector<double>& wanted, double tolerance)
{
    ASSERT_EQ(values.size(), wanted.size());
    for (std::size_t i = 0; i < values.size(); ++i)
        EXPECT_NEAR(values[i], wanted[i], tolerance) << i;
}

// numpy.fft.fftshift(numpy.fft.fft([1, 2j, -1.5+.5j, .25, 3-1j]))
const std::vector<double> kReal{1, 0, -1.5, 0.25, 3};
const std::vector<double> kImaginary{0, 2, 0.5, 0, -1};

TEST(TwoSidedSpectrum, IsThatOfNumPyForAnOddLength)
{
    const Exponentials found = twoSidedAmplitude({kReal, kImaginary});
    expectNear(found.amplitudes, {0.63827627, 0.79655183, 0.6264982, 1.43342929, 0.15293486}, 1e-8);
    expectNear(found.phases, {-2.9032325, -1.62323124, 0.49934672, 0.55658046, -2.32844304}, 1e-8);
    expectNear(twoSidedPower({kReal, kImaginary}), {0.4073966, 0.63449481, 0.3925, 2.05471952, 0.02338907}, 1e-8);
}

TEST(TwoSidedSpectrum, IsThatOfNumPyForAnEvenLength)
{
    const ComplexSignal signal{std::span(kReal).first(4), std::span(kImaginary).first(4)};
    const Exponentials found = twoSidedAmplitude(signal);
    expectNear(found.amplitudes, {0.41926275, 0.22534695, 0.62811723, 1.12673477}, 1e-8);
    expectNear(found.phases, {-2.03444394, -0.98279372, 1.67046498, -0.05549851}, 1e-8);
    expectNear(twoSidedPower(signal), {0.17578125, 0.05078125, 0.39453125, 1.26953125}, 1e-14);
}

// 2 e^(j (0.5 - 2 pi 4 t)) and 1 at 0 Hz, over one second.
TEST(TwoSidedSpectrum, ShowsAnExponentialAtItsFrequencyWithItsAmplitudeAndPhase)
{
    Series series{.label = {"i", "V"}, .rate = 50, .samples = {}};
    std::vector<double> imaginary;
    for (int i = 0; i < 50; ++i) {
        const std::complex<double> value = 3.0 + std::polar(2.0, 0.5 - kTurn * 4 * i / 50);
        series.samples.push_back(value.real());
        imaginary.push_back(value.imag());
    }
    for (const bool power : {false, true}) {
        const Spectrum spectrum = twoSidedSpectrum(series, imaginary, {.power = power, .phase = true});
        ASSERT_EQ(spectrum.levels.size(), 50u);
        ASSERT_TRUE(spectrum.line);
        EXPECT_EQ(spectrum.zero, 25u);
        EXPECT_EQ(spectrum.line->bin, 21u);
        EXPECT_EQ(spectrum.line->frequency, -4);
        EXPECT_NEAR(spectrum.levels[21], power ? 4 : 2, 1e-13);
        EXPECT_NEAR(spectrum.peakOf(spectrum.levels[21]), 2, 1e-13);
        EXPECT_NEAR(spectrum.levels[25], power ? 9 : 3, 1e-13);
        EXPECT_NEAR(spectrum.phases[21], 0.5 * 360 / kTurn, 1e-11);
        EXPECT_EQ(spectrum.level.unit, power ? "V^2" : "V");
    }
}

// A delay of 1.5 samples: the phase falls by 1.5 / 9 turns a bin.
TEST(TwoSidedSpectrum, IsUnwrappedFromZeroInBothDirections)
{
    std::vector<double> phases;
    for (int bin = -4; bin <= 4; ++bin)
        phases.push_back(std::remainder(1 - kTurn * bin * 1.5 / 9, kTurn));
    unwrapFromZero(phases);
    for (int bin = -4; bin <= 4; ++bin)
        EXPECT_NEAR(phases[static_cast<std::size_t>(bin + 4)], 1 - kTurn * bin * 1.5 / 9, 1e-13) << bin;
}

TEST(TwoSidedSpectrum, HasOneBinForOneSample)
{
    Series series{.rate = 1, .samples = {3}};
    const Spectrum spectrum = twoSidedSpectrum(series, {4}, {.phase = true, .unwrap = true});
    EXPECT_EQ(spectrum.levels, std::vector<double>{5});
    EXPECT_NEAR(spectrum.phases[0], 53.13010235415598, 1e-13); // atan(4 / 3)
    EXPECT_FALSE(spectrum.line);
}

TEST(OneSidedSpectrum, HasThePhaseOfACosine)
{
    Series series{.rate = 64, .samples = {}};
    for (int i = 0; i < 64; ++i)
        series.samples.push_back(2 * std::cos(kTurn * 5 * i / 64 - 1));
    EXPECT_TRUE(oneSidedSpectrum(series, {}).phases.empty());
    const Spectrum spectrum = oneSidedSpectrum(series, {.amplitude = "peak", .phase = true});
    EXPECT_EQ(spectrum.levels.size(), 32u);
    EXPECT_NEAR(spectrum.levels[5], 2, 1e-13);
    EXPECT_NEAR(spectrum.phases[5], -360 / kTurn, 1e-11);
}

// An impulse 3 samples late: the phase falls by 3 / 64 turns a bin.
TEST(OneSidedSpectrum, IsUnwrappedOnRequest)
{
    Series series{.rate = 1, .samples = std::vector<double>(64)};
    series.samples[3] = 1;
    const Spectrum spectrum = oneSidedSpectrum(series, {.phase = true, .unwrap = true});
    for (std::size_t bin = 0; bin < 32; ++bin)
        EXPECT_NEAR(spectrum.phases[bin], -360.0 * 3 / 64 * static_cast<double>(bin), 1e-10) << bin;
}

} // namespace
} // namespace quordsp::cli
