// One step of a transform: of what the steps before it left, transforms over one factor of the size.
#pragma once

#include "transform/point.h"

#include <cstddef>

namespace quordsp::backend {

inline constexpr std::size_t kLargestPrimeRadix = 61;

// A stride from which a pass runs over it with vectors, and one from which they may be of any width.
inline constexpr std::size_t kWideStride = 4;
inline constexpr std::size_t kFullyWideStride = 8;

struct Pass;
using PassFunction = void (*)(const Pass& pass, const ConstSplit& x, const Split& y) noexcept;

// Reads x and writes y, which do not overlap. But a last pass may run in place, if it is the only one.
struct Pass {
    std::size_t radix;  // 2, 3, 4, 5, 7, 8 or a prime up to kLargestPrimeRadix
    std::size_t stride; // lanes times the product of the radices before
    std::size_t groups; // product of the radices to come
    std::size_t length; // of a row: what of a stride is contiguous in x and y
    std::size_t rows;   // of a stride
    std::size_t pitch;  // from one row to the next, or 0: as x and y have it
    PassFunction ofSplit;
    PassFunction ofInterleaved;

    ConstSplit laneTwiddles;            // of a narrow pass: [radix - 1][groups * stride]
    const Point<double>* groupTwiddles; // of a wide one: [groups][radix - 1]
    const Point<double>* circle;        // roots of order radix; of a prime that has no butterfly of its own
};

// A pass with a stride below kWideStride that is not the last one; x of either kind, y split.
void chooseNarrow(Pass& pass);
// Any other; x of either kind, y split.
void chooseWide(Pass& pass);
// The last one: it has no twiddles. x split, y of either kind.
void chooseLast(Pass& pass);

} // namespace quordsp::backend
