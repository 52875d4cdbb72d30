// The recursive half of the direct form: y[i] = (u[i] - a[K] y[i-K] - ... - a[1] y[i-1]) / a[0].
// The newest output comes last in its sum, and the newest few stay in registers: one product and one difference
// separate an output from the next. The others are taken off all sums of a group at once; the youngest of them was
// formed some samples before the group begins, time enough to reach the memory that a whole group is read from.
#pragma once

#include "iir/delay_line.h"

#include <algorithm>
#include <cstddef>
#include <cstring>

namespace quordsp::backend {

inline constexpr std::size_t kGroup = 4;
inline constexpr std::size_t kMostRecent = 7;

// P parts a sample.
template <std::size_t P>
[[gnu::always_inline]] inline void subtractOlder(double* sums, const double* a, std::size_t K) noexcept
{
    using Group [[gnu::vector_size(kGroup * P * sizeof(double))]] = double;
    Group group, older;
    std::memcpy(&group, sums, sizeof group);
    for (std::size_t k = K; k > kMostRecent; --k) {
        std::memcpy(&older, sums - k * P, sizeof older);
        group = group - a[k] * older;
    }
    std::memcpy(sums, &group, sizeof group);
}

// R: the number of coefficients to come.
template <std::size_t P, std::size_t R>
class RecentOutputs {
public:
    [[gnu::always_inline]] RecentOutputs(const double* y, const double* a) noexcept
    {
        std::memcpy(a_, a, sizeof a_);
        for (std::size_t k = 0; k < R; ++k)
            std::memcpy(&y_[k], y - (k + 1) * P, sizeof(Row));
    }

    [[gnu::always_inline]] void finish(double* y) noexcept
    {
        Row sum;
        std::memcpy(&sum, y, sizeof sum);
        for (std::size_t k = R; k > 0; --k)
            sum = sum - a_[k] * y_[k - 1];
        if (a_[0] != 1) [[unlikely]] // otherwise compilers divide anyway and select
            sum = sum / a_[0];
        y_.push(sum);
        std::memcpy(y, &sum, sizeof sum);
    }

private:
    using Row [[gnu::vector_size(P * sizeof(double))]] = double;

    double a_[R + 1];
    DelayLine<Row, R + 1> y_; // [k]: k + 1 samples ago
};

// y holds the sums u and receives the outputs; K outputs of before stand in front of it, room for a group behind it.
// R = min(K, kMostRecent).
template <std::size_t P, std::size_t R>
[[gnu::always_inline]] inline void recur(double* y, std::size_t length, const double* a, std::size_t K) noexcept
{
    RecentOutputs<P, R> recent{y, a};
    for (std::size_t done = 0; done < length; done += kGroup) {
        double* const group = y + done * P;
        if (R == kMostRecent)
            subtractOlder<P>(group, a, K);
        const std::size_t count = std::min(kGroup, length - done);
#pragma clang loop unroll(disable)
        for (std::size_t i = 0; i < count; ++i)
            recent.finish(group + i * P);
    }
}

} // namespace quordsp::backend
