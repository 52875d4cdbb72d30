// Windowed design and filtering in one call; long filters go by way of Fourier transforms.
#include "backend/support/fir.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <cstdio>
#include <limits>
#include <numbers>
#include <numeric>

namespace quordsp::test {
namespace {

constexpr Order kShort{kBandPass, 1, 0.1, 0.3, 60, 2};
constexpr Order kLong{kBandPass, 1, 0.1, 0.3, 700, 2};

double sumOfMagnitudes(const Array& h)
{
    return std::accumulate(h.begin(), h.end(), 0.0, [](double sum, double value) { return sum + std::abs(value); });
}

double largestOf(const Array& x)
{
    return std::abs(
        *std::max_element(x.begin(), x.end(), [](double a, double b) { return std::abs(a) < std::abs(b); }));
}

// The largest distance from the direct sums, as a share of sum |h| max |x|.
double distanceFromDirectSums(const Array& x, const Order& order)
{
    const Array h = designed(order), y = filtered(x, order), direct = filtered(x, h);
    double largest = y.empty() ? 1 : 0;
    for (std::size_t i = 0; i < y.size(); ++i)
        largest = std::max(largest, std::abs(y[i] - direct[i]));
    return largest / sumOfMagnitudes(h) / largestOf(x);
}

TEST(WindowedFilter, IsItsDesignThenFilteringBitForBit)
{
    const Array x = noise(3000);
    for (int type : {kLowPass, kHighPass, kBandPass, kBandStop}) {
        const Order order{type, 1000, 100, 300, 61, kKaiser, 6};
        EXPECT_EQ(filtered(x, order), filtered(x, designed(order)));
    }
}

// sin(2 pi 0.1 t) / (pi t) half of 2^31 - 2 samples before the centre, where 0.1 t has the fraction 0.3 (by hand).
TEST(WindowedFilter, WorksOutNoMoreTapsThanMeetSamples)
{
    const Array x = noise(10), y = filtered(x, Order{kLowPass, 1, 0.1, 0, std::numeric_limits<std::int32_t>::max(), 0});
    const double first = 0.951056516295153572 / (std::numbers::pi * 1073741823);
    EXPECT_NEAR(y[0] / x[0], first, 1e-7 * first);
}

TEST(WindowedFilter, HasAnEntryForEachResponse)
{
    const Array x = noise(200);
    const ComplexArray z = joined(x, noise(200, 2));
    Array y(200);
    ComplexArray w(200);
    const auto expectBoth = [&](int type) {
        const Order order{type, 1000, 100, 300, 21, kDolphChebyshev, 50};
        EXPECT_EQ(y, filtered(x, order));
        EXPECT_EQ(real(w), real(filtered(z, order)));
        EXPECT_EQ(imaginary(w), imaginary(filtered(z, order)));
    };
    backend::AALFunc481(x.data(), 200, 21, 1000, 100, kDolphChebyshev, 50, y.data());
    backend::AALFunc486(z.data(), 200, 21, 1000, 100, kDolphChebyshev, 50, w.data());
    expectBoth(kLowPass);
    backend::AALFunc482(x.data(), 200, 21, 1000, 100, kDolphChebyshev, 50, y.data());
    backend::AALFunc487(z.data(), 200, 21, 1000, 100, kDolphChebyshev, 50, w.data());
    expectBoth(kHighPass);
    backend::AALFunc483(x.data(), 200, 21, 1000, 100, 300, kDolphChebyshev, 50, y.data());
    backend::AALFunc488(z.data(), 200, 21, 1000, 100, 300, kDolphChebyshev, 50, w.data());
    expectBoth(kBandPass);
    backend::AALFunc484(x.data(), 200, 21, 1000, 100, 300, kDolphChebyshev, 50, y.data());
    backend::AALFunc489(z.data(), 200, 21, 1000, 100, 300, kDolphChebyshev, 50, w.data());
    expectBoth(kBandStop);
}

TEST(WindowedFilter, OfManyTapsIsWithinAMillionMillionthOfTheDirectSums)
{
    double largest = 0;
    for (int taps : {192, 193, 777, 1025, 4001})
        for (std::size_t n : {2777u, 16384u, 20000u})
            for (int type : {kLowPass, kBandPass}) {
                const double distance = distanceFromDirectSums(noise(n, 3), {type, 1, 0.1, 0.3, taps, 5});
                EXPECT_LT(distance, 1e-12) << taps << " taps, " << n << " samples";
                largest = std::max(largest, distance);
            }
    std::printf("long filters: largest distance from the direct sums %.1e sum |h| max |x|\n", largest);
    EXPECT_GT(largest, 0) << "none went by way of transforms";
}

TEST(WindowedFilter, OfFewTapsOrSamplesIsTheDirectSums)
{
    EXPECT_EQ(distanceFromDirectSums(noise(20000), {kLowPass, 1, 0.1, 0, 191, 1}), 0);
    EXPECT_EQ(distanceFromDirectSums(noise(3000), {kLowPass, 1, 0.1, 0, 900, 1}), 0);
}

TEST(WindowedFilter, OfManyTapsKeepsItsAccuracyAtTheEndsOfTheRange)
{
    for (double scale : {1e305, 1e280, 1e240, 1e-240, 1e-280, 1e-290}) {
        Array x = noise(5000);
        for (double& value : x)
            value *= scale;
        EXPECT_LT(distanceFromDirectSums(x, kLong), 1e-12) << scale;
    }
}

TEST(WindowedFilter, OfManyTapsHasASilentSignalStaySilent)
{
    EXPECT_EQ(filtered(Array(5000), kLong), Array(5000));
}

TEST(WindowedFilter, FiltersAComplexSignalAsItsParts)
{
    const Array re = noise(9000, 2), im = noise(9000, 3);
    for (const Order& order : {kShort, kLong}) {
        const ComplexArray z = filtered(joined(re, im), order);
        EXPECT_EQ(real(z), filtered(re, order));
        EXPECT_EQ(imaginary(z), filtered(im, order));
    }
}

TEST(WindowedFilter, WorksInPlace)
{
    for (const Order& order : {kShort, kLong}) {
        Array x = noise(9000);
        ComplexArray z = joined(x, noise(9000, 2));
        const Array y = filtered(x, order);
        ASSERT_EQ(filter(x.data(), 9000, order, x.data()), Status::Success);
        EXPECT_EQ(x, y);
        ASSERT_EQ(filter(z.data(), 9000, order, z.data()), Status::Success);
        EXPECT_EQ(real(z), y);
    }
}

TEST(WindowedFilter, LetsNaNThroughToTheOutputsThatItReachesAndNoOthers)
{
    for (const Order& order : {kShort, kLong})
        for (double special : {std::numeric_limits<double>::quiet_NaN(), std::numeric_limits<double>::infinity()}) {
            Array x = noise(12000);
            x[6000] = special;
            const Array y = filtered(x, order);
            for (int i = 0; i < 12000; ++i)
                EXPECT_EQ(std::isfinite(y[static_cast<std::size_t>(i)]), i < 6000 || i >= 6000 + order.taps) << i;
        }
}

TEST(WindowedFilter, RefusesBadArgumentsInTheirOrder)
{
    const Array x(5);
    Array y(5, 7.0);
    Order order{kHighPass, 1, 0.7, 0, 4};
    EXPECT_EQ(filter(static_cast<const double*>(nullptr), 0, order, y.data()), Status::CountNotPositive);
    EXPECT_EQ(filter(static_cast<const double*>(nullptr), 5, order, y.data()), Status::ArraySize);
    EXPECT_EQ(filter(x.data(), 5, order, nullptr), Status::ArraySize);
    EXPECT_EQ(filter(x.data(), 5, order, y.data()), Status::EvenSize);
    order.taps = 5;
    EXPECT_EQ(filter(x.data(), 5, order, y.data()), Status::Cutoff);
    EXPECT_EQ(filter(joined(x, x).data(), 5, order, nullptr), Status::ArraySize);
    EXPECT_EQ(y, Array(5, 7.0));
}

} // namespace
} // namespace quordsp::test
