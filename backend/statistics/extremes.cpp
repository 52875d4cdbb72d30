// Block by block the extreme values alone are found, in lanes; the block that holds the first of them is searched for
// its place at the end.
#include "statistics/extremes.h"

#include "cpu/instruction_set.h"
#include "status.h"

#include <algorithm>
#include <cmath>
#include <cstring>

namespace quordsp::backend {

namespace {

constexpr std::int64_t kLanes = 16;
constexpr std::int64_t kBlock = 16 * kLanes;
using Lanes [[gnu::vector_size(kLanes * sizeof(double))]] = double;

struct Extremes {
    double max;
    double min;
    std::int64_t maxBlock; // where the first block with this value begins
    std::int64_t minBlock;

    // Comparisons with NaN are false.
    [[gnu::always_inline]] void include(double high, double low, std::int64_t begin) noexcept
    {
        if (high > max) {
            max = high;
            maxBlock = begin;
        }
        if (low < min) {
            min = low;
            minBlock = begin;
        }
    }
};

[[gnu::always_inline]] inline void includeBlock(const double* x, std::int64_t begin, Extremes& found) noexcept
{
    Lanes max = found.max - Lanes{};
    Lanes min = found.min - Lanes{};
    for (std::int64_t i = begin; i < begin + kBlock; i += kLanes) {
        Lanes values;
        std::memcpy(&values, x + i, sizeof values);
        max = values > max ? values : max;
        min = values < min ? values : min;
    }
    for (std::int64_t lane = 0; lane < kLanes; ++lane)
        found.include(max[lane], min[lane], begin);
}

// x[first] is not NaN.
[[gnu::always_inline]] inline void search(const double* x, std::int64_t first, std::int64_t n, Extremes* found) noexcept
{
    Extremes extremes = {x[first], x[first], first, first};
    std::int64_t i = first;
    for (; i + kBlock <= n; i += kBlock)
        includeBlock(x, i, extremes);
    for (; i < n; ++i)
        extremes.include(x[i], x[i], i);
    *found = extremes;
}

} // namespace

void maxMin(const double* x, std::int64_t n, double* max, std::int64_t* maxIndex, double* min, std::int64_t* minIndex)
{
    requirePositiveCount(n);
    requireArrays(x, max, min);
    requireArrays(maxIndex, minIndex);
    const std::int64_t first = std::find_if_not(x, x + n, [](double value) { return std::isnan(value); }) - x;
    Extremes found = {x[0], x[0], 0, 0};
    if (first < n)
        onThisMachine<search>(x, first, n, &found);
    const auto place = [&](std::int64_t block, double value) {
        return first < n ? std::find(x + block, x + n, value) - x : 0;
    };
    const std::int64_t maxPlace = place(found.maxBlock, found.max);
    const std::int64_t minPlace = place(found.minBlock, found.min);
    *max = x[maxPlace];
    *min = x[minPlace];
    *maxIndex = maxPlace;
    *minIndex = minPlace;
}

} // namespace quordsp::backend
