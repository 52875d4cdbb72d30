// How exact transforms are: a faster look than that of accuracy_table.cpp, which makes the table of docs/accuracy.md.
#include "backend/transform/accuracy.h"

#include <cstdio>

namespace quordsp::backend {
namespace {

constexpr std::size_t kBins = 12;

double roundTripError(std::size_t n)
{
    const Signal signal = complexNoise(n);
    Signal back = signal;
    EXPECT_EQ(fft(back), Status::Success);
    EXPECT_EQ(inverseFft(back), Status::Success);
    return inUnits(distance(back, signal), n);
}

// Sanitizers make this slow, and find nothing in the sizes between.
#if __has_feature(address_sanitizer) || __has_feature(thread_sanitizer)
constexpr std::size_t kStep = 37;
#else
constexpr std::size_t kStep = 1;
#endif

TEST(TransformAccuracy, OfSmallSizesIsWithinTheBound)
{
    Errors worst[2] = {};
    for (std::size_t n = 1; n <= 4096; n += n < 1024 ? kStep : 4 * kStep + 1) {
        const auto [complex, real] = errorsOf(n, kBins);
        EXPECT_LE(std::max(complex, real), boundFor(n)) << n;
        Errors& sofar = worst[isSmooth(n)];
        sofar = {std::max(sofar.complex, complex), std::max(sofar.real, real)};
    }
    for (const int smooth : {1, 0})
        std::printf("largest errors in eps sqrt(log2 n) of %s: complex %.2f, real %.2f\n",
                    smooth ? "factors 2, 3, 5, 7" : "other factors", worst[smooth].complex, worst[smooth].real);
}

TEST(TransformAccuracy, OfLargerSizesIsWithinTheBound)
{
    for (const std::size_t n : {15625u, 16384u, 16807u, 19683u, 65536u, 100003u, 262144u}) {
        const auto [complex, real] = errorsOf(n, kBins);
        const double roundTrip = roundTripError(n);
        std::printf("n = %6zu, errors in eps sqrt(log2 n): complex %.2f, real %.2f, round trip %.2f; bound %.1f\n", n,
                    complex, real, roundTrip, boundFor(n));
        EXPECT_LE(complex, boundFor(n)) << n;
        EXPECT_LE(real, boundFor(n)) << n;
        EXPECT_LE(roundTrip, 2 * boundFor(n)) << n;
    }
}

} // namespace
} // namespace quordsp::backend
