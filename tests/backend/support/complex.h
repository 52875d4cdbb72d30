// Complex signals as their parts.
#pragma once

#include "nianlys.h"

#include <vector>

namespace quordsp::test {

using ComplexSignal = std::vector<backend::Complex>;

inline std::int64_t lengthOf(const auto& signal)
{
    return static_cast<std::int64_t>(signal.size());
}

inline std::vector<double> partOf(const ComplexSignal& signal, double backend::Complex::* part)
{
    std::vector<double> values;
    for (const backend::Complex& sample : signal)
        values.push_back(sample.*part);
    return values;
}

// Real and imaginary parts in turn.
inline ComplexSignal complexOf(const std::vector<double>& values)
{
    ComplexSignal signal;
    for (std::size_t i = 0; i + 1 < values.size(); i += 2)
        signal.push_back({values[i], values[i + 1]});
    return signal;
}

inline std::vector<double> valuesOf(const ComplexSignal& signal)
{
    std::vector<double> values;
    for (const auto& [real, imaginary] : signal)
        values.insert(values.end(), {real, imaginary});
    return values;
}

// The same numbers each time; neither part repeats the other.
inline ComplexSignal complexNoise(std::size_t n)
{
    ComplexSignal signal(n);
    std::uint32_t random = 12345;
    const auto next = [&random] {
        random = random * 1664525 + 1013904223;
        return random * 0x1p-31 - 1.0;
    };
    for (auto& [real, imaginary] : signal) {
        real = next();
        imaginary = next();
    }
    return signal;
}

} // namespace quordsp::test
