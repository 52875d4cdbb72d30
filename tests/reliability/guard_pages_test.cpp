// Every routine with each of its arrays at an unreadable page, behind its last element and before its first: a routine
// that touches one element more crashes. What is documented as only read lies in read-only memory.
#include <array>
#include <cstring>
#include <limits>
#include <string>

#include <gtest/gtest.h>

#include "QuorDSP_DAQ.h"
#include "support/folders.h"
#include "support/guarded_buffer.h"
#include "support/integer_signal.h"

namespace quordsp {
namespace {

using support::Edge;
using support::GuardedBuffer;

constexpr std::size_t kLargest = 257;
constexpr double kUntouched = 12345.678; // no routine's result here

template <class Call>
void atEverySize(Call call)
{
    for (const Edge edge : support::kEdges)
        for (std::size_t n = 0; n <= kLargest; ++n)
            call(n, edge);
}

// Breakpoints of which a few lie within a block; the rest is ignored.
std::vector<double> breakpoints()
{
    std::vector<double> places(kLargest, std::numeric_limits<double>::quiet_NaN());
    places[0] = 20;
    places[100] = 120;
    places[256] = 200.5;
    return places;
}

testing::AssertionResult isWritten(std::span<const double> samples)
{
    for (std::size_t i = 0; i < samples.size(); ++i)
        if (samples[i] == kUntouched)
            return testing::AssertionFailure() << "element " << i << " of " << samples.size() << " is untouched";
    return testing::AssertionSuccess();
}

class GuardPages : public testing::Test {
protected:
    std::vector<double> signal_ = noise(kLargest);
    GuardedBuffer<double> in_{kLargest};
    GuardedBuffer<double> second_{kLargest};
    GuardedBuffer<double> acceleration_{kLargest};
    GuardedBuffer<double> velocity_{kLargest};
    GuardedBuffer<double> displacement_{kLargest};
};

TEST(GuardedBuffer, CrashesOnATouchBeyondEitherEndAndOnAWriteToAnInput)
{
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    GuardedBuffer<char> buffer{100};
    const std::string text(100, 'a');
    const volatile char* atEnd = buffer.output(100, Edge::End, 'b').data();
    EXPECT_DEATH(static_cast<void>(atEnd[100]), "");
    const volatile char* atStart = buffer.output(100, Edge::Start, 'b').data();
    EXPECT_DEATH(static_cast<void>(atStart[-1]), "");
    volatile char* readOnly = buffer.input(text, 100, Edge::Start).data();
    EXPECT_EQ(readOnly[99], 'a');
    EXPECT_DEATH(readOnly[0] = 'a', "");
}

TEST_F(GuardPages, OfLinearRegression)
{
    atEverySize([&](std::size_t n, Edge edge) {
        const auto data = in_.output(n, edge, kUntouched);
        std::ranges::copy(std::span{signal_}.first(n), data.begin());
        linear_regression(data.data(), static_cast<int>(n));
        if (n > 2)
            EXPECT_NE(data[n - 1], signal_[n - 1]);
    });
}

TEST_F(GuardPages, OfTheSignalOfDetrend)
{
    const std::vector<double> places = breakpoints();
    for (const int order : {0, 1, 3, 15})
        for (const std::size_t bends : {0u, 1u})
            atEverySize([&](std::size_t n, Edge edge) {
                const auto data = in_.output(n, edge, kUntouched);
                std::ranges::copy(std::span{signal_}.first(n), data.begin());
                EXPECT_EQ(QuorDSP_detrend(data.data(), static_cast<int>(n), order,
                                          second_.input(places, bends, edge).data(), static_cast<int>(bends)),
                          0);
                if (n > 40 && order < 15) // no fit that rounding may turn into anything
                    EXPECT_NE(data[n - 1], signal_[n - 1]) << n << " samples, order " << order;
            });
}

TEST_F(GuardPages, OfTheBreakpointsOfDetrend)
{
    const std::vector<double> places = breakpoints();
    for (const int order : {0, 2})
        atEverySize([&](std::size_t n, Edge edge) {
            const auto data = in_.output(kLargest, edge, kUntouched);
            const auto bends = second_.input(places, n, edge);
            EXPECT_EQ(
                QuorDSP_detrend(data.data(), static_cast<int>(kLargest), order, bends.data(), static_cast<int>(n)), 0);
            EXPECT_TRUE(isWritten(data)) << "order " << order;
        });
}

TEST_F(GuardPages, OfGetSNR)
{
    const std::vector<double> noisePowers = scaled(signal_, -0.5);
    atEverySize([&](std::size_t n, Edge edge) {
        const auto snr = velocity_.output(n, edge, kUntouched);
        EXPECT_EQ(QuorDSP_getSNR(in_.input(signal_, n, edge).data(), static_cast<int>(n),
                                 second_.input(noisePowers, n, edge).data(), snr.data()),
                  0);
        EXPECT_TRUE(isWritten(snr));
    });
}

TEST_F(GuardPages, OfTheStatefulVibrationExports)
{
    for (const auto routine : {QuorDSP_Vibration_Acceleration, QuorDSP_Acceleration})
        for (const double mode : {1.0, 0.0})
            atEverySize([&](std::size_t n, Edge edge) {
                const std::vector<double> params{mode, 1000, 100, 0.5, 0, 0, 1e8, -1e8, 1e8, -1e8};
                const auto acceleration = acceleration_.output(n, edge, kUntouched);
                const auto velocity = velocity_.output(n, edge, kUntouched);
                const auto displacement = displacement_.output(n, edge, kUntouched);
                EXPECT_EQ(routine(second_.input(params, 10, edge).data(), in_.input(signal_, n, edge).data(),
                                  acceleration.data(), velocity.data(), displacement.data(), static_cast<int>(n)),
                          n < 1 ? QUORDSP_BAD_ARGUMENT : QUORDSP_SUCCESS);
                for (const auto output : {acceleration, velocity, displacement})
                    EXPECT_TRUE(isWritten(output));
            });
}

TEST_F(GuardPages, OfEuler)
{
    const std::vector<double> places = breakpoints();
    const auto run = [&](std::size_t n, std::size_t bends, Edge edge) {
        const auto acceleration = acceleration_.output(n, edge, kUntouched);
        const auto velocity = velocity_.output(n, edge, kUntouched);
        const auto displacement = displacement_.output(n, edge, kUntouched);
        EXPECT_EQ(QuorDSP_Vibration_Acceleration_Euler(
                      in_.input(signal_, n, edge).data(), static_cast<int>(n), 1000, 0.1, 0.5, 0, 0, 1e8, -1e8, 1e8,
                      -1e8, acceleration.data(), velocity.data(), displacement.data(),
                      second_.input(places, bends, edge).data(), static_cast<int>(bends)),
                  0);
        for (const auto output : {acceleration, velocity, displacement})
            EXPECT_TRUE(isWritten(output));
    };
    atEverySize([&](std::size_t n, Edge edge) { run(n, 1, edge); });
    atEverySize([&](std::size_t bends, Edge edge) { run(50, bends, edge); });
}

TEST_F(GuardPages, OfThermocouple)
{
    const std::vector<double> millivolts = scaled(signal_, 5.0);
    for (int type = 0; type < 8; ++type)
        for (const int unit : {0, 3})
            atEverySize([&](std::size_t n, Edge edge) {
                const auto temperature = velocity_.output(n, edge, kUntouched);
                EXPECT_EQ(QuorDSP_Thermocouple(in_.input(millivolts, n, edge).data(), static_cast<int>(n), unit, type,
                                               25.0, temperature.data()),
                          0);
                EXPECT_TRUE(isWritten(temperature)) << "type " << type;
            });
}

class FileGuardPages : public testing::Test {
protected:
    const std::vector<float> signal_ = noise<float>(kLargest);
    const std::string path_ = (support::ownFolder() / "samples.wav").string();
    GuardedBuffer<float> samples_{kLargest};
    GuardedBuffer<char> name_{path_.size() + 1};

    const char* name(Edge edge)
    {
        return name_.input({path_.c_str(), path_.size() + 1}, path_.size() + 1, edge).data();
    }
    const float* samples(std::size_t n, Edge edge) { return samples_.input(signal_, n, edge).data(); }
};

TEST_F(FileGuardPages, OfWriteWAV)
{
    atEverySize([&](std::size_t n, Edge edge) {
        EXPECT_EQ(QuorDSP_WriteWAV(name(edge), samples(n, edge), static_cast<int>(n), 8000), 0);
        EXPECT_EQ(std::filesystem::file_size(path_), 56 + 4 * n);
    });
}

TEST_F(FileGuardPages, OfWriteWAVFile)
{
    for (const int bits : {8, 16, 24, 32})
        atEverySize([&](std::size_t n, Edge edge) {
            const int channels = 1 + static_cast<int>(n % 3);
            EXPECT_EQ(QuorDSP_WriteWAVFile(name(edge), samples(n, edge), static_cast<int>(n), 8000, bits, channels), 0);
            EXPECT_EQ(std::filesystem::file_size(path_), 44 + n * static_cast<std::size_t>(channels * bits / 8));
        });
}

} // namespace
} // namespace quordsp
