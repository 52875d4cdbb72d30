// Relative error in the Euclidean norm, against the definition in long double. The bounds are multiples of
// eps sqrt(log2 n): rounding errors of a fast transform add up like a random walk over its log n steps.
#include "backend/transform/signals.h"
#include "reference/naive_dft.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdio>
#include <limits>

namespace quordsp::backend {
namespace {

constexpr double kSmoothBound = 0.6;
constexpr double kOtherBound = 1.5;

bool isSmooth(std::size_t n)
{
    for (const std::size_t prime : {2u, 3u, 5u, 7u})
        while (n % prime == 0)
            n /= prime;
    return n == 1;
}

double boundFor(std::size_t n)
{
    return isSmooth(n) ? kSmoothBound : kOtherBound;
}

double inUnits(double error, std::size_t n)
{
    return error / (std::numeric_limits<double>::epsilon() *
                    std::sqrt(std::log2(static_cast<double>(std::max<std::size_t>(n, 2)))));
}

// Over all bins up to 4096 points, beyond that over some that are spread evenly.
double errorOf(const Signal& spectrum, const Signal& signal)
{
    const std::size_t n = signal.re.size();
    const reference::NaiveDft oracle(n);
    long double error = 0, size = 0;
    for (std::size_t k = 0; k < n; k += n > 4096 ? n / 60 : 1) {
        const auto [re, im] = oracle.bin(signal.re, signal.im, k);
        error += (spectrum.re[k] - re) * (spectrum.re[k] - re) + (spectrum.im[k] - im) * (spectrum.im[k] - im);
        size += re * re + im * im;
    }
    return inUnits(static_cast<double>(std::sqrt(error / size)), n);
}

double complexError(std::size_t n)
{
    const Signal signal = complexNoise(n);
    Signal spectrum = signal;
    EXPECT_EQ(fft(spectrum), Status::Success);
    return errorOf(spectrum, signal);
}

double realError(std::size_t n)
{
    const Signal signal = {noise(n, 1), Array(n)};
    Signal spectrum = signal;
    EXPECT_EQ(realFft(spectrum), Status::Success);
    return errorOf(spectrum, signal);
}

double roundTripError(std::size_t n)
{
    const Signal signal = complexNoise(n);
    Signal back = signal;
    EXPECT_EQ(fft(back), Status::Success);
    EXPECT_EQ(inverseFft(back), Status::Success);
    return inUnits(distance(back, signal), n);
}

TEST(TransformAccuracy, OfEverySizeUpTo512IsWithinTheBound)
{
    double worst[2] = {};
    for (std::size_t n = 1; n <= 512; ++n) {
        const double error = std::max(complexError(n), realError(n));
        EXPECT_LE(error, boundFor(n)) << n;
        worst[isSmooth(n)] = std::max(worst[isSmooth(n)], error);
    }
    std::printf("largest error in eps sqrt(log2 n): %.3f of factors 2, 3, 5, 7; %.3f of others\n", worst[1], worst[0]);
}

TEST(TransformAccuracy, OfLargerSizesIsWithinTheBound)
{
    for (const std::size_t n :
         {625u,  729u,  961u,  1009u,  1024u,  1331u,  2048u,  2187u,  2401u,   3125u,   3481u,
          4489u, 4093u, 4096u, 15625u, 16384u, 16807u, 19683u, 65536u, 100003u, 131071u, 262144u}) {
        const double complex = complexError(n), real = realError(n), roundTrip = roundTripError(n);
        std::printf("n = %6zu, errors in eps sqrt(log2 n): complex %.3f, real %.3f, round trip %.3f; bound %.1f\n", n,
                    complex, real, roundTrip, boundFor(n));
        EXPECT_LE(complex, boundFor(n)) << n;
        EXPECT_LE(real, boundFor(n)) << n;
        EXPECT_LE(roundTrip, 2 * boundFor(n)) << n;
    }
}

} // namespace
} // namespace quordsp::backend
