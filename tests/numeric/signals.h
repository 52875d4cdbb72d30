// Signals that the tests put in, and how they look at what comes out.
#pragma once
#include <algorithm>
#include <bit>
#include <cmath>
#include <cstdint>
#include <limits>
#include <numbers>
#include <numeric>
#include <vector>

#include <gtest/gtest.h>

namespace signals {

using Samples = std::vector<double>;

constexpr double kNan = std::numeric_limits<double>::quiet_NaN();
constexpr double kInfinity = std::numeric_limits<double>::infinity();

// Numbers in -4..4 that look random and are the same everywhere.
class Noise {
public:
    Samples next(int count)
    {
        Samples samples;
        for (int i = 0; i < count; ++i) {
            state_ = state_ * 6364136223846793005u + 1442695040888963407u;
            samples.push_back(static_cast<double>(state_ >> 11) * 0x1p-50 - 4.0);
        }
        return samples;
    }

private:
    std::uint64_t state_ = 1;
};

// cos(2 pi frequency (start + i)): the frequency counts periods a sample.
inline Samples cosine(double frequency, double start, int count)
{
    Samples samples;
    for (int i = 0; i < count; ++i)
        samples.push_back(std::cos(2.0 * std::numbers::pi * frequency * (start + i)));
    return samples;
}

struct Wave {
    double amplitude;
    double phase; // of the cosine at element 0
};

// The wave of a known frequency, in samples that hold whole periods of it.
inline Wave waveOf(const Samples& samples, double frequency)
{
    double re = 0.0;
    double im = 0.0;
    for (std::size_t i = 0; i < samples.size(); ++i) {
        const double angle = 2.0 * std::numbers::pi * frequency * static_cast<double>(i);
        re += samples[i] * std::cos(angle);
        im -= samples[i] * std::sin(angle);
    }
    return {2.0 * std::hypot(re, im) / static_cast<double>(samples.size()), std::atan2(im, re)};
}

// How the trapezoidal rule scales a sine, and Simpson's over overlapping pairs of intervals.
inline double trapezoidalGain(double frequency)
{
    const double x = std::numbers::pi * frequency;
    return x / std::tan(x);
}
inline double simpsonGain(double frequency)
{
    const double x = std::numbers::pi * frequency;
    return x / std::sin(x) * (2.0 + std::cos(2.0 * x)) / 3.0;
}

// To this part of it a sine comes out as documented: the ends of a block, 5000 samples here, are not quite its own.
constexpr double kEnds = 1e-4;

// The largest part that removing a trend takes of a sine.
inline double largestLoss(int order, double periods)
{
    return (order + 1) * (order + 2) / (9.0 * periods * periods);
}

inline void expectGain(double gain, double rule, int order, double periods)
{
    EXPECT_LE(gain / rule - 1.0, kEnds);
    EXPECT_LE(1.0 - gain / rule, kEnds + largestLoss(order, periods));
}

// turns: the expected phase in periods.
inline void expectPhase(double phase, double turns, int order, double periods)
{
    const double full = 2.0 * std::numbers::pi;
    EXPECT_LE(std::abs(std::remainder(phase - full * turns, full)), kEnds + largestLoss(order, periods));
}

// Every bit of every sample; NaNs are all alike.
inline std::vector<std::uint64_t> bits(const Samples& samples)
{
    std::vector<std::uint64_t> result;
    for (const double sample : samples)
        result.push_back(std::bit_cast<std::uint64_t>(std::isnan(sample) ? kNan : sample));
    return result;
}

inline double largest(const Samples& samples)
{
    double result = 0.0;
    for (const double sample : samples)
        result = std::max(result, std::abs(sample));
    return result;
}

// What is left of n samples when the polynomial of degree n - 2 has been removed: their part along the one direction
// that is at right angles to all such polynomials, the binomials with alternating signs.
inline Samples withoutPolynomial(const Samples& samples)
{
    const auto n = static_cast<double>(samples.size());
    Samples direction{1.0};
    for (std::size_t k = 1; k < samples.size(); ++k)
        direction.push_back(-direction.back() * (n - static_cast<double>(k)) / static_cast<double>(k));
    const auto product = [](const Samples& a, const Samples& b) {
        return std::inner_product(a.begin(), a.end(), b.begin(), 0.0);
    };
    const double part = product(samples, direction) / product(direction, direction);
    for (double& value : direction)
        value *= part;
    return direction;
}

} // namespace signals
