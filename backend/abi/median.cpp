#include "median/median_filter.h"

#include "status.h"

namespace quordsp::backend {

// MedianFilter
Status AALFunc407(const double* x, std::int64_t n, std::int64_t leftRank, std::int64_t rightRank, double* y) noexcept
{
    return guarded([&] { medianFilter(x, n, leftRank, rightRank, y); });
}

} // namespace quordsp::backend
