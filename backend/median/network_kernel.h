// Medians of short windows: compare and exchange in a fixed order, so that many windows are worked on side by side and
// nothing depends on a branch.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstring>

namespace quordsp::backend {

inline constexpr std::size_t kLongestNetwork = 15;

using MedianRow [[gnu::vector_size(64)]] = double;
inline constexpr std::size_t kMedianRow = sizeof(MedianRow) / sizeof(double);

// The mean of the middle two, without overflow; of values that are finite or equal infinities the exact one, rounded.
[[gnu::always_inline]] inline void halfSum(const MedianRow& a, const MedianRow& b, MedianRow& mean) noexcept
{
    const MedianRow sum = a + b;
    const MedianRow magnitude = sum < 0 ? -sum : sum;
    constexpr double kLargest = 0x1.fffffffffffffp1023;
    mean = magnitude <= kLargest ? 0.5 * sum : 0.5 * a + 0.5 * b;
}

// out[i] = median of x[i] ... x[i+w-1], w = W; count and x are rounded up to whole rows. Among the values are no NaN.
template <std::size_t W>
[[gnu::always_inline]] inline void medianNetwork(const double* x, std::size_t count, double* out) noexcept
{
    for (std::size_t done = 0; done < count; done += kMedianRow) {
        MedianRow v[W];
        for (std::size_t k = 0; k < W; ++k)
            std::memcpy(&v[k], x + done + k, sizeof v[k]);
        // The largest goes to the end, then the next largest, as far as the middle.
        for (std::size_t placed = 0; placed <= W / 2; ++placed)
            for (std::size_t k = 0; k + 1 < W - placed; ++k) {
                const MedianRow smaller = v[k] < v[k + 1] ? v[k] : v[k + 1];
                v[k + 1] = v[k] < v[k + 1] ? v[k + 1] : v[k];
                v[k] = smaller;
            }
        MedianRow median = v[W / 2];
        if (W % 2 == 0)
            halfSum(v[W / 2 - 1], v[W / 2], median);
        std::memcpy(out + done, &median, std::min(kMedianRow, count - done) * sizeof(double));
    }
}

} // namespace quordsp::backend
