// FIRFiltering, real and complex.
#include "backend/support/fir.h"
#include "data/backend/fir_vectors.inc"

#include <gmock/gmock.h>

#include <algorithm>
#include <limits>

namespace quordsp::test {
namespace {

using testing::DoubleNear;
using testing::Pointwise;
using vectors::kNoise;

constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();

// The sums as they are written, in double precision.
Array directSums(const Array& x, const Array& h)
{
    Array y;
    for (std::size_t i = 0; i < x.size(); ++i) {
        double sum = h[0] * x[i];
        for (std::size_t j = 1; j < h.size(); ++j)
            sum += h[j] * (j <= i ? x[i - j] : 0.0);
        y.push_back(sum);
    }
    return y;
}

TEST(FirFilter, AgreesWithSciPyFromAnyState)
{
    for (const auto& [h, past, expected, after] : vectors::kFiltered) {
        Array state = past, y(kNoise.size());
        ASSERT_EQ(filter(kNoise.data(), countOf(y), h, state.data(), y.data()), Status::Success);
        EXPECT_THAT(y, Pointwise(DoubleNear(1e-13), expected));
        EXPECT_EQ(state, after);
    }
}

TEST(FirFilter, AddsFromTheNewestInputToTheOldest)
{
    for (std::size_t taps : {1u, 2u, 3u, 7u, 48u, 49u, 300u})
        for (std::size_t n : {1u, 2u, 7u, 8u, 47u, 48u, 49u, 97u, 1600u}) {
            const Array x = noise(n, 5), h = noise(taps, 9);
            EXPECT_EQ(filtered(x, h), directSums(x, h)) << taps << " taps, " << n << " samples";
        }
}

TEST(FirFilter, FiltersAComplexSignalAsItsParts)
{
    for (std::size_t taps : {1u, 6u, 50u, 333u}) {
        const Array re = noise(2000, 2), im = noise(2000, 3), h = noise(taps, 4);
        Array reState = noise(taps - 1, 5), imState = noise(taps - 1, 6), y(2000);
        ComplexArray state = joined(reState, imState), z(2000);
        ASSERT_EQ(filter(joined(re, im).data(), 2000, h, state.data(), z.data()), Status::Success);
        filter(re.data(), 2000, h, reState.data(), y.data());
        EXPECT_EQ(real(z), y);
        EXPECT_EQ(real(state), reState);
        filter(im.data(), 2000, h, imState.data(), y.data());
        EXPECT_EQ(imaginary(z), y);
        EXPECT_EQ(imaginary(state), imState);
    }
}

// Blocks of the given lengths, over and over.
template <class Sample>
std::vector<Sample> byBlocks(const std::vector<Sample>& x, const Array& h, std::vector<Sample>& state,
                             std::initializer_list<std::int64_t> lengths)
{
    std::vector<Sample> y(x.size());
    std::int64_t done = 0;
    while (done < countOf(x))
        for (std::int64_t length : lengths) {
            length = std::min(length, countOf(x) - done);
            if (length > 0) {
                EXPECT_EQ(filter(x.data() + done, length, h, state.data(), y.data() + done), Status::Success);
            }
            done += length;
        }
    return y;
}

TEST(FirFilter, GivesTheSameBitsHoweverTheSignalIsCut)
{
    const std::initializer_list<std::int64_t> splits[] = {{1}, {2, 3}, {7, 64, 1, 500}, {48}, {1535, 1}, {4000}, {333}};
    const Array x = noise(6000, 7);
    for (std::size_t taps : {1u, 2u, 33u, 700u}) {
        const Array h = noise(taps, 8), past = noise(taps - 1, 9);
        Array wholeState = past;
        const Array whole = byBlocks(x, h, wholeState, {6000});
        for (const auto& split : splits) {
            Array state = past;
            EXPECT_EQ(byBlocks(x, h, state, split), whole);
            EXPECT_EQ(state, wholeState);
        }
    }
}

TEST(FirFilter, GivesTheSameBitsHoweverAComplexSignalIsCut)
{
    const ComplexArray x = joined(noise(3000, 7), noise(3000, 8));
    const Array h = noise(57, 8);
    ComplexArray wholeState(56), state(56);
    const ComplexArray whole = byBlocks(x, h, wholeState, {3000}), cut = byBlocks(x, h, state, {5, 1, 299, 30});
    EXPECT_EQ(real(cut), real(whole));
    EXPECT_EQ(imaginary(cut), imaginary(whole));
    EXPECT_EQ(real(state), real(wholeState));
}

TEST(FirFilter, WorksInPlace)
{
    for (std::size_t taps : {1u, 20u, 2000u}) {
        const Array x = noise(5000), h = noise(taps, 2);
        Array y = x;
        ASSERT_EQ(filter(y.data(), countOf(y), h, nullptr, y.data()), Status::Success);
        EXPECT_EQ(y, filtered(x, h));
    }
}

TEST(FirFilter, StartsFromZerosWithoutAState)
{
    const Array x = noise(100), h = noise(30, 2);
    Array zeros(29), y(100);
    filter(x.data(), 100, h, zeros.data(), y.data());
    EXPECT_EQ(y, filtered(x, h));
}

TEST(FirFilter, WithoutTapsCopies)
{
    const Array x = noise(50);
    Array y(50), state(3, 7.0);
    ASSERT_EQ(backend::AALFunc352(x.data(), 50, nullptr, state.data(), 0, y.data()), Status::Success);
    EXPECT_EQ(y, x);
    ComplexArray z(50);
    ASSERT_EQ(backend::AALFunc353(joined(x, y).data(), 50, nullptr, nullptr, -4, z.data()), Status::Success);
    EXPECT_EQ(real(z), x);
    EXPECT_EQ(state, Array(3, 7.0));
    ASSERT_EQ(backend::AALFunc352(y.data(), 50, nullptr, nullptr, 0, y.data()), Status::Success);
    EXPECT_EQ(y, x);
}

TEST(FirFilter, IsLinear)
{
    const Array a = noise(500, 2), b = noise(500, 3), h = noise(40, 4);
    Array mixture(500);
    for (std::size_t i = 0; i < 500; ++i)
        mixture[i] = 3 * a[i] - 0.5 * b[i];
    const Array ya = filtered(a, h), yb = filtered(b, h), y = filtered(mixture, h);
    for (std::size_t i = 0; i < 500; ++i)
        EXPECT_NEAR(y[i], 3 * ya[i] - 0.5 * yb[i], 1e-13);
}

TEST(FirFilter, LetsNaNAndInfinityThroughToTheOutputsThatTheyReach)
{
    for (double special : {kNaN, kInfinity, -kInfinity}) {
        Array x = noise(200);
        const Array h = noise(20, 2), before = filtered(x, h);
        x[100] = special;
        const Array y = filtered(x, h);
        for (std::size_t i = 0; i < 200; ++i)
            if (i < 100 || i >= 120)
                EXPECT_EQ(y[i], before[i]);
            else
                EXPECT_FALSE(std::isfinite(y[i]));
    }
}

TEST(FirFilter, TakesSubnormalNumbersForZeros)
{
    const Array x{1e-310, 2, 3e-308, 1e-310}, h{0.5, 1e-309};
    EXPECT_EQ(filtered(x, h), (Array{0, 1, 0, 0}));
    const volatile double tiny = std::numeric_limits<double>::min();
    EXPECT_GT(tiny / 2, 0) << "the caller's own arithmetic still has them";
}

TEST(FirFilter, RefusesBadArgumentsAndWritesNothing)
{
    const Array x(5), h(2, 1.0);
    Array y(5, 7.0), state(1, 8.0);
    const auto call = [&](const double* in, std::int64_t n, double* out) {
        return filter(in, n, h, state.data(), out);
    };
    EXPECT_EQ(call(nullptr, 0, nullptr), Status::CountNotPositive);
    EXPECT_EQ(call(x.data(), -1, y.data()), Status::CountNotPositive);
    EXPECT_EQ(call(nullptr, 5, y.data()), Status::ArraySize);
    EXPECT_EQ(call(x.data(), 5, nullptr), Status::ArraySize);
    EXPECT_EQ(backend::AALFunc352(x.data(), 5, nullptr, state.data(), 2, y.data()), Status::ArraySize);
    EXPECT_EQ(y, Array(5, 7.0));
    EXPECT_EQ(state, Array(1, 8.0));
}

TEST(FirFilter, RefusesTheSameForComplexSignals)
{
    const ComplexArray x(5);
    const Array h(2, 1.0);
    ComplexArray y(5, {7, 7});
    EXPECT_EQ(filter(x.data(), 0, h, nullptr, y.data()), Status::CountNotPositive);
    EXPECT_EQ(filter(static_cast<const Complex*>(nullptr), 5, h, nullptr, y.data()), Status::ArraySize);
    EXPECT_EQ(filter(x.data(), 5, h, nullptr, static_cast<Complex*>(nullptr)), Status::ArraySize);
    EXPECT_EQ(backend::AALFunc353(x.data(), 5, nullptr, nullptr, 2, y.data()), Status::ArraySize);
    EXPECT_EQ(real(y), Array(5, 7.0));
}

} // namespace
} // namespace quordsp::test
