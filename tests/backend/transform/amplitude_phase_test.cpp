#include "backend/transform/signals.h"
#include "data/backend/transform_vectors.inc"

#include <gmock/gmock.h>

#include <algorithm>
#include <numbers>

namespace quordsp::backend {
namespace {

using testing::DoubleNear;
using testing::ElementsAre;
using testing::Pointwise;

constexpr double kPi = std::numbers::pi;

struct AmplitudePhase {
    Array amplitude;
    Array phase;
    double df;
};

AmplitudePhase spectrumOf(const Array& x, bool unwrap, double dt = 1)
{
    const std::size_t bins = std::max<std::size_t>(x.size() / 2, 1);
    AmplitudePhase y = {Array(bins), Array(bins), 0};
    EXPECT_EQ(AALFunc5(x.data(), count(x), unwrap, dt, y.amplitude.data(), y.phase.data(), &y.df), Status::Success);
    return y;
}

// Signal of n points with an offset, whose bins 1, 2, ... have the given phases.
Array withPhases(std::size_t n, const Array& phases)
{
    Array x(n, 1.0);
    for (std::size_t i = 0; i < n; ++i)
        for (std::size_t k = 0; k < phases.size(); ++k)
            x[i] += std::cos(2 * kPi * static_cast<double>((k + 1) * i) / static_cast<double>(n) + phases[k]);
    return x;
}

TEST(AmpPhaseSpectrum, ReadsRmsAmplitudeAndPhaseOfACosine)
{
    Array x(20);
    for (std::size_t i = 0; i < 20; ++i)
        x[i] = 3 + 2 * std::cos(2 * kPi * 4 * static_cast<double>(i) / 20 - 0.7);
    const auto [amplitude, phase, df] = spectrumOf(x, false, 0.01);
    EXPECT_NEAR(amplitude[0], 3, 1e-14);
    EXPECT_NEAR(amplitude[4], std::numbers::sqrt2, 1e-14);
    EXPECT_NEAR(amplitude[5], 0, 1e-14);
    EXPECT_EQ(phase[0], 0);
    EXPECT_NEAR(phase[4], -0.7, 1e-14);
    EXPECT_DOUBLE_EQ(df, 5);
}

TEST(AmpPhaseSpectrum, AgreesWithNumPyForAnEvenSize)
{
    const auto [amplitude, phase, df] = spectrumOf(array(kSpectrum30In), false, 0.002);
    EXPECT_THAT(phase, Pointwise(DoubleNear(1e-14), array(kSpectrum30Phase)));
    EXPECT_DOUBLE_EQ(df, kSpectrum30Df[0]);
}

TEST(AmpPhaseSpectrum, AgreesWithNumPyForAnOddSize)
{
    EXPECT_THAT(spectrumOf(array(kSpectrum31In), false).phase, Pointwise(DoubleNear(1e-14), array(kSpectrum31Phase)));
}

TEST(AmpPhaseSpectrum, UnwrapsAsNumPyDoes)
{
    EXPECT_THAT(spectrumOf(array(kSpectrum30In), true).phase,
                Pointwise(DoubleNear(2e-14), array(kSpectrum30Unwrapped)));
    EXPECT_THAT(spectrumOf(array(kSpectrum31In), true).phase,
                Pointwise(DoubleNear(2e-14), array(kSpectrum31Unwrapped)));
}

// Steps of 2.5 downwards from bin to bin, which wrap after the first.
TEST(AmpPhaseSpectrum, UnwrapsAFallingPhase)
{
    const Array x = withPhases(12, {-2.5, -5, -7.5, -10, -12.5});
    EXPECT_THAT(spectrumOf(x, true).phase, Pointwise(DoubleNear(1e-13), Array{0, -2.5, -5, -7.5, -10, -12.5}));
    EXPECT_THAT(spectrumOf(x, false).phase,
                Pointwise(DoubleNear(1e-13), Array{0, -2.5, 2 * kPi - 5, 2 * kPi - 7.5, 4 * kPi - 10, 4 * kPi - 12.5}));
}

TEST(AmpPhaseSpectrum, UnwrapsARisingPhase)
{
    const Array x = withPhases(12, {2, 4.5, 7, 9.5, 12});
    EXPECT_THAT(spectrumOf(x, true).phase, Pointwise(DoubleNear(1e-13), Array{0, 2, 4.5, 7, 9.5, 12}));
}

TEST(AmpPhaseSpectrum, AmplitudeIsTheRootOfTheAutoPower)
{
    for (const std::size_t n : {1u, 2u, 3u, 8u, 67u, 100u}) {
        const Array x = noise(n, 11);
        const AmplitudePhase y = spectrumOf(x, true);
        Array power(y.amplitude.size());
        double df = 0;
        ASSERT_EQ(AALFunc10(x.data(), count(x), 1, power.data(), &df), Status::Success);
        for (std::size_t k = 0; k < power.size(); ++k)
            EXPECT_NEAR(y.amplitude[k], std::sqrt(power[k]), 1e-15) << n << ' ' << k;
    }
}

TEST(AmpPhaseSpectrum, PhaseOfEmptyBinsIsZero)
{
    for (const std::size_t n : {4u, 9u, 12u, 67u})
        for (const double value : spectrumOf(Array(n, -0.0), false).phase)
            EXPECT_EQ(value, 0) << n;
}

TEST(AmpPhaseSpectrum, PhaseOfANegativeOffsetIsPi)
{
    for (const std::size_t n : {1u, 2u, 9u, 12u, 67u})
        EXPECT_EQ(spectrumOf(Array(n, -1.0), false).phase[0], kPi) << n;
}

// The bins of a real even signal are real; those that are negative have the phase pi and never -pi.
TEST(AmpPhaseSpectrum, PhaseOfNegativeRealBinsIsPi)
{
    EXPECT_THAT(spectrumOf({-1, 0, 0, 0, 0, 0, 0, 0}, false).phase, ElementsAre(kPi, kPi, kPi, kPi));
}

TEST(AmpPhaseSpectrum, WritesOneElementForUpToThreePoints)
{
    for (const std::size_t n : {1u, 2u, 3u}) {
        const Array x(n, 2.0);
        double amplitude[] = {-1, -1}, phase[] = {-1, -1}, df = 0;
        ASSERT_EQ(AALFunc5(x.data(), count(x), 1, 1, amplitude, phase, &df), Status::Success);
        EXPECT_THAT(amplitude, ElementsAre(DoubleNear(2, 1e-15), -1)) << n;
        EXPECT_THAT(phase, ElementsAre(0, -1)) << n;
        EXPECT_DOUBLE_EQ(df, 1 / static_cast<double>(n));
    }
}

TEST(AmpPhaseSpectrum, DoesNotOverflowOrVanishWhereTheResultDoesNot)
{
    EXPECT_DOUBLE_EQ(spectrumOf(Array(4, 1e200), true).amplitude[0], 1e200);
    EXPECT_DOUBLE_EQ(spectrumOf(Array(4, 1e-200), true).amplitude[0], 1e-200);
}

} // namespace
} // namespace quordsp::backend
