// The reentrant routines give the same bits when eight threads run them at once, each on its own data, as alone.
#include <filesystem>
#include <fstream>
#include <functional>
#include <iterator>
#include <string>
#include <thread>

#include <gtest/gtest.h>

#include "QuorDSP_DAQ.h"
#include "support/folders.h"
#include "support/integer_signal.h"
#include "support/starting_line.h"

namespace quordsp {
namespace {

constexpr int kThreads = 8;
constexpr int kCount = 1000;

// The bytes of what a routine gives for the data of one thread.
using Results = std::string;
using Routine = std::function<Results(std::uint32_t thread)>;

template <class... Arrays>
Results bytesOf(const Arrays&... arrays)
{
    Results bytes;
    (bytes.append(reinterpret_cast<const char*>(arrays.data()), arrays.size() * sizeof arrays[0]), ...);
    return bytes;
}

void expectTheSameFromThreads(const Routine& routine, int repetitions)
{
    std::vector<Results> alone;
    for (std::uint32_t thread = 0; thread < kThreads; ++thread)
        alone.push_back(routine(thread));
    EXPECT_NE(alone[0], alone[1]);
    std::vector<int> agreements(kThreads);
    support::StartingLine start{kThreads};
    {
        std::vector<std::jthread> threads;
        for (std::uint32_t thread = 0; thread < kThreads; ++thread)
            threads.emplace_back([&, thread] {
                start.arriveAndWait();
                for (int i = 0; i < repetitions; ++i)
                    agreements[thread] += routine(thread) == alone[thread];
            });
    }
    EXPECT_EQ(agreements, std::vector<int>(kThreads, repetitions));
}

TEST(Threads, GetTheSameFromLinearRegression)
{
    expectTheSameFromThreads(
        [](std::uint32_t thread) {
            auto data = noise(kCount, thread);
            linear_regression(data.data(), kCount);
            return bytesOf(data);
        },
        200);
}

TEST(Threads, GetTheSameFromDetrend)
{
    expectTheSameFromThreads(
        [](std::uint32_t thread) {
            auto data = noise(kCount, thread);
            double breakpoints[] = {300, 600.0 + thread};
            QuorDSP_detrend(data.data(), kCount, static_cast<int>(1 + thread % 5), breakpoints, 2);
            return bytesOf(data);
        },
        20);
}

TEST(Threads, GetTheSameFromGetSNR)
{
    expectTheSameFromThreads(
        [](std::uint32_t thread) {
            const auto signal = noise(kCount, thread), noisePowers = noise(kCount, thread + 100);
            std::vector<double> snr(kCount);
            QuorDSP_getSNR(signal.data(), kCount, noisePowers.data(), snr.data());
            return bytesOf(snr);
        },
        200);
}

TEST(Threads, GetTheSameFromThermocouple)
{
    expectTheSameFromThreads(
        [](std::uint32_t thread) {
            auto emf = scaled(noise(kCount, thread), 5.0);
            std::vector<double> temperature(kCount);
            QuorDSP_Thermocouple(emf.data(), kCount, static_cast<int>(thread % 4), static_cast<int>(thread), 25.0,
                                 temperature.data());
            return bytesOf(temperature);
        },
        200);
}

TEST(Threads, GetTheSameFromEuler)
{
    expectTheSameFromThreads(
        [](std::uint32_t thread) {
            auto raw = noise(kCount, thread);
            std::vector<double> acceleration(kCount), velocity(kCount), displacement(kCount);
            QuorDSP_Vibration_Acceleration_Euler(raw.data(), kCount, 1000.0, 0.1, thread, 0, 0, 1e8, -1e8, 1e8, -1e8,
                                                 acceleration.data(), velocity.data(), displacement.data(), nullptr, 0);
            return bytesOf(acceleration, velocity, displacement);
        },
        10);
}

// Each thread writes a file of its own and reads it back.
class ThreadsWithFiles : public testing::Test {
protected:
    template <class Write>
    void expectTheSameFiles(Write write)
    {
        const std::filesystem::path folder = support::ownFolder();
        expectTheSameFromThreads(
            [&](std::uint32_t thread) {
                const std::string path = (folder / std::to_string(thread)).string();
                write(thread, path.c_str(), noise<float>(kCount, thread));
                std::ifstream file{path, std::ios::binary};
                return Results{std::istreambuf_iterator<char>{file}, {}};
            },
            20);
    }
};

TEST_F(ThreadsWithFiles, GetTheSameFromWriteWAV)
{
    expectTheSameFiles([](std::uint32_t thread, const char* path, const std::vector<float>& samples) {
        QuorDSP_WriteWAV(path, samples.data(), kCount, 8000 + thread);
    });
}

TEST_F(ThreadsWithFiles, GetTheSameFromWriteWAVFile)
{
    expectTheSameFiles([](std::uint32_t thread, const char* path, const std::vector<float>& samples) {
        const int bits = 8 * (1 + static_cast<int>(thread % 4));
        QuorDSP_WriteWAVFile(path, samples.data(), kCount, 8000, bits, 1 + static_cast<int>(thread % 3));
    });
}

} // namespace
} // namespace quordsp
