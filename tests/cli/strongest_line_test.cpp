#include "strongest_line.h"

#include <cmath>
#include <numbers>
#include <random>
#include <vector>

#include <gtest/gtest.h>

namespace quordsp::cli {
namespace {

constexpr double kTurn = 2 * std::numbers::pi;

// Offset plus sine; the frequency in bins.
std::vector<double> sine(std::size_t count, double bins, double amplitude, double phase, double offset = 0)
{
    std::vector<double> samples;
    for (std::size_t i = 0; i < count; ++i)
        samples.push_back(
            offset + amplitude * std::cos(kTurn * bins * static_cast<double>(i) / static_cast<double>(count) + phase));
    return samples;
}

// Amplitudes (rms) by the definition of the transform.
std::vector<double> naiveSpectrum(const std::vector<double>& x)
{
    std::vector<double> levels;
    for (std::size_t k = 0; k < x.size() / 2; ++k) {
        double re = 0;
        double im = 0;
        for (std::size_t i = 0; i < x.size(); ++i) {
            const double angle = kTurn * static_cast<double>(k * i % x.size()) / static_cast<double>(x.size());
            re += x[i] * std::cos(angle);
            im -= x[i] * std::sin(angle);
        }
        levels.push_back(std::hypot(re, im) / static_cast<double>(x.size()) * (k == 0 ? 1 : std::numbers::sqrt2));
    }
    return levels;
}

TEST(SineFit, IsExactForAPureSineBetweenBinsAndForAnyPhase)
{
    for (const std::size_t count : {16u, 17u, 100u, 1001u})
        for (const double bins : {2.0, 2.25, 2.5, 3.37, 5.5, 6.9})
            for (const double phase : {0.0, 0.7, 1.5, 3.0, 5.0}) {
                const auto samples = sine(count, bins, 2.5, phase, 40);
                const double rate = static_cast<double>(count); // one bin is 1 Hz
                const auto fit = fitSine(samples, rate, std::round(bins));
                ASSERT_TRUE(fit) << count << ' ' << bins << ' ' << phase;
                EXPECT_NEAR(fit->frequency, bins, 1e-9 * bins);
                EXPECT_NEAR(fit->amplitude, 2.5, 1e-9 * 2.5);
                EXPECT_NEAR(fit->share, 1, 1e-9);
            }
}

TEST(SineFit, HoldsOverALongRecord)
{
    const auto fit = fitSine(sine(1000000, 12345.4, 1, 0.3), 1e6, 12345);
    ASSERT_TRUE(fit);
    EXPECT_NEAR(fit->frequency, 12345.4, 1e-6);
    EXPECT_NEAR(fit->amplitude, 1, 1e-9);
}

TEST(SineFit, IsHardlyPulledByAnotherLine)
{
    auto samples = sine(1000, 50.4, 1, 0.2);
    const auto other = sine(1000, 60.7, 1, 1.1);
    for (std::size_t i = 0; i < samples.size(); ++i)
        samples[i] += other[i];
    const auto fit = fitSine(samples, 1000, 50);
    ASSERT_TRUE(fit);
    EXPECT_NEAR(fit->frequency, 50.4, 2e-3);
    EXPECT_NEAR(fit->amplitude, 1, 2e-3);
    EXPECT_NEAR(fit->share, 0.5, 0.02);
}

// The bounds are four standard deviations by the theory of least squares: amplitude sqrt(2 / n), frequency sqrt(6 / n)
// / (pi n) in cycles a sample, each times sigma and times about 1.5 for the window.
TEST(SineFit, AveragesNoiseAway)
{
    std::mt19937 generator(7);
    std::normal_distribution<double> noise(0, 0.3);
    auto samples = sine(4000, 100.3, 1, 0.2);
    for (double& sample : samples)
        sample += noise(generator);
    const auto fit = fitSine(samples, 4000, 100);
    ASSERT_TRUE(fit);
    EXPECT_NEAR(fit->frequency, 100.3, 4 * 1.5 * 0.3 * std::sqrt(6.0 / 4000) / std::numbers::pi);
    EXPECT_NEAR(fit->amplitude, 1, 4 * 1.5 * 0.3 * std::sqrt(2.0 / 4000));
    EXPECT_NEAR(fit->share, 0.5 / (0.5 + 0.09), 0.02);
}

TEST(SineFit, FindsNothingWhereNoSineIs)
{
    EXPECT_FALSE(fitSine(std::vector<double>(100, 3.0), 100, 10));
    EXPECT_FALSE(fitSine(std::vector<double>(7, 3.0), 7, 1));
    EXPECT_FALSE(fitSine(sine(1000, 50, 1, 0.2), 1000, 47));
}

TEST(SineFit, SurvivesSamplesThatAreNotFinite)
{
    auto samples = sine(100, 10, 1, 0);
    samples[50] = std::numeric_limits<double>::infinity();
    EXPECT_FALSE(fitSine(samples, 100, 10));
}

TEST(StrongestLine, StandsBetweenTheBinsWhereTheSpectrumReadsTooLow)
{
    const auto samples = sine(400, 25.5, 10, 0.4, 3);
    const auto levels = naiveSpectrum(samples);
    const auto line = findStrongestLine(samples, 1000, levels); // bins are 2.5 Hz apart
    ASSERT_TRUE(line && line->sine);
    EXPECT_LT(levels[line->bin] * std::numbers::sqrt2, 6.6); // 2/pi of 10 is 6.37
    EXPECT_NEAR(line->sine->frequency, 63.75, 1e-6);
    EXPECT_NEAR(line->sine->amplitude, 10, 1e-6);
}

TEST(StrongestLine, IsNeverTheOffset)
{
    const auto samples = sine(100, 7, 1, 0, 50);
    const auto line = findStrongestLine(samples, 100, naiveSpectrum(samples));
    ASSERT_TRUE(line);
    EXPECT_EQ(line->bin, 7u);
    EXPECT_EQ(line->frequency, 7);
}

TEST(StrongestLine, IsNoneInAConstantOrVeryShortSignal)
{
    EXPECT_FALSE(findStrongestLine(std::vector<double>(8), 1, std::vector<double>(4)));
    EXPECT_FALSE(findStrongestLine(std::vector<double>(2), 1, std::vector<double>(1)));
}

TEST(StrongestLine, IsNoneAtTheLevelOfRounding)
{
    const auto samples = sine(100, 7, 1e-15, 0, 50);
    const auto levels = naiveSpectrum(samples);
    EXPECT_TRUE(findStrongestLine(samples, 100, levels));
    EXPECT_FALSE(findStrongestLine(samples, 100, levels, 1e-12));
}

TEST(HighestBin, IsTheFirstOfEqualsAboveTheFloorAndNotTheOneOfZero)
{
    const std::vector<double> levels{1, 4, 9, 4};
    EXPECT_EQ(highestBin(levels, 2, 0), 1u);
    EXPECT_EQ(highestBin(levels, 0, 0), 2u);
    EXPECT_EQ(highestBin(levels, 2, 4), std::nullopt);
}

TEST(AmplitudeAt, IsThatOfTheSineAtTheFrequencyBesideOthers)
{
    std::vector<double> samples(1000);
    for (std::size_t i = 0; i < samples.size(); ++i) {
        const double t = static_cast<double>(i) / 1000;
        samples[i] =
            5 + 0.25 * std::sin(2 * std::numbers::pi * 50.3 * t + 1) + 3 * std::cos(2 * std::numbers::pi * 200 * t);
    }
    EXPECT_NEAR(amplitudeAt(samples, 1000, 50.3).value(), 0.25, 1e-5);
    EXPECT_NEAR(amplitudeAt(samples, 1000, 120).value(), 0, 1e-5);
}

TEST(AmplitudeAt, IsNoneForTooFewSamples)
{
    EXPECT_FALSE(amplitudeAt(std::vector<double>(7), 1, 0.1));
}

} // namespace
} // namespace quordsp::cli
