// A sample as its parts, one or two doubles, on which real coefficients act alike.
#pragma once

#include "nianlys.h"

#include <cstddef>

namespace quordsp::backend {

template <class Sample>
inline constexpr std::size_t kParts = 1;
template <>
inline constexpr std::size_t kParts<Complex> = 2;

inline const double* partsOf(const double* samples)
{
    return samples;
}

inline double* partsOf(double* samples)
{
    return samples;
}

inline const double* partsOf(const Complex* samples)
{
    return reinterpret_cast<const double*>(samples);
}

inline double* partsOf(Complex* samples)
{
    return reinterpret_cast<double*>(samples);
}

} // namespace quordsp::backend
