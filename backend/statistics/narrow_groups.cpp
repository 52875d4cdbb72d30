// Samples at the same distance from the centre go together: of equal samples the sums are exactly 0, of a straight line
// the curvature is what rounding left of it, however far from 0 they lie.
#include "statistics/narrow_groups.h"

#include "cpu/instruction_set.h"

#include <algorithm>
#include <cstring>

namespace quordsp::backend {

namespace {

using Lanes [[gnu::vector_size(16 * sizeof(double))]] = double;

// Of the groups that begin at x, x + 1 ... for each element of T.
template <class T>
[[gnu::always_inline]] inline void formSlopes(const double* x, std::size_t width, double* slopes)
{
    T sum = {};
    auto v = static_cast<double>(width - 1);
    for (std::size_t i = 0; i < width / 2; ++i, v -= 2) {
        T left;
        T right;
        std::memcpy(&left, x + i, sizeof left);
        std::memcpy(&right, x + width - 1 - i, sizeof right);
        sum += v * (right - left);
    }
    std::memcpy(slopes, &sum, sizeof sum);
}

[[gnu::always_inline]] inline void formAllSlopes(const double* x, std::size_t width, std::size_t groups,
                                                 double* slopes) noexcept
{
    constexpr std::size_t atOnce = sizeof(Lanes) / sizeof(double);
    std::size_t i = 0;
    for (; i + atOnce <= groups; i += atOnce)
        formSlopes<Lanes>(x + i, width, slopes + i);
    for (; i < groups; ++i)
        formSlopes<double>(x + i, width, slopes + i);
}

} // namespace

std::size_t NarrowGroups::take(const double* x, std::size_t n, double* slopes) noexcept
{
    const std::size_t kept = std::min(end_, width_ - 1);
    std::copy(samples_ + end_ - kept, samples_ + end_, samples_);
    std::copy(x, x + n, samples_ + kept);
    end_ = kept + n;
    const std::size_t groups = end_ - std::min(end_, width_ - 1);
    onThisMachine<formAllSlopes>(static_cast<const double*>(samples_), width_, groups, slopes);
    return groups;
}

GroupSums NarrowGroups::sums(std::size_t i) const noexcept
{
    const double* const x = samples_ + i;
    const double middle = width_ % 2 == 0 ? x[width_ / 2 - 1] + x[width_ / 2] : 2 * x[width_ / 2];
    const auto w = static_cast<double>(width_);
    GroupSums sums = {0, 0, 0, middle / 2};
    double v = w - 1;
    for (std::size_t k = 0; k < width_ / 2; ++k, v -= 2) {
        const double left = x[k];
        const double right = x[width_ - 1 - k];
        sums.slope += v * (right - left);
        sums.curvature += (3 * v * v - (w * w - 1)) * (left + right - middle);
        sums.level += left + right - middle;
    }
    return sums;
}

} // namespace quordsp::backend
