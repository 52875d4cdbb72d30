// The two orders in which the bins of a spectrum stand: from frequency 0 up, or shifted, with frequency 0 at the
// centre: for an even size the first bin is the one at half the sampling rate, for an odd size the most negative one.
#pragma once

#include <algorithm>
#include <cstddef>

namespace quordsp::backend {

// Where frequency 0 stands.
inline std::size_t centreOf(std::size_t n)
{
    return n / 2;
}

template <class Bin>
void shiftBins(Bin* y, std::size_t n)
{
    std::rotate(y, y + (n - centreOf(n)), y + n);
}

template <class Bin>
void copyUnshifted(const Bin* x, std::size_t n, Bin* y)
{
    std::rotate_copy(x, x + centreOf(n), x + n, y);
}

} // namespace quordsp::backend
