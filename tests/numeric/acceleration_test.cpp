// The stream of blocks that the backend integrates: with the default backend, with one that records its calls, and with
// none. Every test has the process, and so the stream, for itself.
#include <array>
#include <limits>

#include <gmock/gmock.h>

#include "fakes/argument_text.h"
#include "fakes/stage.h"
#include "numeric/signals.h"
#include "reference/acceleration.h"
#include "support/folders.h"
#include "support/library.h"

namespace {

using namespace signals;
using ::testing::DoubleNear;
using ::testing::Each;
using ::testing::ElementsAre;
using ::testing::IsNan;
using ::testing::Pointwise;
using Params = std::array<double, 10>;
using Result = quordsp::reference::AccelerationStream::Result;

// Volts are m/s^2 at a sensitivity of 9780 mV/g. What is ignored is NaN.
constexpr Params settings(double rate, double sensitivity = 9780.0, double offset = 0.0)
{
    return {kNan, rate, sensitivity, offset, kNan, kNan, kNan, kNan, kNan, kNan};
}

// The arrays of a call, as the caller left them before it.
Result arrays(std::size_t count)
{
    return {Samples(count, 0.0), Samples(count, 0.0), Samples(count, 0.0)};
}

AnalysisLibErrType process(Params params, Samples raw, Result& out)
{
    return EXPORT(QuorDSP_Acceleration)(params.data(), raw.data(), out.acceleration.data(), out.velocity.data(),
                                        out.displacement.data(), static_cast<int>(raw.size()));
}

Result processed(const Params& params, const Samples& raw, Result out)
{
    EXPECT_EQ(process(params, raw, out), 0);
    return out;
}

Result processed(const Params& params, const Samples& raw)
{
    return processed(params, raw, arrays(raw.size()));
}

// The library then finds the one that is loaded, by its bare name.
support::Module loadBackend(const std::filesystem::path& file)
{
    const auto backend = support::Module::load(file);
    EXPECT_TRUE(backend) << file;
    fakes::takeNotes();
    return backend;
}

support::Module loadDefaultBackend()
{
    return loadBackend(QUORDSP_DEFAULT_BACKEND);
}

void loadFakeBackend()
{
    loadBackend(support::fake(std::filesystem::path{"backend"} / support::kBackendFile));
}

// Millimetres against metres.
auto isMetres(Samples expected, double tolerance = 1e-9)
{
    for (double& value : expected)
        value *= 1000.0;
    return Pointwise(DoubleNear(tolerance), expected);
}

std::string integration(const Samples& in, double dt, double initial, double final, const Samples& out)
{
    using fakes::argumentText;
    return "AALFunc95 " + argumentText(in.data()) + ' ' + argumentText(std::int64_t(in.size())) + ' ' +
           argumentText(dt) + ' ' + argumentText(initial) + ' ' + argumentText(final) + ' ' + argumentText(out.data());
}

// A fake integration: writes these samples.
void whenIntegrating(std::vector<Samples> results)
{
    fakes::stage().onCall = [results = std::move(results),
                             call = std::size_t{0}](std::string_view, const fakes::Arguments& arguments) mutable {
        std::ranges::copy(results[call++ % results.size()], arguments.at<double*>(5));
    };
}

TEST(Acceleration, ScalesVoltsToMetresPerSecondSquared)
{
    // 100 mV/g and half a g of offset: 0.1 V are 1.5 g of 9.78 m/s^2.
    EXPECT_THAT(processed(settings(1.0, 100.0, 0.5), {0.1, -0.1, 0.0, 5.0}).acceleration,
                Pointwise(DoubleNear(1e-12), {14.67, -4.89, 4.89, 493.89}));
}

TEST(Acceleration, HandsTheBackendBothRecordsWithTheRateOfTheCallBefore)
{
    loadFakeBackend();
    Result out = arrays(7);
    whenIntegrating({{1.0, 0.0, 0.0, 0.0, 0.0, 0.0, 8.0}});
    const Samples first{1.0, 2.0, 3.0, 4.0, 5.0, 6.0, 7.0};
    EXPECT_EQ(process(settings(1000.0), first, out), 0);
    const double dt = 1.0 / 51200.0;
    EXPECT_THAT(fakes::takeNotes(),
                ElementsAre(integration(out.acceleration, dt, 0.0, out.acceleration[6], out.velocity),
                            integration(out.velocity, dt, 0.0, 8.0, out.displacement)));

    // The conditions of the next block are the last values of this one, in m/s^2 and m/s: of 1, 0 ... 0, 8 without its
    // polynomial of degree 5, 9/924 is left at the end.
    const double lastAcceleration = out.acceleration[6];
    double initial = 0.0;
    fakes::stage().onCall = [&, call = 0](std::string_view, const fakes::Arguments& arguments) mutable {
        if (call++ == 1)
            initial = arguments.at<double>(3);
    };
    EXPECT_EQ(process(settings(50.0), {0.0, 0.0, 0.0, 0.0, 0.0, 0.0, -2.0}, out), 0);
    const auto notes = fakes::takeNotes();
    ASSERT_EQ(notes.size(), 2u);
    EXPECT_EQ(notes[0],
              integration(out.acceleration, 1.0 / 1000.0, lastAcceleration, out.acceleration[6], out.velocity));
    EXPECT_NEAR(initial, 9.0 / 924.0, 1e-12);
}

TEST(Acceleration, RemovesAPolynomialOfDegreeFiveFromTheVelocity)
{
    loadFakeBackend();
    const Samples seven{0.0, 1.0, 0.0, 0.0, 3.0, 0.0, 0.0};
    whenIntegrating({seven});
    // By hand: (-6 + 3 * 15)/924 of 1, -6, 15, -20, 15, -6, 1 is left.
    EXPECT_THAT(processed(settings(1.0), Samples(7, 0.0)).velocity,
                isMetres({39.0 / 924, -234.0 / 924, 585.0 / 924, -780.0 / 924, 585.0 / 924, -234.0 / 924, 39.0 / 924}));
}

TEST(Acceleration, RemovesAPolynomialOfDegreeNineFromTheDisplacement)
{
    loadFakeBackend();
    const Samples eleven{0.0, 1.0, 0.0, 0.0, 3.0, 0.0, 0.0, -7.0, 0.0, 0.0, 2.0};
    whenIntegrating({Samples(11, 0.0), eleven});
    EXPECT_THAT(processed(settings(1.0), Samples(11, 0.0)).displacement, isMetres(withoutPolynomial(eleven), 1e-5));
}

TEST(Acceleration, IgnoresTheStatusOfTheBackend)
{
    loadFakeBackend();
    const Samples seven{0.0, 1.0, 0.0, 0.0, 3.0, 0.0, 0.0};
    whenIntegrating({seven});
    fakes::stage().status = -20008;
    EXPECT_THAT(processed(settings(1.0), Samples(7, 0.0)).velocity, isMetres(withoutPolynomial(seven)));
}

TEST(Acceleration, ProcessesWhatTheCallerLeftWithoutABackend)
{
    const Samples eleven{0.0, 1.0, 0.0, 0.0, 3.0, 0.0, 0.0, -7.0, 0.0, 0.0, 2.0};
    const Result out = processed(settings(1.0), Samples(11, 0.0), {Samples(11), Samples(11, 0.0), eleven});
    EXPECT_THAT(out.velocity, Each(0.0));
    EXPECT_THAT(out.displacement, isMetres(withoutPolynomial(eleven), 1e-5));
    EXPECT_THAT(processed(settings(1.0), {2.0}).acceleration, ElementsAre(2.0));
}

TEST(Acceleration, AddsTheLastValuesOfTheBlockBefore)
{
    // What is added is a constant, which vanishes with the trend: only NaN shows it. There is no backend.
    const auto leave = [](const Samples& velocity, const Samples& displacement) {
        return processed(settings(1.0), Samples(20, 0.0), {Samples(20), velocity, displacement});
    };
    const Samples zero(20, 0.0);
    const Samples nan(20, kNan);
    leave(nan, zero);
    const Result afterVelocity = leave(zero, zero);
    EXPECT_THAT(afterVelocity.velocity, Each(IsNan()));
    EXPECT_THAT(afterVelocity.displacement, Each(0.0));
    leave(zero, nan);
    EXPECT_THAT(leave(zero, zero).displacement, Each(IsNan()));
}

// The default backend's integration and the library's own trends, step by step.
quordsp::reference::AccelerationStream referenceStream(const support::Module& backend)
{
    const auto integrate =
        backend.function<int(const double*, std::int64_t, double, double, double, double*)>("AALFunc95");
    return {[=](const Samples& in, double dt, double initial, double final, Samples& out) {
                integrate(in.data(), static_cast<std::int64_t>(in.size()), dt, initial, final, out.data());
            },
            [](Samples& data, int order) {
                double breakpoint = 0.0;
                EXPORT(QuorDSP_detrend)(data.data(), static_cast<int>(data.size()), order, &breakpoint, 1);
            }};
}

void expectSameBits(const Result& a, const Result& b)
{
    EXPECT_EQ(bits(a.acceleration), bits(b.acceleration));
    EXPECT_EQ(bits(a.velocity), bits(b.velocity));
    EXPECT_EQ(bits(a.displacement), bits(b.displacement));
}

TEST(Acceleration, GivesTheBitsOfTheDefinition)
{
    auto stream = referenceStream(loadDefaultBackend());
    Noise noise;
    std::vector<int> counts(33);
    std::iota(counts.rbegin(), counts.rend(), 1);
    counts.insert(counts.begin(), 1000);
    for (const int count : counts)
        for (const Params& params :
             {settings(1000.0, 100.0, 0.25), settings(5.0, 17.53), settings(25600.0, -3.0, 1.0)}) {
            SCOPED_TRACE(testing::Message() << count << " samples, rate " << params[1]);
            const Samples raw = noise.next(count);
            const Result before{Samples(raw.size()), noise.next(count), noise.next(count)};
            expectSameBits(processed(params, raw, before),
                           stream.next(params, raw, before.velocity, before.displacement));
        }
}

// Of an impulse, by the default backend; at first the rate is 51200 Hz.
TEST(Acceleration, IntegratesByTheDocumentedRule)
{
    loadDefaultBackend();
    const Samples seven{0.0, 0.0, 0.0, 1.0, 0.0, 0.0, 0.0};
    Samples velocity{0.0, 0.0, 1.0, 5.0, 6.0, 6.0, 6.0}; // sums of 1, 4, 1
    for (double& value : velocity)
        value /= 6.0 * 51200.0;
    EXPECT_THAT(processed(settings(51200.0), seven).velocity, isMetres(withoutPolynomial(velocity), 1e-15));
}

TEST(Acceleration, IntegratesTwiceByTheDocumentedRule)
{
    loadDefaultBackend();
    const Samples eleven{0.0, 0.0, 0.0, 0.0, 0.0, 9.0, 0.0, 0.0, 0.0, 0.0, 0.0};
    Samples velocity, displacement;
    double area = 0.0;
    for (const double weight : {0.0, 0.0, 0.0, 0.0, 1.0, 4.0, 1.0, 0.0, 0.0, 0.0, 0.0})
        velocity.push_back(area += 9.0 * weight / 6.0 / 51200.0);
    area = 0.0;
    for (std::size_t i = 0; i < 11; ++i) {
        area += (i > 0 ? velocity[i - 1] : 0.0) + 4.0 * velocity[i] + velocity[std::min<std::size_t>(i + 1, 10)];
        displacement.push_back(area / 6.0 / 51200.0);
    }
    EXPECT_THAT(processed(settings(51200.0), eleven).displacement, isMetres(withoutPolynomial(displacement), 1e-15));
}

TEST(Acceleration, GoesOnFromBlockToBlock)
{
    auto stream = referenceStream(loadDefaultBackend());
    Noise noise;
    for (int block = 0; block < 8; ++block) {
        const Samples raw = noise.next(64 + 10 * block);
        const Params params = settings(block < 4 ? 2000.0 : 500.0, 100.0, 0.5);
        const Result out = processed(params, raw);
        EXPECT_FALSE(std::isnan(out.displacement[0])) << block;
        expectSameBits(out, stream.next(params, raw, Samples(raw.size()), Samples(raw.size())));
    }
}

TEST(Acceleration, RefusesNullArraysCountsBelowOneAndRatesNotAboveZero)
{
    const auto backend = loadDefaultBackend();
    auto stream = referenceStream(backend);
    const Samples raw = Noise{}.next(20);
    expectSameBits(processed(settings(10.0), raw), stream.next(settings(10.0), raw, Samples(20), Samples(20)));

    Params params = settings(3.0, 5.0, 7.0);
    double in[2] = {1.0, 2.0};
    double out[3][2] = {{4.0, 4.0}, {4.0, 4.0}, {4.0, 4.0}};
    const auto call = EXPORT(QuorDSP_Acceleration);
    for (const int count : {0, -1, std::numeric_limits<int>::min()})
        EXPECT_EQ(call(params.data(), in, out[0], out[1], out[2], count), 20032);
    for (int missing = 0; missing < 5; ++missing) {
        double* pointers[] = {params.data(), in, out[0], out[1], out[2]};
        pointers[missing] = nullptr;
        EXPECT_EQ(call(pointers[0], pointers[1], pointers[2], pointers[3], pointers[4], 2), 20032);
    }
    for (const double rate : {0.0, -0.0, -1.0, -kInfinity, kNan}) {
        params[1] = rate;
        EXPECT_EQ(call(params.data(), in, out[0], out[1], out[2], 2), 20032) << rate;
    }
    for (const auto& array : out)
        EXPECT_THAT(array, Each(4.0));

    expectSameBits(processed(settings(10.0), raw), stream.next(settings(10.0), raw, Samples(20), Samples(20)));
}

TEST(Acceleration, LeavesTheInputsAlone)
{
    loadDefaultBackend();
    const Params given{9.0, 1.0, 2.0, 3.0, 4.0, 5.0, 6.0, 7.0, 8.0, 9.0};
    Params params = given;
    const Samples raw = Noise{}.next(20);
    Samples in = raw;
    Result out = arrays(20);
    EXPORT(QuorDSP_Acceleration)
    (params.data(), in.data(), out.acceleration.data(), out.velocity.data(), out.displacement.data(), 20);
    EXPECT_EQ(params, given);
    EXPECT_EQ(in, raw);
}

TEST(Acceleration, IsAsAccurateAsDocumented)
{
    loadDefaultBackend();
    constexpr double kPeak = 10.0 * 9.78;
    constexpr double kRate = 5000.0;
    constexpr int kBlock = 5000;
    processed(settings(kRate), {0.0});
    for (const double hertz : {10.0, 50.0, 250.0, 625.0})
        for (const double start : {0.0, 0.125, 0.25, 0.375, 0.5}) {
            SCOPED_TRACE(testing::Message() << hertz << " Hz from period " << start);
            const double frequency = hertz / kRate;
            const double omega = 2.0 * std::numbers::pi * hertz;
            const double rule = simpsonGain(frequency);
            for (int block = 0; block < 3; ++block) {
                const Samples raw = cosine(frequency, start / frequency + block * kBlock, kBlock);
                const Result out = processed(settings(kRate, 100.0), raw);
                const Wave velocity = waveOf(out.velocity, frequency);
                const Wave displacement = waveOf(out.displacement, frequency);
                expectGain(velocity.amplitude / (kPeak / omega * 1000.0), rule, 5, hertz);
                expectGain(displacement.amplitude / (kPeak / omega / omega * 1000.0), rule * rule, 9, hertz);
                // A quarter of a period behind, but for half a sample, and twice so.
                expectPhase(velocity.phase, start - 0.25 + 0.5 * frequency, 5, hertz);
                expectPhase(displacement.phase, start - 0.5 + frequency, 9, hertz);
            }
        }
}

} // namespace
