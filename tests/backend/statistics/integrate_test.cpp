#include "nianlys.h"

#include <gmock/gmock.h>

#include <cmath>
#include <limits>
#include <numbers>
#include <vector>

namespace quordsp::backend {
namespace {

using testing::DoubleEq;
using testing::Each;
using testing::ElementsAre;
using Array = std::vector<double>;

constexpr double kNan = std::numeric_limits<double>::quiet_NaN();

Array integrated(const Array& x, double dt, double initial, double final)
{
    Array y(x.size());
    EXPECT_EQ(AALFunc95(x.data(), static_cast<std::int64_t>(x.size()), dt, initial, final, y.data()), Status::Success);
    return y;
}

// The expected values of the first tests are computed by hand from the rule.
TEST(Integrate, OfOnesBetweenZeros)
{
    EXPECT_THAT(integrated({1, 1, 1}, 1, 0, 0), ElementsAre(DoubleEq(5.0 / 6), DoubleEq(11.0 / 6), DoubleEq(16.0 / 6)));
}

TEST(Integrate, OfOnesBetweenOnesIsTheirNumber)
{
    EXPECT_THAT(integrated({1, 1, 1}, 1, 1, 1), ElementsAre(1, 2, 3));
}

TEST(Integrate, WeighsTheConditionsAndTheInterval)
{
    EXPECT_THAT(integrated({1, 2, 3}, 0.5, 0, 4), ElementsAre(0.5, 1.5, 3));
}

TEST(Integrate, OfOnePoint)
{
    EXPECT_THAT(integrated({5}, 6, 1, 2), ElementsAre(23)); // 6/6 (1 + 4 * 5 + 2)
}

// The sum of parabolas over overlapping panels of two intervals counts every interval twice, at half the weight.
TEST(Integrate, OfACubicIsExactAtTheEnd)
{
    const std::size_t n = 20;
    const auto cubic = [](double t) { return t * t * t - 2 * t; };
    Array x(n);
    for (std::size_t i = 0; i < n; ++i)
        x[i] = cubic(static_cast<double>(i));
    const auto antiderivative = [](double t) { return t * t * t * t / 4 - t * t; };
    const auto expected = [&](double t) {
        return (antiderivative(t + 1) - antiderivative(-1) + antiderivative(t) - antiderivative(0)) / 2;
    };
    const Array y = integrated(x, 1, cubic(-1), cubic(n));
    for (std::size_t i = 0; i < n; ++i)
        EXPECT_NEAR(y[i], expected(static_cast<double>(i)), 1e-9) << i;
}

TEST(Integrate, OfACosineIsASine)
{
    const std::size_t n = 1000;
    const double dt = 2 * std::numbers::pi / n;
    const auto at = [&](double i) { return std::cos(i * dt); };
    Array x(n);
    for (std::size_t i = 0; i < n; ++i)
        x[i] = at(static_cast<double>(i));
    const Array y = integrated(x, dt, at(-1), at(n));
    for (std::size_t i = 0; i < n; ++i) {
        const double t = static_cast<double>(i);
        // Between neighbouring intervals the rule reads the mean of both ends.
        EXPECT_NEAR(y[i], (std::sin((t + 1) * dt) + std::sin(t * dt) + std::sin(dt)) / 2, 1e-10) << i;
    }
}

TEST(Integrate, WorksInPlace)
{
    Array x = {3, -1, 4, 1, -5, 9, 2, 6};
    const Array expected = integrated(x, 0.25, 7, -8);
    ASSERT_EQ(AALFunc95(x.data(), 8, 0.25, 7, -8, x.data()), Status::Success);
    EXPECT_EQ(x, expected);
}

TEST(Integrate, LetsNanThroughFromTheElementBeforeIt)
{
    const Array y = integrated({1, 1, 1, kNan, 1}, 1, 1, 1);
    EXPECT_EQ(y[0], 1);
    EXPECT_EQ(y[1], 2);
    EXPECT_TRUE(std::isnan(y[2]) && std::isnan(y[3]) && std::isnan(y[4]));
}

TEST(Integrate, LetsNanConditionsThrough)
{
    EXPECT_THAT(integrated({1, 1}, 1, kNan, 0), Each(testing::NanSensitiveDoubleEq(kNan)));
    EXPECT_THAT(integrated({1, 1}, 1, 1, kNan), ElementsAre(1, testing::NanSensitiveDoubleEq(kNan)));
}

TEST(Integrate, RefusesCountsThatAreNotPositive)
{
    double y = 7;
    EXPECT_EQ(AALFunc95(&y, 0, 1, 0, 0, &y), Status::CountNotPositive);
    EXPECT_EQ(AALFunc95(nullptr, -1, 0, 0, 0, nullptr), Status::CountNotPositive);
    EXPECT_EQ(y, 7);
}

TEST(Integrate, RefusesNullArrays)
{
    double y = 7;
    EXPECT_EQ(AALFunc95(nullptr, 1, 0, 0, 0, &y), Status::ArraySize);
    EXPECT_EQ(AALFunc95(&y, 1, 0, 0, 0, nullptr), Status::ArraySize);
    EXPECT_EQ(y, 7);
}

TEST(Integrate, RefusesIntervalsThatAreNotPositive)
{
    const double x = 1;
    double y = 7;
    for (const double dt : {0.0, -0.0, -1.0, kNan})
        EXPECT_EQ(AALFunc95(&x, 1, dt, 0, 0, &y), Status::IntervalNotPositive) << dt;
    EXPECT_EQ(y, 7);
}

} // namespace
} // namespace quordsp::backend
