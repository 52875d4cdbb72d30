#include "statistics/integrate.h"

#include "status.h"

namespace quordsp::backend {

void integrate(const double* x, std::int64_t n, double dt, double initial, double final, double* y)
{
    requirePositiveCount(n);
    requireArrays(x, y);
    require(dt > 0, Status::IntervalNotPositive);
    double sum = 0;
    double before = initial;
    for (std::int64_t i = 0; i < n; ++i) {
        const double here = x[i];
        const double after = i + 1 < n ? x[i + 1] : final;
        sum += before + 4 * here + after;
        y[i] = sum * dt / 6;
        before = here;
    }
}

} // namespace quordsp::backend
