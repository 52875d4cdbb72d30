// The block without state.
#include <algorithm>

#include <gmock/gmock.h>

#include "QuorDSP_DAQ.h"
#include "numeric/signals.h"
#include "reference/vibration.h"

namespace quordsp {
namespace {

using reference::EulerSettings;
using reference::Vibration;
using namespace signals;
using ::testing::DoubleNear;
using ::testing::Each;
using ::testing::ElementsAre;
using ::testing::IsNan;
using ::testing::Pointwise;

// The velocity and the displacement that the caller leaves in the arrays.
struct Before {
    Samples velocity;
    Samples displacement;
};
Before zeros(std::size_t count)
{
    return {Samples(count, 0.0), Samples(count, 0.0)};
}

Vibration process(const EulerSettings& s, Samples raw, Before before, Samples breakpoints = {})
{
    Vibration out{Samples(raw.size()), std::move(before.velocity), std::move(before.displacement)};
    EXPECT_EQ(QuorDSP_Vibration_Acceleration_Euler(
                  raw.data(), static_cast<int>(raw.size()), s.sampleRate, s.scale, s.offset, s.initialVelocity,
                  s.initialDisplacement, s.velocityMax, s.velocityMin, s.displacementMax, s.displacementMin,
                  out.acceleration.data(), out.velocity.data(), out.displacement.data(), breakpoints.data(),
                  static_cast<int>(breakpoints.size())),
              QUORDSP_SUCCESS);
    return out;
}

auto isNear(const Samples& expected, double tolerance = 1e-12)
{
    return Pointwise(DoubleNear(tolerance), expected);
}

// Raw samples in m/s^2, at one sample a second.
constexpr EulerSettings kUnit{.scale = 1.0 / 9.78};

TEST(VibrationEuler, ScalesRawSamplesToG)
{
    EXPECT_THAT(process({.scale = 0.5, .offset = -1.0}, {4.0, 0.0, 1.0}, zeros(3)).acceleration,
                ElementsAre(1.0, -1.0, -0.5));
}

TEST(VibrationEuler, IntegratesABlock)
{
    Before before = zeros(5);
    before.velocity[4] = 10.0;
    // Velocity -0.5, -1, -0.5, -0.5 m/s, and 10 from the caller. What is left beside degree 3 is 12.5/70 (1, -4, 6,
    // ...).
    EXPECT_THAT(process(kUnit, {1.0, -2.0, 1.0, 0.0, 0.0}, before).velocity,
                isNear({12.5 / 70, -50.0 / 70, 75.0 / 70, -50.0 / 70, 12.5 / 70}));
}

TEST(VibrationEuler, IgnoresAllButTheLastElementsThatTheCallerLeft)
{
    const Samples raw = Noise{}.next(20);
    Before before{Samples(20, 5.0), Samples(20, 6.0)};
    const Vibration expected = process(kUnit, raw, before);
    for (std::size_t i = 0; i < 19; ++i)
        before.velocity[i] = before.displacement[i] = kNan;
    const Vibration out = process(kUnit, raw, before);
    EXPECT_EQ(bits(out.velocity), bits(expected.velocity));
    EXPECT_EQ(bits(out.displacement), bits(expected.displacement));
}

TEST(VibrationEuler, TakesTheLastDisplacementFromTheCaller)
{
    Before before = zeros(17);
    before.displacement[16] = 1e5;
    EXPECT_THAT(process({.displacementMax = 0.0, .displacementMin = 0.0}, Noise{}.next(17), before).displacement,
                isNear(withoutPolynomial(before.displacement), 3e-3));
}

TEST(VibrationEuler, StartsFromTheInitialValues)
{
    EXPECT_THAT(process({.initialVelocity = 2.0}, Samples(5, 0.0), zeros(5)).velocity,
                isNear(withoutPolynomial({2.0, 2.0, 2.0, 2.0, 0.0})));
    Samples displacement(17, 1e5);
    displacement[16] = 0.0;
    EXPECT_THAT(process({.initialDisplacement = 1e5}, Samples(17, 0.0), zeros(17)).displacement,
                isNear(withoutPolynomial(displacement), 3e-3));
}

TEST(VibrationEuler, ClipsWhatIsStoredButNotTheRunningSum)
{
    EulerSettings s = kUnit;
    s.velocityMin = -0.75;
    // Velocity -0.5, -1, -0.5, -0.5 m/s. Had the sum been clipped, -0.25 would follow the second.
    EXPECT_THAT(process(s, {1.0, -2.0, 1.0, 0.0, 0.0}, zeros(5)).velocity,
                isNear(withoutPolynomial({-0.5, -0.75, -0.5, -0.5, 0.0})));
}

TEST(VibrationEuler, StoresTheLowerOfCrossedBounds)
{
    EXPECT_THAT(process({.velocityMax = -1.0, .velocityMin = 2.0}, Noise{}.next(5), zeros(5)).velocity,
                isNear(withoutPolynomial({2.0, 2.0, 2.0, 2.0, 0.0})));
}

TEST(VibrationEuler, RemovesTrendsThatBendAtTheBreakpoints)
{
    // An acceleration that bends at one sample gives a velocity of two parabolas.
    Samples raw;
    for (int i = 0; i < 40; ++i)
        raw.push_back(std::max(0.0, i - 10.0));
    Samples w = raw;
    linear_regression(w.data(), 40);
    // The velocity at the last sample as the caller has to set it for that, with the acceleration one sample further
    // on.
    w.push_back(2.0 * w[39] - w[38]);
    Before before = zeros(40);
    for (std::size_t i = 0; i < 40; ++i)
        before.velocity[39] += (w[i] + w[i + 1]) / 2.0;
    // velocity[i] reaches to acceleration[i + 1]: it bends at the 10th sample.
    EXPECT_THAT(process(kUnit, raw, before, {10.0}).velocity, Each(DoubleNear(0.0, 1e-9)));
    EXPECT_GT(std::abs(process(kUnit, raw, before).velocity[20]), 0.1);
}

TEST(VibrationEuler, TakesANullArrayOfBreakpointsForNone)
{
    Samples raw = Noise{}.next(20), acceleration(20), velocity(20), displacement(20);
    QuorDSP_Vibration_Acceleration_Euler(raw.data(), 20, 1.0, 1.0, 0.0, 0.0, 0.0, 1e8, -1e8, 1e8, -1e8,
                                         acceleration.data(), velocity.data(), displacement.data(), nullptr, 5);
    EXPECT_EQ(bits(velocity), bits(process({}, raw, zeros(20)).velocity));
}

TEST(VibrationEuler, MakesTheVelocityOfASingleSampleNaN)
{
    const Vibration out = process({.scale = 2.0}, {3.0}, {{1.0}, {1.0}});
    EXPECT_THAT(out.acceleration, ElementsAre(6.0));
    EXPECT_THAT(out.velocity, ElementsAre(IsNan()));
    EXPECT_THAT(out.displacement, ElementsAre(0.0));
}

TEST(VibrationEuler, TakesTheDisplacementOfASingleSampleFromItself)
{
    const auto left = [](double before) { return process({}, {3.0}, {{1.0}, {before}}).displacement; };
    EXPECT_EQ(bits(left(2.0)), bits({0.0}));
    EXPECT_EQ(bits(left(-2.0)), bits({-0.0}));
    for (const double before : {kInfinity, -kInfinity, kNan})
        EXPECT_THAT(left(before), ElementsAre(IsNan()));
}

TEST(VibrationEuler, TouchesNothingWithoutSamplesOrArrays)
{
    double raw[2] = {1.0, 2.0};
    double out[3][2] = {{4.0, 4.0}, {4.0, 4.0}, {4.0, 4.0}};
    const auto call = [](int count, double* in, double* a, double* v, double* d) {
        return QuorDSP_Vibration_Acceleration_Euler(in, count, 1.0, 1.0, 0.0, 0.0, 0.0, 1.0, -1.0, 1.0, -1.0, a, v, d,
                                                    nullptr, 0);
    };
    for (const int count : {0, -1, std::numeric_limits<int>::min()}) {
        EXPECT_EQ(call(count, raw, out[0], out[1], out[2]), QUORDSP_SUCCESS);
        EXPECT_EQ(call(count, nullptr, nullptr, nullptr, nullptr), QUORDSP_SUCCESS);
    }
    for (int missing = 0; missing < 4; ++missing) {
        double* arrays[] = {raw, out[0], out[1], out[2]};
        arrays[missing] = nullptr;
        EXPECT_EQ(call(2, arrays[0], arrays[1], arrays[2], arrays[3]), QUORDSP_SUCCESS);
    }
    for (const auto& array : out)
        EXPECT_THAT(array, Each(4.0));
}

TEST(VibrationEuler, KeepsNoState)
{
    const Samples raw = Noise{}.next(50);
    const Vibration first = process(kUnit, raw, zeros(50));
    process({.sampleRate = 7.0, .initialVelocity = 3.0, .velocityMax = 0.0}, Noise{}.next(30), zeros(30));
    const Vibration second = process(kUnit, raw, zeros(50));
    EXPECT_EQ(bits(second.velocity), bits(first.velocity));
    EXPECT_EQ(bits(second.displacement), bits(first.displacement));
}

TEST(VibrationEuler, MakesEverythingNaNAtARateOfZero)
{
    const Vibration out = process({.sampleRate = 0.0}, Noise{}.next(20), zeros(20));
    EXPECT_THAT(out.velocity, Each(IsNan()));
    EXPECT_THAT(out.displacement, Each(IsNan()));
}

TEST(VibrationEuler, GivesTheBitsOfTheDefinition)
{
    Noise noise;
    const EulerSettings cases[] = {{.sampleRate = 1000.0},
                                   {.scale = -3.0, .offset = 0.5, .initialVelocity = 1.0, .initialDisplacement = 2.0},
                                   {.velocityMax = 3.0, .velocityMin = -2.0, .displacementMax = 1.0},
                                   {.velocityMax = -3.0, .velocityMin = 2.0, .displacementMin = 0.5},
                                   {.sampleRate = 0.0},
                                   {.velocityMax = kNan, .displacementMin = kNan}};
    std::vector<int> counts(33);
    std::iota(counts.begin(), counts.end(), 1);
    counts.push_back(1000);
    for (const int count : counts)
        for (const EulerSettings& settings : cases)
            for (const Samples& breakpoints : {Samples{}, Samples{0.0}, Samples{count / 2.0, 3.0, kNan}}) {
                const Samples raw = noise.next(count);
                const Before before{noise.next(count), noise.next(count)};
                const Vibration out = process(settings, raw, before, breakpoints);
                const Vibration expected =
                    reference::vibrationEuler(settings, raw, before.velocity, before.displacement, breakpoints);
                EXPECT_EQ(bits(out.acceleration), bits(expected.acceleration)) << count;
                EXPECT_EQ(bits(out.velocity), bits(expected.velocity)) << count;
                EXPECT_EQ(bits(out.displacement), bits(expected.displacement)) << count;
            }
}

TEST(VibrationEuler, IsAsAccurateAsDocumented)
{
    constexpr double kPeak = 10.0 * 9.78;
    constexpr int kCount = 5000;
    for (const double hertz : {10.0, 50.0, 250.0, 625.0})
        for (const double start : {0.0, 0.125, 0.25, 0.375, 0.5}) {
            SCOPED_TRACE(testing::Message() << hertz << " Hz from period " << start);
            const double frequency = hertz / kCount;
            const double omega = 2.0 * std::numbers::pi * hertz;
            const double rule = trapezoidalGain(frequency);
            const double velocity = kPeak / omega * rule;
            const double displacement = kPeak / omega / omega * rule * rule;
            const Samples raw = cosine(frequency, start / frequency, kCount);
            // Where the record of a sine starts and ends: the velocity is one sample ahead, the displacement two.
            const auto at = [&](double sample) { return 2.0 * std::numbers::pi * (start + frequency * sample); };
            Before before = zeros(kCount);
            before.velocity.back() = velocity * std::sin(at(kCount));
            before.displacement.back() = -displacement * std::cos(at(kCount + 1.0));
            const Vibration out = process({.sampleRate = kCount,
                                           .scale = 10.0,
                                           .initialVelocity = velocity * std::sin(at(0.0)),
                                           .initialDisplacement = -displacement * std::cos(at(1.0))},
                                          raw, before);
            const Wave v = waveOf(out.velocity, frequency);
            const Wave d = waveOf(out.displacement, frequency);
            expectGain(v.amplitude / (kPeak / omega), rule, 3, hertz);
            expectGain(d.amplitude / (kPeak / omega / omega), rule * rule, 15, hertz);
            expectPhase(v.phase, start - 0.25 + frequency, 3, hertz);
            expectPhase(d.phase, start - 0.5 + 2.0 * frequency, 15, hertz);
        }
}

} // namespace
} // namespace quordsp
