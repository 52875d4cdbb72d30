// What the tests of the thermocouple conversion have in common.
#pragma once
#include <bit>
#include <cmath>
#include <cstdint>
#include <limits>
#include <random>
#include <vector>

namespace quordsp {

using Samples = std::vector<double>;

constexpr int kTypeCount = 8;
constexpr int kUnits[] = {0, 1, 2, 3, 99};
constexpr double kNoColdJunction = 1500.0; // beyond 1370 degC nothing is compensated
constexpr double kUntouched = -12345.678;

// Ends of the ranges of all types, in mV.
constexpr double kEnds[] = {-9.8294, -8.105, -6.478, -6.268, -4.365, -0.245, -0.24,  0.0,
                            0.033,   1.874,  1.923,  1.978,  11.95,  13.228, 17.536, 19.739,
                            20.613,  20.646, 20.882, 42.919, 47.533, 54.9,   69.563, 76.3279};

// Bits that tell all results apart; NaN is NaN.
inline std::uint64_t bitsOf(double value)
{
    return std::bit_cast<std::uint64_t>(std::isnan(value) ? std::numeric_limits<double>::quiet_NaN() : value);
}

inline std::vector<std::uint64_t> bitsOf(const Samples& samples)
{
    std::vector<std::uint64_t> result;
    for (const double sample : samples)
        result.push_back(bitsOf(sample));
    return result;
}

// The singles nearest to an end: itself rounded, and some on either side.
inline Samples around(double end)
{
    constexpr int kReach = 3;
    constexpr float kFar = std::numeric_limits<float>::infinity();
    Samples result;
    float value = static_cast<float>(end);
    for (int i = 0; i < kReach; ++i)
        value = std::nextafter(value, -kFar);
    for (int i = 0; i <= 2 * kReach; ++i, value = std::nextafter(value, kFar))
        result.push_back(value);
    return result;
}

// Any bits at all: mostly voltages beyond every range, NaN and infinity among them.
inline Samples wildSamples(int count, unsigned seed)
{
    std::mt19937_64 bits{seed};
    Samples result;
    for (int i = 0; i < count; ++i)
        result.push_back(i % 2 ? std::bit_cast<double>(bits())
                               : std::bit_cast<float>(static_cast<std::uint32_t>(bits())));
    return result;
}

inline Samples shuffledSweep(int count, double low, double high)
{
    std::mt19937 engine{1};
    Samples result;
    for (int i = 0; i < count; ++i)
        result.push_back(low + (high - low) * static_cast<double>(engine()) / 0x1p32);
    return result;
}

} // namespace quordsp
