#include "statistics/extremes.h"

#include "status.h"

#include <algorithm>
#include <cmath>

namespace quordsp::backend {

namespace {

struct Extremes {
    std::int64_t max;
    std::int64_t min;
};

Extremes extremes(const double* x, std::int64_t n)
{
    const std::int64_t first = std::find_if_not(x, x + n, [](double value) { return std::isnan(value); }) - x;
    if (first == n)
        return {0, 0};
    Extremes found = {first, first};
    for (std::int64_t i = first + 1; i < n; ++i) {
        if (x[i] > x[found.max])
            found.max = i;
        if (x[i] < x[found.min])
            found.min = i;
    }
    return found;
}

} // namespace

void maxMin(const double* x, std::int64_t n, double* max, std::int64_t* maxIndex, double* min, std::int64_t* minIndex)
{
    requirePositiveCount(n);
    requireArrays(x, max, min);
    requireArrays(maxIndex, minIndex);
    const Extremes found = extremes(x, n);
    *maxIndex = found.max;
    *minIndex = found.min;
    *max = x[found.max];
    *min = x[found.min];
}

} // namespace quordsp::backend
