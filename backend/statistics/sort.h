// Sorting of samples.
#pragma once

#include <cstdint>

namespace quordsp::backend {

// direction 0: ascending, else descending. NaN comes last either way; equal values, which only zeros of different sign
// show, keep their order. y may be x. Time does not depend on the order of the input.
void sort(const double* x, std::int64_t n, std::int32_t direction, double* y);

} // namespace quordsp::backend
