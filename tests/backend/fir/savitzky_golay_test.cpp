// Savitzky-Golay coefficients and filters.
#include "backend/support/fir.h"
#include "data/backend/fir_vectors.inc"

#include <gmock/gmock.h>

#include <algorithm>
#include <cstdio>
#include <limits>
#include <numeric>

namespace quordsp::test {
namespace {

using testing::DoubleNear;
using testing::Pointwise;
using vectors::kNoise;

struct Coefficients {
    Status status;
    Array filters, diffFilters;
};

Coefficients coefficients(int order, int side, const Array& weights = {})
{
    const auto frame = static_cast<std::size_t>(2 * side + 1);
    Coefficients result{{}, Array(frame * frame), Array(static_cast<std::size_t>(order + 1) * frame)};
    result.status = backend::AALFunc355(order, side, weights.empty() ? nullptr : weights.data(), 1,
                                        result.filters.data(), result.diffFilters.data());
    return result;
}

Array smoothed(const Array& x, int order, int side, const double* weights = nullptr)
{
    Array y(x.size());
    if (backend::AALFunc356(x.data(), countOf(x), order, side, weights, y.data()) != Status::Success)
        y.clear();
    return y;
}

TEST(SavitzkyGolay, OfTheSecondOrderOverFivePointsHasTheKnownCoefficients)
{
    Array filters(25), diffFilters(15);
    ASSERT_EQ(backend::AALFunc355(2, 2, nullptr, 1, filters.data(), diffFilters.data()), Status::Success);
    for (double& value : filters)
        value *= 35;
    EXPECT_THAT(filters, Pointwise(DoubleNear(1e-13), {31, 9,  -3, -5, 3,  9,  13, 12, 6,  -5, -3, 12, 17,
                                                       12, -3, -5, 6,  12, 13, 9,  3,  -5, -3, 9,  31}));
    EXPECT_THAT(diffFilters,
                Pointwise(DoubleNear(1e-15), {-3 / 35., 12 / 35., 17 / 35., 12 / 35., -3 / 35., -.2, -.1, 0., .1, .2,
                                              2 / 14., -1 / 14., -2 / 14., -1 / 14., 2 / 14.}));
}

TEST(SavitzkyGolay, AgreesWithTheNormalEquationsSolvedWithManyDigits)
{
    double largest = 0;
    for (const auto& [order, side, weights, filters, diffFilters] : vectors::kFits) {
        const Coefficients found = coefficients(order, side, weights);
        ASSERT_EQ(found.status, Status::Success) << order;
        EXPECT_THAT(found.filters, Pointwise(DoubleNear(1e-15), filters)) << order << ' ' << side;
        const double peak = *std::max_element(diffFilters.begin(), diffFilters.end());
        EXPECT_THAT(found.diffFilters, Pointwise(DoubleNear(1e-15 * peak), diffFilters)) << order << ' ' << side;
        for (std::size_t i = 0; i < filters.size(); ++i)
            largest = std::max(largest, std::abs(found.filters[i] - filters[i]));
    }
    std::printf("local fits: largest error of a coefficient %.1e\n", largest);
}

TEST(SavitzkyGolay, AgreesWithSciPyOnASignal)
{
    for (const auto& [order, side, expected] : vectors::kSmoothed)
        EXPECT_THAT(smoothed(kNoise, order, side), Pointwise(DoubleNear(1e-11), expected)) << order << ' ' << side;
}

TEST(SavitzkyGolay, LeavesAPolynomialOfItsOrderAsItIs)
{
    Array x;
    for (int i = 0; i < 50; ++i) {
        const double u = (i - 20) / 10.0;
        x.push_back(1 - 2 * u + 0.5 * u * u - u * u * u);
    }
    const Array weights{1, 0, 3, 0.5, 2, 2, 0, 0, 1, 5, 1};
    EXPECT_THAT(smoothed(x, 3, 5), Pointwise(DoubleNear(1e-13), x));
    EXPECT_THAT(smoothed(x, 4, 5, weights.data()), Pointwise(DoubleNear(1e-12), x));
}

TEST(SavitzkyGolay, HasTheDerivativesOfAPolynomialInItsDiffFilters)
{
    const Coefficients found = coefficients(4, 3);
    double factorial = 1;
    for (std::size_t p = 0; p <= 4; ++p) {
        factorial *= p == 0 ? 1 : static_cast<double>(p);
        double derivative = 0;
        for (std::size_t m = 0; m < 7; ++m) {
            const double u = static_cast<double>(m) - 3;
            derivative +=
                factorial * found.diffFilters[p * 7 + m] * (1 + 2 * u + 3 * u * u + 4 * u * u * u + 5 * u * u * u * u);
        }
        constexpr double kExpected[] = {1, 2, 6, 24, 120};
        EXPECT_NEAR(derivative, kExpected[p], 1e-11);
    }
}

TEST(SavitzkyGolay, InterpolatesWhenThereAreNoMorePointsThanCoefficients)
{
    for (int side : {0, 1, 4, 10}) {
        const auto frame = static_cast<std::size_t>(2 * side + 1);
        const Array filters = coefficients(2 * side, side).filters;
        for (std::size_t i = 0; i < filters.size(); ++i)
            EXPECT_NEAR(filters[i], i % (frame + 1) == 0 ? 1 : 0, 1e-15) << side;
    }
}

TEST(SavitzkyGolay, RefusesWhatWouldTakeHours)
{
    const Array x(20001, 1.0);
    Array y(x.size(), 7.0);
    EXPECT_EQ(backend::AALFunc356(x.data(), static_cast<std::int64_t>(x.size()), 10000, 10000, nullptr, y.data()),
              Status::OutOfMemory);
    EXPECT_EQ(y, Array(x.size(), 7.0));
}

TEST(SavitzkyGolay, TakesNoWeightsForEqualOnes)
{
    const Array ones(9, 1.0), fives(9, 5.0);
    EXPECT_EQ(coefficients(3, 4).filters, coefficients(3, 4, ones).filters);
    EXPECT_THAT(coefficients(3, 4).filters, Pointwise(DoubleNear(1e-15), coefficients(3, 4, fives).filters));
    EXPECT_EQ(smoothed(kNoise, 3, 4), smoothed(kNoise, 3, 4, ones.data()));
}

// By the rows of the matrix, as the filter is defined.
TEST(SavitzkyGolay, FiltersWithTheRowsOfItsMatrix)
{
    for (int side : {2, 29}) {
        const Array weights = [&] {
            Array values = noise(static_cast<std::size_t>(2 * side + 1), 9);
            for (double& value : values)
                value += 1.5;
            return values;
        }();
        const Array matrix = coefficients(3, side, weights).filters;
        const Array y = smoothed(kNoise, 3, side, weights.data());
        const std::ptrdiff_t n = countOf(kNoise), frame = 2 * side + 1;
        for (std::ptrdiff_t i = 0; i < n; ++i) {
            const std::ptrdiff_t first = std::clamp<std::ptrdiff_t>(i - side, 0, n - frame), row = i - first;
            const double expected = std::inner_product(matrix.begin() + row * frame, matrix.begin() + (row + 1) * frame,
                                                       kNoise.begin() + first, 0.0);
            EXPECT_NEAR(y[static_cast<std::size_t>(i)], expected, 1e-14) << side << ' ' << i;
        }
    }
}

TEST(SavitzkyGolay, OfALongFrameAgreesWithTheMiddleRowOfItsMatrix)
{
    const Array x = noise(7000), matrix = coefficients(2, 250).filters, y = smoothed(x, 2, 250);
    for (std::ptrdiff_t i : {250, 251, 1500, 6749}) {
        const double expected =
            std::inner_product(matrix.begin() + 250 * 501, matrix.begin() + 251 * 501, x.begin() + i - 250, 0.0);
        EXPECT_NEAR(y[static_cast<std::size_t>(i)], expected, 1e-14) << i;
    }
}

TEST(SavitzkyGolay, FiltersAComplexSignalAsItsPartsAlsoInPlace)
{
    const Array other(kNoise.rbegin(), kNoise.rend());
    ComplexArray z = joined(kNoise, other);
    ASSERT_EQ(backend::AALFunc357(z.data(), countOf(z), 2, 6, nullptr, z.data()), Status::Success);
    EXPECT_EQ(real(z), smoothed(kNoise, 2, 6));
    EXPECT_EQ(imaginary(z), smoothed(other, 2, 6));
    Array x = kNoise;
    ASSERT_EQ(backend::AALFunc356(x.data(), countOf(x), 2, 6, nullptr, x.data()), Status::Success);
    EXPECT_EQ(x, smoothed(kNoise, 2, 6));
}

TEST(SavitzkyGolay, TakesASignalOfOneFrame)
{
    const Array x{1, 5, 2, 8, 3};
    EXPECT_THAT(smoothed(x, 4, 2), Pointwise(DoubleNear(1e-14), x));
    EXPECT_THAT(smoothed(x, 0, 2), Pointwise(DoubleNear(1e-14), Array(5, 3.8)));
    EXPECT_EQ(smoothed(x, 0, 0), x);
}

TEST(SavitzkyGolay, LetsNaNThroughToTheFramesThatItIsIn)
{
    Array x = kNoise;
    x[30] = std::numeric_limits<double>::quiet_NaN();
    const Array y = smoothed(x, 2, 4);
    for (int i = 0; i < 60; ++i)
        EXPECT_EQ(std::isnan(y[static_cast<std::size_t>(i)]), i >= 26 && i <= 34) << i;
}

TEST(SavitzkyGolay, ComputesDiffFiltersOnlyWhenAsked)
{
    Array filters(25), diffFilters(15, 7.0);
    ASSERT_EQ(backend::AALFunc355(2, 2, nullptr, 0, filters.data(), diffFilters.data()), Status::Success);
    EXPECT_EQ(diffFilters, Array(15, 7.0));
    EXPECT_EQ(backend::AALFunc355(2, 2, nullptr, 0, filters.data(), nullptr), Status::Success);
    EXPECT_EQ(backend::AALFunc355(2, 2, nullptr, 1, filters.data(), nullptr), Status::ArraySize);
}

TEST(SavitzkyGolay, RefusesBadArgumentsInTheirOrder)
{
    const double nan = std::numeric_limits<double>::quiet_NaN(), infinity = std::numeric_limits<double>::infinity();
    const Array x(5);
    const auto check = [&](int order, int side, const double* weights, std::int64_t n) {
        Array filters(9, 7.0), diffFilters(9, 7.0), y(5, 7.0);
        const Status filtering = backend::AALFunc356(x.data(), n, order, side, weights, y.data());
        EXPECT_EQ(y, Array(5, 7.0));
        if (n == 5) {
            EXPECT_EQ(backend::AALFunc355(order, side, weights, 1, filters.data(), diffFilters.data()), filtering);
            EXPECT_EQ(filters, Array(9, 7.0));
            EXPECT_EQ(diffFilters, Array(9, 7.0));
        }
        return filtering;
    };
    EXPECT_EQ(check(-1, -1, nullptr, 0), Status::CountNotPositive);
    EXPECT_EQ(check(-1, -1, nullptr, 5), Status::OrderNegative);
    EXPECT_EQ(check(0, -1, nullptr, 5), Status::CountNegative);
    EXPECT_EQ(check(3, 1, nullptr, 5), Status::TooFewPointsForOrder);
    EXPECT_EQ(check(3, 1, nullptr, 2), Status::TooFewPointsForOrder);
    EXPECT_EQ(check(2, 1, nullptr, 2), Status::ArraySize);
    for (const Array& weights :
         {Array{1, 0, 1}, Array{1, nan, 1}, Array{1, infinity, 1}, Array{1, -1, 1}, Array{1, 1e-40, 1}})
        EXPECT_EQ(check(2, 1, weights.data(), 5), Status::Singular) << weights[1];
    Array y(5, 7.0);
    EXPECT_EQ(backend::AALFunc356(nullptr, 5, -1, 0, nullptr, y.data()), Status::ArraySize);
    EXPECT_EQ(backend::AALFunc356(x.data(), 5, -1, 0, nullptr, nullptr), Status::ArraySize);
    EXPECT_EQ(backend::AALFunc357(nullptr, 5, -1, 0, nullptr, nullptr), Status::ArraySize);
    EXPECT_EQ(backend::AALFunc355(-1, 0, nullptr, 0, nullptr, nullptr), Status::ArraySize);
    EXPECT_EQ(backend::AALFunc356(x.data(), 5, 0, std::numeric_limits<int>::max(), nullptr, y.data()),
              Status::ArraySize);
}

} // namespace
} // namespace quordsp::test
