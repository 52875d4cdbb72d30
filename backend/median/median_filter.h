// MedianFilter.
#pragma once

#include <cstdint>

namespace quordsp::backend {

// Throws a Failure, or std::bad_alloc, before anything is written. x may be y.
void medianFilter(const double* x, std::int64_t n, std::int64_t leftRank, std::int64_t rightRank, double* y);

} // namespace quordsp::backend
