// Largest and smallest element of an array and where they stand.
#pragma once

#include <cstdint>

namespace quordsp::backend {

// Of equal values the first counts. NaN elements are skipped; if there is nothing else, both results are NaN at index
// 0.
void maxMin(const double* x, std::int64_t n, double* max, std::int64_t* maxIndex, double* min, std::int64_t* minIndex);

} // namespace quordsp::backend
