// Takes the jumps out of a phase.
#pragma once

#include <cstddef>

namespace quordsp::backend {

// Adds to each value the multiple of 2 pi that brings it within half a turn of the one before. A step of exactly half a
// turn becomes one downwards. A NaN makes all values after it NaN.
void unwrap(double* phase, std::size_t n);

} // namespace quordsp::backend
