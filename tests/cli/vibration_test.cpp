#include "vibration.h"

#include <algorithm>
#include <cmath>
#include <numbers>

#include <gtest/gtest.h>

#include "sine_fit.h"

namespace quordsp::cli {
namespace {

constexpr double kRate = 5000;
constexpr double kFrequency = 100;
constexpr double kOmega = 2 * std::numbers::pi * kFrequency;

// 10 g.
std::vector<double> sine(std::size_t count)
{
    std::vector<double> samples(count);
    for (std::size_t i = 0; i < count; ++i)
        samples[i] = 10 * std::sin(kOmega * static_cast<double>(i) / kRate + 0.3);
    return samples;
}

VibrationSettings settings()
{
    return {.rate = kRate};
}

// By hand: a, a / w and a / w^2 of a sine; the trapezoidal rule takes x / tan(x) of it, x = w / rate / 2, each time.
TEST(Vibration, GivesTheAmplitudesOfASine)
{
    const auto record = integrateVibration(sine(20000), settings(), 5000);
    const double x = kOmega / kRate / 2;
    const double rule = x / std::tan(x);
    const double acceleration = 10 * kLibraryG;
    EXPECT_NEAR(amplitudeAt(record.acceleration, kRate, kFrequency).value(), acceleration, 1e-6 * acceleration);
    const double velocity = 1000 * acceleration / kOmega * rule;
    EXPECT_NEAR(amplitudeAt(record.velocity, kRate, kFrequency).value(), velocity, 1e-3 * velocity);
    const double displacement = 1000 * acceleration / (kOmega * kOmega) * rule * rule;
    EXPECT_NEAR(amplitudeAt(record.displacement, kRate, kFrequency).value(), displacement, 2e-3 * displacement);
}

// The displacement of a sine is its acceleration upside down. Only the first and the last quarter of a block see the
// ends of a trend.
TEST(Vibration, IsSmoothFromBlockToBlock)
{
    const auto samples = sine(20000);
    const auto record = integrateVibration(samples, settings(), 5000);
    for (std::size_t i = 1250; i < 18750; ++i)
        ASSERT_NEAR(record.displacement[i], -1000 * kLibraryG * samples[i] / (kOmega * kOmega), 0.005) << i;
}

TEST(Vibration, DoesNotDependOnTheStreamBeforeIt)
{
    const auto samples = sine(4000);
    const auto first = integrateVibration(samples, settings(), 1000);
    integrateVibration(samples, {.rate = 10, .sensitivity = 3}, 500);
    const auto second = integrateVibration(samples, settings(), 1000);
    EXPECT_EQ(first.velocity, second.velocity);
    EXPECT_EQ(first.displacement, second.displacement);
}

TEST(Vibration, CoversTheRecordWhateverItsLength)
{
    for (const std::size_t count : {32u, 33u, 63u, 999u, 1000u, 1001u, 1499u, 1500u, 1501u, 3333u}) {
        const auto record = integrateVibration(sine(count), settings(), 1000);
        for (const auto* samples : {&record.acceleration, &record.velocity, &record.displacement}) {
            EXPECT_EQ(samples->size(), count);
            EXPECT_TRUE(std::ranges::all_of(*samples, [](double v) { return std::isfinite(v); })) << count;
        }
        EXPECT_EQ(std::ranges::count(record.velocity, 0.0), 0) << count;
    }
}

TEST(Vibration, AddsTheOffsetToEveryBlockOfTheAcceleration)
{
    VibrationSettings moved = settings();
    moved.sensitivity = 50;
    moved.offset = 2;
    const std::vector<double> rest(3000);
    const auto record = integrateVibration(rest, moved, 1000);
    for (const double value : record.acceleration)
        ASSERT_NEAR(value, 2 * kLibraryG, 1e-12);
}

TEST(Vibration, DividesByTheSensitivity)
{
    VibrationSettings sensor = settings();
    sensor.sensitivity = 50;
    const std::vector<double> volts(100, 0.1);
    EXPECT_NEAR(integrateVibration(volts, sensor, 100).acceleration[7], 2 * kLibraryG, 1e-12);
}

// 159 mm/s and more are cut to 100 before the trend goes.
TEST(Vibration, KeepsTheIntegralWithinItsBounds)
{
    VibrationSettings bounded = settings();
    bounded.velocity = {-100, 100};
    const auto record = integrateVibration(sine(5000), bounded, 5000);
    EXPECT_LT(std::ranges::max(record.velocity), 130);
    EXPECT_GT(std::ranges::max(integrateVibration(sine(5000), settings(), 5000).velocity), 150);
}

// Every block begins at the same phase of the sine, and so does the record: each has its integral cut alike.
TEST(Vibration, KeepsEveryBlockWithinTheBounds)
{
    VibrationSettings bounded = settings();
    bounded.velocity = {-100, 100};
    const auto whole = integrateVibration(sine(20000), bounded, 20000);
    const double velocity = amplitudeAt(whole.velocity, kRate, kFrequency).value();
    const double displacement = amplitudeAt(whole.displacement, kRate, kFrequency).value();
    for (const std::size_t block : {19999u, 10000u, 5000u}) {
        const auto record = integrateVibration(sine(20000), bounded, block);
        EXPECT_NEAR(amplitudeAt(record.velocity, kRate, kFrequency).value(), velocity, 0.01 * velocity) << block;
        EXPECT_NEAR(amplitudeAt(record.displacement, kRate, kFrequency).value(), displacement, 0.01 * displacement)
            << block;
    }
}

TEST(GPerUnit, KnowsUnitsOfAcceleration)
{
    EXPECT_EQ(gPerUnit("g"), 1);
    EXPECT_EQ(gPerUnit(""), 1);
    EXPECT_EQ(gPerUnit("mg"), 1e-3);
    EXPECT_EQ(gPerUnit("m/s2"), 1 / 9.78);
    EXPECT_EQ(gPerUnit("mV"), 0);
}

} // namespace
} // namespace quordsp::cli
