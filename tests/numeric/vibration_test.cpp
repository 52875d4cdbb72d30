// The stream of blocks that is integrated with the trapezoidal rule. Every test has the process, and so the stream, for
// itself.
#include <algorithm>

#include <gmock/gmock.h>

#include "QuorDSP_DAQ.h"
#include "numeric/signals.h"
#include "reference/vibration.h"

namespace quordsp {
namespace {

using reference::Vibration;
using namespace signals;
using ::testing::DoubleNear;
using ::testing::Each;
using ::testing::ElementsAre;
using ::testing::IsNan;
using ::testing::Pointwise;
using Params = std::array<double, 10>;

// Volts are m/s^2 with this one.
constexpr double kUnitSensitivity = 9780.0;
constexpr Params kFirst{1.0, 1.0, kUnitSensitivity, 0.0, 0.0, 0.0, 1e8, -1e8, 1e8, -1e8};
constexpr Params kNext{0.0, kNan, kNan, kNan, kNan, kNan, kNan, kNan, kNan, kNan};

struct Change {
    std::size_t index;
    double value;
};
Params with(Params params, std::initializer_list<Change> changes)
{
    for (const Change& change : changes)
        params[change.index] = change.value;
    return params;
}

Vibration process(Params params, Samples raw)
{
    const std::size_t n = raw.size();
    Vibration out{Samples(n, 7.0), Samples(n, 7.0), Samples(n, 7.0)};
    EXPECT_EQ(QuorDSP_Vibration_Acceleration(params.data(), raw.data(), out.acceleration.data(), out.velocity.data(),
                                             out.displacement.data(), static_cast<int>(n)),
              QUORDSP_SUCCESS);
    return out;
}

// A first block has the rate of the call before it: this call leaves one sample a second.
void setRate(double rate = 1.0)
{
    process(with(kFirst, {{1, rate}}), {0.0, 0.0});
}

// Millimetres against metres.
auto isMetres(Samples expected, double tolerance = 1e-9)
{
    for (double& value : expected)
        value *= 1000.0;
    return Pointwise(DoubleNear(tolerance), expected);
}

void expectSameBits(const Vibration& a, const Vibration& b)
{
    EXPECT_EQ(bits(a.acceleration), bits(b.acceleration));
    EXPECT_EQ(bits(a.velocity), bits(b.velocity));
    EXPECT_EQ(bits(a.displacement), bits(b.displacement));
}

// What a fit of degree 15 to 17 samples of 3e5 m is good for, in mm.
constexpr double kNear16 = 10.0;

TEST(Vibration, ScalesVoltsToMetresPerSecondSquared)
{
    // 100 mV/g and half a g of offset: 0.1 V are 1.5 g of 9.78 m/s^2.
    const Params params = with(kFirst, {{2, 100.0}, {3, 0.5}});
    EXPECT_THAT(process(params, {0.1, -0.1, 0.0, 5.0}).acceleration,
                Pointwise(DoubleNear(1e-12), {14.67, -4.89, 4.89, 493.89}));
}

// The blocks integrated by hand are at right angles to straight lines, so that none is removed from them.
TEST(Vibration, IntegratesAFirstBlock)
{
    setRate();
    // Velocity 0, 0, -1, -1 m/s; without its parabola -0.1, 0.3, -0.3, 0.1.
    EXPECT_THAT(process(kFirst, {1.0, -1.0, -1.0, 1.0}).velocity, isMetres({-0.1, 0.3, -0.3, 0.1}));
}

TEST(Vibration, IntegratesAContinuation)
{
    setRate();
    process(kFirst, Samples(20, 0.0));
    // From standstill: velocity 0.5, 0, -0.5, 0 ... m/s. What is left beside degree 5 is -7/924 (1, -6, 15, -20, 15,
    // -6, 1).
    EXPECT_THAT(process(kNext, {1.0, -2.0, 1.0, 0.0, 0.0, 0.0, 0.0}).velocity,
                isMetres({-1 / 132.0, 6 / 132.0, -15 / 132.0, 20 / 132.0, -15 / 132.0, 6 / 132.0, -1 / 132.0}));
}

TEST(Vibration, EntersTheInitialVelocityFromTheSecondSampleOn)
{
    EXPECT_THAT(process(with(kFirst, {{4, 2.0}}), Samples(4, 0.0)).velocity,
                isMetres(withoutPolynomial({0.0, 2.0, 2.0, 2.0})));
}

TEST(Vibration, EntersTheInitialDisplacementFromTheSecondSampleOn)
{
    Samples expected(17, 3e5);
    expected[0] = 0.0;
    EXPECT_THAT(process(with(kFirst, {{5, 3e5}}), Samples(17, 0.0)).displacement,
                isMetres(withoutPolynomial(expected), kNear16));
}

TEST(Vibration, IntegratesWithTheRateOfTheCallBefore)
{
    const Samples block{1.0, -1.0, -1.0, 1.0};
    const auto interval = [&](double rate) { return process(with(kFirst, {{1, rate}}), block).velocity[0] / -100.0; };
    EXPECT_NEAR(interval(2000.0) * 51200.0, 1.0, 1e-12);
    EXPECT_NEAR(interval(1000.0) * 2000.0, 1.0, 1e-12);
    EXPECT_NEAR(interval(1.0) * 1000.0, 1.0, 1e-12);
    EXPECT_NEAR(interval(1.0), 1.0, 1e-12);
}

TEST(Vibration, IgnoresAllSettingsButTheModeInAContinuation)
{
    const Samples raw = Noise{}.next(40);
    const auto afterAFirstBlock = [&](const Params& next) {
        setRate(100.0);
        process(with(kFirst, {{1, 100.0}, {2, 50.0}, {3, 0.5}, {6, 0.25}, {7, -0.5}}), raw);
        process(next, raw);
        return process(next, raw);
    };
    const Vibration expected = afterAFirstBlock(kNext);
    EXPECT_FALSE(std::isnan(expected.displacement[39]));
    expectSameBits(afterAFirstBlock({0.0, 5.0, 9.0, 4.0, 3.0, 2.0, 0.0, 0.0, 0.0, 0.0}), expected);
}

TEST(Vibration, AddsNoOffsetInAContinuation)
{
    process(with(kFirst, {{3, 2.0}}), Samples(3, 0.0));
    EXPECT_THAT(process(kNext, {1.0, 0.0, -1.0}).acceleration, Pointwise(DoubleNear(1e-15), {1.0, 0.0, -1.0}));
    // It adds 0, which -0 does not survive.
    EXPECT_FALSE(std::signbit(process(kNext, {-0.0}).acceleration[0]));
    EXPECT_TRUE(std::signbit(process(with(kFirst, {{3, -0.0}}), {-0.0}).acceleration[0]));
}

TEST(Vibration, TruncatesTheModeTowardsZero)
{
    const auto isFirst = [](double mode) {
        return process(with(kFirst, {{0, mode}, {3, 1.0}}), {0.0}).acceleration[0] != 0.0;
    };
    for (const double mode : {1.0, 1.5, 2.0, 2147483647.0, 2147483647.75})
        EXPECT_TRUE(isFirst(mode)) << mode;
    // Beyond an int: a continuation.
    for (const double mode :
         {0.0, 0.999, -0.999, -1.0, 2147483648.0, -2147483649.0, 1e300, kInfinity, -kInfinity, kNan})
        EXPECT_FALSE(isFirst(mode)) << mode;
}

TEST(Vibration, ClipsWhatIsStoredButNotTheRunningSum)
{
    setRate();
    // Velocity 0, 1, 1, 0 m/s, clipped to 0, 0.5, 0.5, 0: a parabola. Had the sum been clipped, -0.5 would follow.
    const Samples block{-1.0, 3.0, -3.0, 1.0};
    EXPECT_THAT(process(with(kFirst, {{6, 0.5}}), block).velocity, Each(DoubleNear(0.0, 1e-9)));
    // Velocity 0, -1, -1, 0 m/s, from 3 m/s on clipped from below: 0, 2.5, 2.5, 3.
    EXPECT_THAT(process(with(kFirst, {{4, 3.0}, {7, 2.5}}), {1.0, -3.0, 3.0, -1.0}).velocity,
                isMetres(withoutPolynomial({0.0, 2.5, 2.5, 3.0})));
}

TEST(Vibration, StoresTheLowerOfCrossedBounds)
{
    const Params crossed = with(kFirst, {{6, -1.0}, {7, 2.0}, {8, -1e5}, {9, 3e5}});
    EXPECT_THAT(process(crossed, Noise{}.next(4)).velocity, isMetres(withoutPolynomial({0.0, 2.0, 2.0, 2.0})));
    Samples displacement(17, 3e5);
    displacement[0] = 0.0;
    EXPECT_THAT(process(crossed, Noise{}.next(17)).displacement, isMetres(withoutPolynomial(displacement), kNear16));
}

TEST(Vibration, DoesNotClipTheFirstElementsOfAContinuation)
{
    // Velocity 0, 2, 2, 2 m/s, which ends at 0.1 m/s without its parabola.
    process(with(kFirst, {{6, 2.0}, {7, 2.0}}), Samples(4, 0.0));
    EXPECT_THAT(process(kNext, Samples(7, 0.0)).velocity,
                isMetres(withoutPolynomial({0.1, 2.0, 2.0, 2.0, 2.0, 2.0, 2.0})));
}

// In a stream without a first block, at 51200 Hz and 17.53 mV/g, the raw sample that is worth 1 m/s in an interval.
constexpr double kMetrePerSecond = 51200.0 * 17.53 / 9780.0;

TEST(Vibration, ClipsTheVelocityOfAStreamWithoutAFirstBlockAt1e8)
{
    // Velocity 0, 2e8, 0, -2e8, 0 ... m/s.
    const double step = 4e8 * kMetrePerSecond;
    EXPECT_THAT(process(kNext, {0.0, step, -2.0 * step, step, 0.0, 0.0, 0.0}).velocity,
                isMetres(withoutPolynomial({0.0, 1e8, 0.0, -1e8, 0.0, 0.0, 0.0}), 1.0));
}

TEST(Vibration, ClipsTheDisplacementOfAStreamWithoutAFirstBlockAt1e8)
{
    // Velocity V = 3.06e9 * 51200 m/s, which is not clipped, 0, -1e8, 0 ... Less its line it is V (1 - 66/306) and then
    // -V (66 - 6i)/306, whose integral is 3.06e9 m times 120/306, 210/306 ... 18/306 at the 5th, -15/306 at the 6th and
    // negative from there on.
    const double step = 2.0 * 3.06e9 * 51200.0 * kMetrePerSecond;
    Samples raw(17, 0.0);
    raw[0] = raw[2] = step;
    raw[1] = -2.0 * step;
    Samples expected(17, -1e8);
    std::fill_n(expected.begin(), 6, 1e8);
    expected[0] = 3.06e9 * 120.0 / 306.0;
    EXPECT_THAT(process(kNext, raw).displacement, isMetres(withoutPolynomial(expected), 5e6));
}

TEST(Vibration, TakesTheVelocityBeyondTheBlockForZero)
{
    Params params = kFirst;
    Noise noise;
    for (const std::size_t n : {1u, 2u, 3u, 20u}) {
        Samples raw = noise.next(static_cast<int>(n));
        Samples acceleration(n), velocity(n + 1, kNan), displacement(n);
        const Vibration expected = [&] {
            setRate();
            return process(params, raw);
        }();
        setRate();
        QuorDSP_Vibration_Acceleration(params.data(), raw.data(), acceleration.data(), velocity.data(),
                                       displacement.data(), static_cast<int>(n));
        EXPECT_EQ(bits(displacement), bits(expected.displacement)) << n;
        EXPECT_THAT(velocity[n], IsNan());
    }
}

TEST(Vibration, CarriesTheNaNOfASingleSampleOn)
{
    const Vibration single = process(kFirst, {5.0});
    EXPECT_DOUBLE_EQ(single.acceleration[0], 5.0);
    EXPECT_THAT(single.velocity, ElementsAre(IsNan()));
    EXPECT_THAT(single.displacement, ElementsAre(0.0));
    const Vibration next = process(kNext, Samples(30, 1.0));
    EXPECT_THAT(next.velocity, Each(IsNan()));
    EXPECT_THAT(next.displacement, Each(IsNan()));
    // A new stream is free of it.
    EXPECT_THAT(process(kFirst, Samples(30, 1.0)).velocity, Each(DoubleNear(0.0, 1e-9)));
}

TEST(Vibration, LetsInfinityAndNaNThrough)
{
    EXPECT_THAT(process(with(kFirst, {{2, 0.0}}), {1.0, -1.0, 0.0}).acceleration,
                ElementsAre(kInfinity, -kInfinity, IsNan()));
    EXPECT_THAT(process(with(kFirst, {{2, 0.0}, {6, 1.0}, {7, -1.0}}), Samples(20, 1.0)).velocity, Each(IsNan()));
    EXPECT_THAT(process(with(kFirst, {{1, 0.0}}), Samples(20, 0.0)).velocity, Each(0.0));
    EXPECT_THAT(process(kFirst, Noise{}.next(20)).velocity, Each(IsNan())) << "after a rate of 0";
}

TEST(Vibration, RefusesNullArraysAndCountsBelowOne)
{
    const Samples raw = Noise{}.next(20);
    const auto secondBlock = [&](auto meanwhile) {
        setRate();
        process(kFirst, raw);
        meanwhile();
        return process(kNext, raw);
    };
    const Vibration expected = secondBlock([] {});
    const Vibration interrupted = secondBlock([] {
        Params params = with(kFirst, {{1, 3.0}, {2, 5.0}, {4, 7.0}, {5, 9.0}, {6, 0.0}, {8, 0.0}});
        double in[2] = {1.0, 2.0};
        double out[3][2] = {{4.0, 4.0}, {4.0, 4.0}, {4.0, 4.0}};
        for (const int count : {0, -1, std::numeric_limits<int>::min()})
            EXPECT_EQ(QuorDSP_Vibration_Acceleration(params.data(), in, out[0], out[1], out[2], count), 20032);
        for (int missing = 0; missing < 5; ++missing) {
            double* arrays[] = {params.data(), in, out[0], out[1], out[2]};
            arrays[missing] = nullptr;
            EXPECT_EQ(QuorDSP_Vibration_Acceleration(arrays[0], arrays[1], arrays[2], arrays[3], arrays[4], 2), 20032);
        }
        for (const auto& array : out)
            EXPECT_THAT(array, Each(4.0));
    });
    expectSameBits(interrupted, expected);
}

TEST(Vibration, LeavesTheInputsAlone)
{
    Params params = kFirst;
    const Samples raw = Noise{}.next(20);
    Samples in = raw, acceleration(20), velocity(20), displacement(20);
    QuorDSP_Vibration_Acceleration(params.data(), in.data(), acceleration.data(), velocity.data(), displacement.data(),
                                   20);
    EXPECT_EQ(params, kFirst);
    EXPECT_EQ(in, raw);
}

TEST(Vibration, GivesTheBitsOfTheDefinition)
{
    reference::VibrationStream stream;
    Noise noise;
    // The first block of all is a continuation of the initial state.
    const Params blocks[] = {kNext,
                             {1.0, 2000.0, 100.0, 0.25, 0.5, -0.125, 1e8, -1e8, 1e8, -1e8},
                             kNext,
                             kNext,
                             {3.0, 10.0, 70.0, -0.5, 0.0, 0.0, 3.0, -2.0, 0.5, -0.25},
                             kNext,
                             {1.0, 25600.0, 17.53, 0.0, 1.0, 2.0, -1.0, 1.0, -2.0, 2.0},
                             kNext,
                             {1.0, 500.0, 10.0, 0.0, 0.0, 0.0, kNan, kNan, kNan, kNan},
                             kNext};
    std::vector<int> counts(33);
    std::iota(counts.begin(), counts.end(), 1);
    counts.push_back(1000);
    for (const int count : counts)
        for (const Params& params : blocks) {
            const Samples raw = noise.next(count);
            SCOPED_TRACE(testing::Message() << count << " samples, rate " << params[1]);
            expectSameBits(process(params, raw), stream.next(params, raw));
        }
}

TEST(Vibration, RoundsTheSmallestNumbersAsTheDefinitionDoes)
{
    // Where results are subnormal, the order of the factors of a step shows.
    reference::VibrationStream stream;
    for (int block = 0; block < 3; ++block) {
        Samples raw = Noise{}.next(40);
        for (double& sample : raw)
            sample *= 1e-307;
        const Params params = block == 0 ? with(kFirst, {{1, 700.0}}) : kNext;
        expectSameBits(process(params, raw), stream.next(params, raw));
    }
}

TEST(Vibration, GivesTheBitsOfTheDefinitionForBlocksOfChangingLength)
{
    reference::VibrationStream stream;
    Noise noise;
    const Params first{1.0, 5000.0, 100.0, 0.0, 0.0, 0.0, 2.0, -2.0, 1e-2, -1e-2};
    for (int block = 0; block < 12; ++block) {
        const Samples raw = noise.next(100 + block * 37 % 90);
        const Params& params = block == 0 || block == 7 ? first : kNext;
        const Vibration out = process(params, raw);
        EXPECT_FALSE(std::isnan(out.displacement[0])) << block;
        expectSameBits(out, stream.next(params, raw));
    }
}

// A sine of 10 g: the first block, and three continuations.
constexpr double kPeak = 10.0 * 9.78;
constexpr double kRate = 5000.0;
constexpr int kBlock = 5000;

template <class Check>
void forBlocksOfASine(double hertz, double start, Check check)
{
    setRate(kRate);
    for (int block = 0; block < 4; ++block) {
        const Params params = block == 0 ? with(kFirst, {{1, kRate}, {2, 100.0}}) : kNext;
        const Vibration out = process(params, cosine(hertz / kRate, start + block * kBlock, kBlock));
        check(block, waveOf(out.velocity, hertz / kRate), waveOf(out.displacement, hertz / kRate));
    }
}

TEST(Vibration, GivesVelocityAndDisplacementOfASine)
{
    const double omega = 2.0 * std::numbers::pi * 100.0;
    forBlocksOfASine(100.0, 0.0, [&](int, Wave velocity, Wave displacement) {
        EXPECT_NEAR(velocity.amplitude, kPeak / omega * 1000.0, 0.002 * velocity.amplitude);
        EXPECT_NEAR(displacement.amplitude, kPeak / omega / omega * 1000.0, 0.006 * displacement.amplitude);
    });
}

TEST(Vibration, IsAsAccurateAsDocumented)
{
    for (const double hertz : {10.0, 50.0, 250.0, 625.0})
        for (const double start : {0.0, 0.125, 0.25, 0.375, 0.5}) {
            const double omega = 2.0 * std::numbers::pi * hertz;
            const double rule = trapezoidalGain(hertz / kRate);
            const auto check = [&](int block, Wave velocity, Wave displacement) {
                SCOPED_TRACE(testing::Message() << hertz << " Hz from period " << start << ", block " << block);
                const int order = block == 0 ? 2 : 5;
                expectGain(velocity.amplitude / (kPeak / omega * 1000.0), rule, order, hertz);
                expectGain(displacement.amplitude / (kPeak / omega / omega * 1000.0), rule * rule, 15, hertz);
                expectPhase(velocity.phase, start - 0.25, order, hertz);
                // One sample ahead in the first block.
                expectPhase(displacement.phase, start - 0.5 + (block == 0 ? hertz / kRate : 0.0), 15, hertz);
            };
            forBlocksOfASine(hertz, start * kRate / hertz, check);
        }
}

} // namespace
} // namespace quordsp
