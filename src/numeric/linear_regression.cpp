// Removal of the least-squares straight line from equally spaced samples, abscissa 0, 1, 2, ...
//
// The result is fixed to the last bit: every sum is that of additions in index order, and nothing is contracted or
// reassociated. The sums over the samples are two chains of additions side by side. Those over the indices alone are
// sums of integers, which are exact, and so the same in any order, as long as none exceeds 2^53.
#include "numeric/linear_regression.h"

#include <algorithm>
#include <cmath>
#include <cstdint>

#include "QuorDSP_DAQ.h"
#include "cpu/instruction_set.h"

namespace quordsp {
namespace {

constexpr int kBlock = 1 << 20;
constexpr double kLargestExact = 0x1p53;

// The square of an index wraps modulo 2^32 into the signed range, from index 46341 on. Clients rely on the slope that
// follows.
[[gnu::always_inline]] inline std::int32_t wrappedSquare(std::int32_t i) noexcept
{
    const auto u = static_cast<std::uint32_t>(i);
    return static_cast<std::int32_t>(u * u);
}

[[gnu::always_inline]] inline std::int64_t sumSquaresKernel(int first, int last) noexcept
{
    std::int64_t sum = 0;
    for (int i = first; i < last; ++i)
        sum += wrappedSquare(i);
    return sum;
}

std::int64_t sumSquares(int first, int last) noexcept
{
    constexpr std::int64_t kNoneWraps = 46341;
    return first == 0 && last <= kNoneWraps ? std::int64_t{last} * (last - 1) * (2 * last - 1) / 6
                                            : onThisMachine<sumSquaresKernel>(first, last);
}

void addIndices(int first, int last, double& sum) noexcept
{
    const std::int64_t block = (std::int64_t{first} + last - 1) * (last - first) / 2;
    const double total = sum + static_cast<double>(block);
    if (total <= kLargestExact)
        sum = total;
    else
        for (int i = first; i < last; ++i)
            sum += i;
}

void addSquares(int first, int last, double& sum) noexcept
{
    if (std::abs(sum) + 0x1p31 * (last - first) <= kLargestExact)
        sum += static_cast<double>(sumSquares(first, last));
    else
        for (int i = first; i < last; ++i)
            sum += wrappedSquare(i);
}

struct Line {
    double slope;
    double intercept;
};

Line fitLine(const double* y, int count) noexcept
{
    double sy = 0.0;
    double sxy = 0.0;
    for (int i = 0; i < count; ++i) {
        sy += y[i];
        sxy += i * y[i];
    }
    const auto [sx, sxx] = sumIndices(count);
    const double n = count;
    const double mx = sx / n;
    const double my = sy / n;
    const double covariance = sxy / n - my * mx;
    const double variance = sxx / n - mx * mx;
    const double slope = covariance / variance;
    return {slope, my - slope * mx};
}

[[gnu::always_inline]] inline void subtractKernel(double* data, int count, double slope, double intercept) noexcept
{
    for (int i = 0; i < count; ++i)
        data[i] -= i * slope + intercept;
}

} // namespace

IndexSums sumIndices(int count) noexcept
{
    IndexSums sums{};
    for (int first = 0, last; first < count; first = last) {
        last = first + std::min(kBlock, count - first);
        addIndices(first, last, sums.x);
        addSquares(first, last, sums.xx);
    }
    return sums;
}

void removeLine(double* data, int count) noexcept
{
    const auto [slope, intercept] = fitLine(data, count);
    onThisMachine<subtractKernel>(data, count, slope, intercept);
}

} // namespace quordsp

void linear_regression(double* data, int count) noexcept
{
    quordsp::removeLine(data, count);
}
