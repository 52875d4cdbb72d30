// Relative error in the Euclidean norm, against the definition in long double. The bounds are multiples of
// eps sqrt(log2 n): rounding errors of a fast transform add up like a random walk over its log n steps.
#pragma once
#include "backend/transform/signals.h"
#include "reference/naive_dft.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <limits>

namespace quordsp::backend {

inline constexpr double kSmoothBound = 0.6;
inline constexpr double kOtherBound = 1.5;

inline bool isSmooth(std::size_t n)
{
    for (const std::size_t prime : {2u, 3u, 5u, 7u})
        while (n % prime == 0)
            n /= prime;
    return n == 1;
}

inline double boundFor(std::size_t n)
{
    return isSmooth(n) ? kSmoothBound : kOtherBound;
}

inline double inUnits(double error, std::size_t n)
{
    return error / (std::numeric_limits<double>::epsilon() *
                    std::sqrt(std::log2(static_cast<double>(std::max<std::size_t>(n, 2)))));
}

// Over about so many bins, spread evenly; or, of small sizes, over all. Fractions of n with small denominators are
// bins whose roots are exact: the step is none.
inline double errorOf(const reference::NaiveDft& oracle, const Signal& spectrum, const Signal& signal, std::size_t bins)
{
    const std::size_t n = signal.re.size();
    long double error = 0, size = 0;
    for (std::size_t k = 0; k < n; k += n <= bins ? 1 : n / bins + 1) {
        const auto [re, im] = oracle.bin(signal.re, signal.im, k);
        error += (spectrum.re[k] - re) * (spectrum.re[k] - re) + (spectrum.im[k] - im) * (spectrum.im[k] - im);
        size += re * re + im * im;
    }
    return inUnits(static_cast<double>(std::sqrt(error / size)), n);
}

struct Errors {
    double complex;
    double real;
};

inline Errors errorsOf(std::size_t n, std::size_t bins)
{
    const reference::NaiveDft oracle(n);
    const Signal signal = complexNoise(n), realSignal = {noise(n, 1), Array(n)};
    Signal spectrum = signal, realSpectrum = realSignal;
    EXPECT_EQ(fft(spectrum), Status::Success);
    EXPECT_EQ(realFft(realSpectrum), Status::Success);
    return {errorOf(oracle, spectrum, signal, bins), errorOf(oracle, realSpectrum, realSignal, bins)};
}

} // namespace quordsp::backend
