// The breakpoints of a trend that count.
#pragma once

#include "numeric/numeric_array.h"

namespace quordsp {

struct Breakpoints {
    ArrayOwner<double> places; // counted from 0; the first is 0 itself, the others in the order given
    std::int64_t count;        // of all; places holds no more than there are samples
};

// Keeps those between the first and the last of count samples; null holds none. False when there is no memory.
[[nodiscard]] bool keepBreakpoints(int count, const double* breakpoints, int breakpointCount,
                                   Breakpoints& kept) noexcept;

} // namespace quordsp
