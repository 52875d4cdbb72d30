#include "nianlys.h"
#include "statistics/extremes.h"
#include "statistics/integrate.h"
#include "statistics/sort.h"
#include "status.h"

namespace quordsp::backend {

// MaxMin1D
Status AALFunc120(const double* x, std::int64_t n, double* max, std::int64_t* maxIndex, double* min,
                  std::int64_t* minIndex) noexcept
{
    return guarded([&] { maxMin(x, n, max, maxIndex, min, minIndex); });
}

// Sort
Status AALFunc160(const double* x, std::int64_t n, std::int32_t direction, double* y) noexcept
{
    return guarded([&] { sort(x, n, direction, y); });
}

// Integrate
Status AALFunc95(const double* x, std::int64_t n, double dt, double initial, double final, double* y) noexcept
{
    return guarded([&] { integrate(x, n, dt, initial, final, y); });
}

} // namespace quordsp::backend
