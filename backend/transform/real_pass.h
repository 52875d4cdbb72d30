// One step of a transform of a real signal of an odd size.
#pragma once

#include "transform/point.h"

#include <cstddef>

namespace quordsp::backend {

struct RealPass;
using ForwardRealPass = void (*)(const RealPass& pass, const double* x, double* first, Split others) noexcept;
using InverseRealPass = void (*)(const RealPass& pass, const double* first, ConstSplit others, double* x) noexcept;

// Takes x as [radix][count] to its transforms over the first index: row 0 into first; rows 1..(radix - 1)/2, times
// their twiddles, into others, [row - 1][pitch]. And back, unscaled. Nothing overlaps.
struct RealPass {
    std::size_t radix; // an odd prime up to kLargestPrimeRadix
    std::size_t count;
    ConstSplit twiddles;         // [row - 1][count]
    const Point<double>* circle; // roots of order radix; of a prime that has no butterfly of its own
    ForwardRealPass forward;
    InverseRealPass inverse;
};

void chooseFunctions(RealPass& pass);

} // namespace quordsp::backend
