#include "polynomial.h"

#include <algorithm>
#include <cmath>
#include <numbers>

#include <gtest/gtest.h>

namespace quordsp::cli {
namespace {

using Complex = std::complex<double>;

// The coefficients of the product of z - zero, in powers of 1/z. The zeros are real or in conjugate pairs.
std::vector<double> withZeros(const std::vector<Complex>& zeros)
{
    std::vector<Complex> product{1};
    for (const Complex zero : zeros) {
        product.emplace_back(0);
        for (std::size_t k = product.size() - 1; k > 0; --k)
            product[k] -= zero * product[k - 1];
    }
    std::vector<double> real;
    for (const Complex c : product)
        real.push_back(c.real());
    return real;
}

void expectZeros(const std::vector<Complex>& wanted, double tolerance)
{
    const std::vector<Complex> found = zerosOf(withZeros(wanted));
    ASSERT_EQ(found.size(), wanted.size());
    for (const Complex zero : wanted) {
        const auto distance = [zero](Complex other) { return std::abs(other - zero); };
        EXPECT_LT(distance(*std::ranges::min_element(found, {}, distance)), tolerance) << zero;
    }
}

TEST(Zeros, AreThoseThatThePolynomialWasMadeOf)
{
    expectZeros({0.5}, 1e-15);
    expectZeros({{0.3, 0.4}, {0.3, -0.4}}, 1e-15);
    expectZeros({0.9, -0.2}, 1e-15);
    expectZeros({{0.99, 0.05}, {0.99, -0.05}, {0.98, 0.11}, {0.98, -0.11}}, 1e-11);
    expectZeros({2, -3, 0.5, {0, 1}, {0, -1}}, 1e-13);
}

TEST(Zeros, ThatAreFarApartInSizeAreBothExact)
{
    const std::vector<Complex> zeros = zerosOf(std::vector{1.0, -1e8, 1.0}); // 1e8 and 1e-8, both but for 1e-24
    EXPECT_DOUBLE_EQ(zeros[0].real(), 1e8);
    EXPECT_DOUBLE_EQ(zeros[1].real(), 1e-8);
}

TEST(Zeros, OfMultiplicityFourKeepAQuarterOfTheDigits)
{
    expectZeros({0.5, 0.5, 0.5, 0.5}, 1e-3);
}

TEST(Zeros, AtTheOriginAreLeftOut)
{
    EXPECT_TRUE(zerosOf(std::vector{1.0, 0.0, 0.0}).empty());
    EXPECT_EQ(zerosOf(std::vector{1.0, -0.5, 0.0}), std::vector<Complex>{0.5});
    EXPECT_TRUE(zerosOf(std::vector{3.0}).empty());
}

TEST(Zeros, OfHighDegreeAreFoundToo)
{
    std::vector<double> c(41); // z^40 - 1
    c.front() = 1;
    c.back() = -1;
    const std::vector<Complex> zeros = zerosOf(c);
    ASSERT_EQ(zeros.size(), 40);
    for (const Complex zero : zeros) {
        const double turns = std::arg(zero) / (2 * std::numbers::pi) * 40;
        EXPECT_NEAR(turns, std::round(turns), 1e-12);
        EXPECT_NEAR(std::abs(zero), 1, 1e-14);
    }
}

} // namespace
} // namespace quordsp::cli
