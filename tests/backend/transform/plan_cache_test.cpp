// What transforms remember of earlier ones must not show: neither in several threads at once, nor when there are more
// sizes than are remembered.
#include "backend/transform/signals.h"
#include "support/starting_line.h"

#include <gtest/gtest.h>

#include <atomic>
#include <cstring>
#include <thread>

namespace quordsp::backend {
namespace {

// What entries of every kind of plan give for a size, end to end.
Array resultsOf(std::size_t n)
{
    Signal z = complexNoise(n), x = complexNoise(n);
    EXPECT_EQ(fft(z), Status::Success);
    EXPECT_EQ(realFft(x), Status::Success);
    // As many columns as one plan transforms side by side.
    const Complexes matrix = interleaved(complexNoise(8 * n));
    Complexes spectrum(8 * n);
    EXPECT_EQ(AALFunc267(matrix.data(), static_cast<std::int64_t>(n), 8, 0, 0, 0, spectrum.data()), Status::Success);
    const Signal y = separated(spectrum);
    Array all;
    for (const Signal& part : {z, x, y})
        for (const Array& values : {part.re, part.im})
            all.insert(all.end(), values.begin(), values.end());
    return all;
}

TEST(PlanCache, GivesTheSameBitsWhenASizeComesBack)
{
    std::vector<Array> first;
    for (std::size_t n = 1; n <= 300; ++n)
        first.push_back(resultsOf(n));
    for (std::size_t n = 1; n <= 300; ++n)
        EXPECT_EQ(resultsOf(n), first[n - 1]) << n;
}

TEST(PlanCache, GivesTheSameBitsAfterManyLargeSizes)
{
    const Array before = resultsOf(20000);
    for (std::size_t n = 20000; n < 20016; ++n) // a megabyte each, and more
        resultsOf(n);
    EXPECT_EQ(resultsOf(20000), before);
}

// Few sizes: threads meet in their plans. Many: they take each other's slots all the time.
TEST(PlanCache, ServesThreadsThatUseTheSameAndOtherSizes)
{
    constexpr std::size_t kCount = 200;
    std::vector<Array> expected(kCount);
    for (std::size_t n = 1; n < kCount; ++n)
        expected[n] = resultsOf(n);
    std::atomic<int> wrong{0};
    {
        std::vector<std::jthread> threads;
        for (std::size_t id = 0; id < 4; ++id)
            threads.emplace_back([&, id] {
                for (std::size_t i = 0; i < 300; ++i) {
                    const std::size_t n = i % 3 == 0 ? 96 : 1 + (i * (2 * id + 7)) % (kCount - 1);
                    wrong += resultsOf(n) == expected[n] ? 0 : 1;
                }
            });
    }
    EXPECT_EQ(wrong, 0);
}

bool sameBits(const Array& a, const Array& b)
{
    return a.size() == b.size() && std::memcmp(a.data(), b.data(), a.size() * sizeof(double)) == 0;
}

// Each plan takes 5 MB; those of all sizes are more than is kept, so that one thread's plan throws out another's.
TEST(PlanCache, ServesThreadsThatEvictEachOthersPlans)
{
    constexpr std::size_t kLargeSizes[] = {229376, 240000, 245760, 250000, 262144};
    constexpr std::size_t kCount = std::size(kLargeSizes), kThreads = 4;
    std::vector<Signal> signals, expected;
    for (const std::size_t n : kLargeSizes) {
        signals.push_back({noise(n, 1), Array(n)});
        expected.push_back(signals.back());
        ASSERT_EQ(realFft(expected.back()), Status::Success);
    }
    std::atomic<int> wrong{0};
    support::StartingLine start(kThreads);
    {
        std::vector<std::jthread> threads;
        for (std::size_t id = 0; id < kThreads; ++id)
            threads.emplace_back([&, id] {
                start.arriveAndWait();
                for (std::size_t i = 0; i < 2 * kCount; ++i) {
                    const std::size_t which = (i * (id + 1) + id) % kCount;
                    Signal spectrum = signals[which];
                    wrong += realFft(spectrum) == Status::Success ? 0 : 1;
                    wrong += sameBits(spectrum.re, expected[which].re) ? 0 : 1;
                    wrong += sameBits(spectrum.im, expected[which].im) ? 0 : 1;
                }
            });
    }
    EXPECT_EQ(wrong, 0);
}

TEST(FftTable, ServesThreadsAtOnce)
{
    constexpr std::size_t kSize = 240;
    FftTable* const table = AALFunc260(kSize);
    ASSERT_TRUE(table);
    const Complexes x = interleaved(complexNoise(kSize));
    Complexes expected(kSize);
    ASSERT_EQ(AALFunc263(x.data(), kSize, 0, nullptr, 0, expected.data()), Status::Success);
    std::atomic<int> wrong{0};
    {
        std::vector<std::jthread> threads;
        for (int id = 0; id < 4; ++id)
            threads.emplace_back([&] {
                Complexes y(kSize);
                for (int i = 0; i < 300; ++i) {
                    wrong += AALFunc263(x.data(), kSize, 0, table, 0, y.data()) == Status::Success ? 0 : 1;
                    wrong += y == expected ? 0 : 1;
                }
            });
    }
    EXPECT_EQ(wrong, 0);
    AALFunc261(table);
}

} // namespace
} // namespace quordsp::backend
