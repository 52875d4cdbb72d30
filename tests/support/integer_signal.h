// Deterministic test signals from integer arithmetic alone: the same bits on every machine.
#pragma once
#include <cstdint>
#include <vector>

namespace quordsp {

// Multiples of 2^-20 between -1 and 1, from a linear congruential generator.
template <class T = double>
std::vector<T> noise(std::size_t count, std::uint32_t seed = 1)
{
    std::uint64_t state = seed;
    std::vector<T> samples(count);
    for (T& sample : samples) {
        state = state * 6364136223846793005u + 1442695040888963407u;
        sample = static_cast<T>(static_cast<double>(state >> 43) * 0x1p-20 - 1.0);
    }
    return samples;
}

// A triangle wave between -1 and 1.
inline std::vector<double> triangle(std::size_t count, std::size_t period)
{
    std::vector<double> samples(count);
    for (std::size_t i = 0; i < count; ++i) {
        const double phase = static_cast<double>(4 * (i % period)) / static_cast<double>(period);
        samples[i] = phase < 2 ? phase - 1 : 3 - phase;
    }
    return samples;
}

inline std::vector<double> scaled(std::vector<double> samples, double factor)
{
    for (double& sample : samples)
        sample *= factor;
    return samples;
}

} // namespace quordsp
