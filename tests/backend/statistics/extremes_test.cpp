#include "nianlys.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <vector>

namespace quordsp::backend {
namespace {

constexpr double kNan = std::numeric_limits<double>::quiet_NaN();
constexpr double kInfinity = std::numeric_limits<double>::infinity();

struct Extremes {
    double max = 7;
    std::int64_t maxIndex = -7;
    double min = 8;
    std::int64_t minIndex = -8;

    bool operator==(const Extremes&) const = default;
};

Extremes extremesOf(const std::vector<double>& x)
{
    Extremes e;
    EXPECT_EQ(AALFunc120(x.data(), static_cast<std::int64_t>(x.size()), &e.max, &e.maxIndex, &e.min, &e.minIndex),
              Status::Success);
    return e;
}

TEST(MaxMin1D, FindsBothAndWhereTheyStand)
{
    EXPECT_EQ(extremesOf({2, 9, -4, 3}), (Extremes{9, 1, -4, 2}));
}

TEST(MaxMin1D, OfOneElementIsThatElement)
{
    EXPECT_EQ(extremesOf({5}), (Extremes{5, 0, 5, 0}));
}

TEST(MaxMin1D, OfEqualValuesReportsTheFirst)
{
    EXPECT_EQ(extremesOf({1, 3, 0, 3, 0, 1}), (Extremes{3, 1, 0, 2}));
    EXPECT_EQ(extremesOf({4, 4, 4}), (Extremes{4, 0, 4, 0}));
    EXPECT_EQ(extremesOf({0.0, -0.0, 0.0}), (Extremes{0, 0, 0, 0}));
}

TEST(MaxMin1D, FindsTheLastElement)
{
    EXPECT_EQ(extremesOf({0, 1, 2, 3, 4, 5, 6, 7, 8}), (Extremes{8, 8, 0, 0}));
    EXPECT_EQ(extremesOf({8, 7, 6, 5, 4, 3, 2, 1, 0}), (Extremes{8, 0, 0, 8}));
}

TEST(MaxMin1D, SkipsNanWhereverItStands)
{
    EXPECT_EQ(extremesOf({kNan, 2, kNan, 1, 3, kNan}), (Extremes{3, 4, 1, 3}));
    EXPECT_EQ(extremesOf({2, kNan}), (Extremes{2, 0, 2, 0}));
}

TEST(MaxMin1D, OfNothingButNanIsNanAtZero)
{
    const Extremes e = extremesOf({kNan, kNan, kNan});
    EXPECT_TRUE(std::isnan(e.max) && std::isnan(e.min));
    EXPECT_EQ(e.maxIndex, 0);
    EXPECT_EQ(e.minIndex, 0);
}

TEST(MaxMin1D, OrdersInfinities)
{
    EXPECT_EQ(extremesOf({1, -kInfinity, kInfinity, kNan}), (Extremes{kInfinity, 2, -kInfinity, 1}));
    EXPECT_EQ(extremesOf({-kInfinity, -kInfinity}), (Extremes{-kInfinity, 0, -kInfinity, 0}));
}

// Every position of the extremes in arrays of many lengths, as blocks of any size might miss one at their borders.
TEST(MaxMin1D, FindsExtremesAtEveryPosition)
{
    for (std::size_t n = 2; n <= 70; ++n)
        for (std::size_t i = 0; i < n; ++i) {
            const std::size_t j = (i + n / 2) % n;
            std::vector<double> x(n, 1);
            x[i] = 2;
            x[j] = 0;
            EXPECT_EQ(extremesOf(x), (Extremes{2, static_cast<std::int64_t>(i), 0, static_cast<std::int64_t>(j)}));
        }
}

// Three hundred: longer than the blocks that are searched at once.
TEST(MaxMin1D, FindsExtremesOfLongArraysAtEveryPosition)
{
    for (const std::size_t n : {255u, 256u, 257u, 300u, 1000u}) {
        std::vector<double> x(n, 1);
        x[n / 3] = kNan;
        for (std::size_t i = 0; i < n; ++i) {
            const std::size_t j = (i + n / 2) % n;
            const std::vector<double> before = {x[i], x[j], x[n - 1], x[n - 2]};
            x[n - 1] = 2; // not the first ones, but for i and j there
            x[n - 2] = 0;
            x[i] = 2;
            x[j] = 0;
            EXPECT_EQ(extremesOf(x), (Extremes{2, static_cast<std::int64_t>(i), 0,
                                               static_cast<std::int64_t>(std::min(j, j == n - 1 ? n - 2 : j))}));
            x[n - 2] = before[3];
            x[n - 1] = before[2];
            x[j] = before[1];
            x[i] = before[0];
        }
    }
}

TEST(MaxMin1D, RefusesCountsThatAreNotPositive)
{
    const double x[] = {1};
    for (const std::int64_t n : {std::int64_t{0}, std::int64_t{-1}, std::numeric_limits<std::int64_t>::min()}) {
        Extremes e;
        EXPECT_EQ(AALFunc120(x, n, &e.max, &e.maxIndex, &e.min, &e.minIndex), Status::CountNotPositive);
        EXPECT_EQ(e, Extremes{});
    }
    EXPECT_EQ(AALFunc120(nullptr, 0, nullptr, nullptr, nullptr, nullptr), Status::CountNotPositive);
}

TEST(MaxMin1D, RefusesEachNullPointer)
{
    const double x[] = {1};
    Extremes e;
    EXPECT_EQ(AALFunc120(nullptr, 1, &e.max, &e.maxIndex, &e.min, &e.minIndex), Status::ArraySize);
    EXPECT_EQ(AALFunc120(x, 1, nullptr, &e.maxIndex, &e.min, &e.minIndex), Status::ArraySize);
    EXPECT_EQ(AALFunc120(x, 1, &e.max, nullptr, &e.min, &e.minIndex), Status::ArraySize);
    EXPECT_EQ(AALFunc120(x, 1, &e.max, &e.maxIndex, nullptr, &e.minIndex), Status::ArraySize);
    EXPECT_EQ(AALFunc120(x, 1, &e.max, &e.maxIndex, &e.min, nullptr), Status::ArraySize);
    EXPECT_EQ(e, Extremes{});
}

} // namespace
} // namespace quordsp::backend
