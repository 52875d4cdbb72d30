// One step of a transform: of what the steps before it left, transforms over one factor of the size.
#pragma once

#include "transform/point.h"

#include <cstddef>

namespace quordsp::backend {

inline constexpr std::size_t kLargestPrimeRadix = 61;

struct Pass {
    std::size_t radix;   // 2, 4, 8 or an odd prime up to kLargestPrimeRadix
    std::size_t stride;  // product of the radices before
    std::size_t groups;  // product of the radices to come
    ConstSplit twiddles; // [radix - 1][groups]
    ConstSplit circle;   // [radix]
};

// Number of points that the two tables of a pass take.
inline std::size_t tableSize(std::size_t radix, std::size_t groups)
{
    return (radix - 1) * groups + radix;
}

// Reads x, writes y; the two do not overlap.
void run(const Pass& pass, ConstSplit x, Split y);

} // namespace quordsp::backend
