// The oracle is std::sort with the order that the entry documents.
#include "nianlys.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <bit>
#include <cmath>
#include <limits>
#include <numeric>
#include <random>
#include <vector>

namespace quordsp::backend {
namespace {

using Array = std::vector<double>;

constexpr double kNan = std::numeric_limits<double>::quiet_NaN();
constexpr double kInfinity = std::numeric_limits<double>::infinity();

Array sorted(Array x, std::int32_t direction)
{
    EXPECT_EQ(AALFunc160(x.data(), static_cast<std::int64_t>(x.size()), direction, x.data()), Status::Success);
    return x;
}

Array expected(const Array& x, std::int32_t direction)
{
    const auto before = [&](double a, double b) {
        if (std::isnan(a) || std::isnan(b))
            return !std::isnan(a);
        return direction == 0 ? a < b : b < a;
    };
    std::vector<std::size_t> order(x.size());
    std::iota(order.begin(), order.end(), std::size_t{0});
    std::sort(order.begin(), order.end(),
              [&](std::size_t a, std::size_t b) { return before(x[a], x[b]) || (!before(x[b], x[a]) && a < b); });
    Array y;
    for (const std::size_t place : order)
        y.push_back(x[place]);
    return y;
}

// Equality that tells zeros and NaN apart.
std::vector<std::uint64_t> bits(const Array& x)
{
    std::vector<std::uint64_t> result;
    for (const double value : x)
        result.push_back(std::bit_cast<std::uint64_t>(value));
    return result;
}

Array uniform(std::size_t n, unsigned seed)
{
    std::mt19937 generator(seed);
    Array x(n);
    for (double& value : x)
        value = static_cast<double>(generator()) / 1e9 - 2;
    return x;
}

// Any bit pattern: numbers of all sizes, subnormal ones, NaN with payloads.
Array anyBits(std::size_t n, unsigned seed)
{
    std::mt19937_64 generator(seed);
    Array x(n);
    for (double& value : x)
        value = std::bit_cast<double>(generator());
    return x;
}

Array fewValues(std::size_t n, unsigned seed)
{
    constexpr double values[] = {0.0, -0.0, 1, -1, kNan, -kNan, kInfinity, -kInfinity, 5e-324, -5e-324};
    std::mt19937 generator(seed);
    Array x(n);
    for (double& value : x)
        value = values[generator() % std::size(values)];
    return x;
}

Array ramp(std::size_t n)
{
    Array x(n);
    std::iota(x.begin(), x.end(), -0.5 * static_cast<double>(n));
    return x;
}

Array fallingRamp(std::size_t n)
{
    Array x = ramp(n);
    std::reverse(x.begin(), x.end());
    return x;
}

// Groups of numbers that agree in all but their last bits.
Array clusters(std::size_t n, unsigned seed)
{
    std::mt19937 generator(seed);
    Array x(n);
    for (double& value : x) {
        const double centre = static_cast<double>(generator() % 7) - 3.5;
        value = centre * (1 + static_cast<double>(generator() % 4096) * 0x1p-52);
    }
    return x;
}

constexpr std::size_t kSizes[] = {1, 2, 3, 10, 127, 128, 129, 1000, 5000, 40000};

void check(const Array& x)
{
    for (const std::int32_t direction : {0, 1, -1}) {
        const auto wanted = bits(expected(x, direction));
        EXPECT_EQ(bits(sorted(x, direction)), wanted) << x.size();
        Array y(x.size());
        EXPECT_EQ(AALFunc160(x.data(), static_cast<std::int64_t>(x.size()), direction, y.data()), Status::Success);
        EXPECT_EQ(bits(y), wanted) << x.size();
    }
}

TEST(Sort, OfUniformNumbers)
{
    for (const std::size_t n : kSizes)
        check(uniform(n, 1));
}

TEST(Sort, OfAnyBitPatterns)
{
    for (const std::size_t n : kSizes)
        check(anyBits(n, 2));
}

TEST(Sort, KeepsZerosAndNanInTheirOrder)
{
    for (const std::size_t n : kSizes)
        check(fewValues(n, 3));
}

TEST(Sort, OfNumbersThatDifferInTheirLastBits)
{
    for (const std::size_t n : kSizes)
        check(clusters(n, 4));
}

TEST(Sort, OfOrderedAndReversedAndEqualNumbers)
{
    for (const std::size_t n : kSizes) {
        check(ramp(n));
        check(fallingRamp(n));
        check(Array(n, -3));
    }
}

TEST(Sort, OfZeroAscends)
{
    EXPECT_EQ(sorted({3, 1, 2}, 0), (Array{1, 2, 3}));
}

TEST(Sort, OfAnythingElseDescends)
{
    for (const std::int32_t direction : {1, 2, -1, std::numeric_limits<std::int32_t>::min()})
        EXPECT_EQ(sorted({3, 1, 2}, direction), (Array{3, 2, 1}));
}

TEST(Sort, PutsNanLastInBothDirections)
{
    for (const std::int32_t direction : {0, 1}) {
        const Array y = sorted({kNan, 1, -kInfinity, kNan, kInfinity}, direction);
        EXPECT_TRUE(std::isinf(y[0]) && y[1] == 1 && std::isinf(y[2]) && std::isnan(y[3]) && std::isnan(y[4]));
    }
}

TEST(Sort, LeavesTheInputAlone)
{
    const Array x = uniform(3000, 5);
    Array y(x.size());
    ASSERT_EQ(AALFunc160(x.data(), 3000, 0, y.data()), Status::Success);
    EXPECT_EQ(x, uniform(3000, 5));
}

TEST(Sort, RefusesCountsThatAreNotPositive)
{
    double x[] = {2, 1};
    EXPECT_EQ(AALFunc160(x, 0, 0, x), Status::CountNotPositive);
    EXPECT_EQ(AALFunc160(nullptr, -2, 0, nullptr), Status::CountNotPositive);
    EXPECT_EQ(x[0], 2);
}

TEST(Sort, RefusesNullArrays)
{
    double x[] = {2, 1};
    EXPECT_EQ(AALFunc160(nullptr, 2, 0, x), Status::ArraySize);
    EXPECT_EQ(AALFunc160(x, 2, 0, nullptr), Status::ArraySize);
    EXPECT_EQ(x[0], 2);
}

TEST(Sort, OfMoreThanMemoryHoldsFailsBeforeItReads)
{
    double x[] = {2, 1};
    for (const std::int64_t n : {std::int64_t{1} << 60, std::numeric_limits<std::int64_t>::max()})
        EXPECT_EQ(AALFunc160(x, n, 0, x), Status::OutOfMemory);
    EXPECT_EQ(x[0], 2);
}

} // namespace
} // namespace quordsp::backend
