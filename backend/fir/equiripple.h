// FIR filters of linear phase whose largest weighted error over given bands is the least possible.
#pragma once

#include "fir/exchange.h"
#include "status.h"

namespace quordsp::backend {

// More are refused as a failed design: the time grows with the square of the taps.
inline constexpr std::int64_t kMostTaps = 4096;
inline constexpr std::int64_t kMostBands = 1024;

struct EquirippleFilter {
    std::vector<double> h;
    double ripple; // the largest weighted error, that of rounding the coefficients included
    int exchanges; // in all sizes
};

// To be called in extended precision. Where fewer taps already bring the error down to what double can hold, these
// stand between zeros. Throws DesignFailed.
EquirippleFilter equiripple(Approximation wanted, Effort& effort);

inline EquirippleFilter equiripple(Approximation wanted)
{
    Effort effort;
    return equiripple(std::move(wanted), effort);
}

} // namespace quordsp::backend
