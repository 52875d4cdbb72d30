// IIR filtering in direct form with the caller's state arrays.
#include "backend/support/iir.h"
#include "data/backend/iir_vectors.inc"
#include "reference/direct_form.h"

#include <gmock/gmock.h>

#include <cmath>

namespace quordsp::test {
namespace {

using testing::DoubleNear;
using testing::ElementsAre;
using testing::Pointwise;
using vectors::kSignal;

int count(const std::vector<double>& values)
{
    return static_cast<int>(values.size());
}

struct State {
    std::vector<double> ya, xb;
};

// In place; the state may be absent.
std::vector<double> filtered(const std::vector<double>& a, const std::vector<double>& b, std::vector<double> x,
                             State* state = nullptr)
{
    EXPECT_EQ(backend::AALFunc92(x.data(), count(x), a.data(), state ? state->ya.data() : nullptr, count(a), b.data(),
                                 state ? state->xb.data() : nullptr, count(b), x.data()),
              Status::Success);
    return x;
}

// The last n values of past followed by next.
std::vector<double> last(std::size_t n, std::vector<double> past, const std::vector<double>& next)
{
    past.insert(past.end(), next.begin(), next.end());
    return {past.end() - static_cast<std::ptrdiff_t>(n), past.end()};
}

TEST(IirFiltering, ContinuesFromTheStateAsSciPyDoes)
{
    for (const auto& [a, b, ya, xb, y] : vectors::kContinued) {
        State state{ya, xb};
        EXPECT_THAT(filtered(a, b, kSignal, &state), Pointwise(DoubleNear(1e-12), y));
    }
}

TEST(IirFiltering, ReturnsTheLastOutputsAndInputsNewestLast)
{
    for (const auto& [a, b, ya, xb, ignored] : vectors::kContinued)
        for (std::size_t n : {1u, 2u, 3u, 50u}) {
            const std::vector<double> x{kSignal.begin(), kSignal.begin() + static_cast<std::ptrdiff_t>(n)};
            State state{ya, xb};
            const std::vector<double> y = filtered(a, b, x, &state);
            EXPECT_EQ(state.ya, last(ya.size(), ya, y)) << n;
            EXPECT_EQ(state.xb, last(xb.size(), xb, x)) << n;
        }
}

TEST(IirFiltering, GivesTheSameBitsInBlocksAsInOneCall)
{
    for (const auto& [a, b, ya, xb, ignored] : vectors::kContinued) {
        State whole{ya, xb}, parts{ya, xb};
        const std::vector<double> wanted = filtered(a, b, kSignal, &whole);
        std::vector<double> joined;
        for (double sample : kSignal)
            joined.push_back(filtered(a, b, {sample}, &parts).front());
        EXPECT_EQ(joined, wanted);
        EXPECT_EQ(parts.ya, whole.ya);
        EXPECT_EQ(parts.xb, whole.xb);
    }
}

TEST(IirFiltering, FollowsTheDifferenceEquationOverManyBlocks)
{
    std::vector<double> x(4000);
    for (std::size_t i = 0; i < x.size(); ++i)
        x[i] = std::cos(0.3 * static_cast<double>(i * i % 1000));
    const DirectCoefficients filter = direct(BandPass, 3, 0.1, 0.3);
    EXPECT_THAT(filtered(filter.a, filter.b, x),
                Pointwise(DoubleNear(1e-12), reference::directForm(filter.a, filter.b, x)));
}

TEST(IirFiltering, TakesMoreCoefficientsThanItHasSamples)
{
    const std::vector<double> b{1, 2, 3, 4, 5, 6, 7}, a{1, 0.5, 0.25, 0.125, 0.0625};
    for (std::size_t n : {1u, 2u, 4u}) {
        const std::vector<double> x{kSignal.begin(), kSignal.begin() + static_cast<std::ptrdiff_t>(n)};
        EXPECT_THAT(filtered(a, b, x), Pointwise(DoubleNear(1e-13), reference::directForm(a, b, x)));
    }
}

TEST(IirFiltering, TakesAbsentStateAsZeros)
{
    State zeros{{0, 0}, {0}};
    EXPECT_EQ(filtered({2, -1, 0.5}, {1, 0.5}, kSignal), filtered({2, -1, 0.5}, {1, 0.5}, kSignal, &zeros));
}

TEST(IirFiltering, TakesOneStateWithoutTheOther)
{
    double xb[] = {3};
    double y[2], x[] = {1, 1};
    const double a[] = {1, -0.5}, b[] = {1, 1};
    ASSERT_EQ(backend::AALFunc92(x, 2, a, nullptr, 2, b, xb, 2, y), Status::Success);
    EXPECT_THAT(y, ElementsAre(4, 4)); // 1 + 3, 1 + 1 + 0.5 * 4
    EXPECT_EQ(xb[0], 1);
}

TEST(IirFiltering, IsAPlainFirFilterWithoutReverseCoefficients)
{
    EXPECT_THAT(filtered({}, {1, 10, 100}, {1, 2, 3, 4}), ElementsAre(1, 12, 123, 234));
    EXPECT_THAT(filtered({2}, {1, 10, 100}, {1, 2, 3, 4}), ElementsAre(0.5, 6, 61.5, 117));
}

TEST(IirFiltering, RunsOutOfItsStateWithoutForwardCoefficients)
{
    State state{{4}, {}};
    EXPECT_THAT(filtered({1, -0.5}, {}, {9, 9, 9}, &state), ElementsAre(2, 1, 0.5));
}

TEST(IirFiltering, CopiesWithoutAnyCoefficients)
{
    std::vector<double> x = {1, -0.0, NAN, 5e-324}, y(4, 7.0);
    for (int none : {0, -1}) {
        ASSERT_EQ(backend::AALFunc92(x.data(), 4, nullptr, nullptr, none, nullptr, nullptr, none, y.data()),
                  Status::Success);
        EXPECT_EQ(y[0], 1);
        EXPECT_TRUE(std::signbit(y[1]));
        EXPECT_TRUE(std::isnan(y[2]));
        EXPECT_EQ(y[3], 5e-324);
    }
}

TEST(IirFiltering, IsLinear)
{
    const std::vector<double> a{1, -0.9, 0.4}, b{0.5, 0.25};
    std::vector<double> doubled = kSignal;
    for (double& sample : doubled)
        sample *= 2;
    const std::vector<double> once = filtered(a, b, kSignal), twice = filtered(a, b, doubled);
    for (std::size_t i = 0; i < once.size(); ++i)
        EXPECT_EQ(twice[i], 2 * once[i]);
}

TEST(IirFiltering, ReportsTheFirstOfItsBadArgumentsAndWritesNothing)
{
    const double x[] = {1, 2}, good[] = {1, 0.5}, bad[] = {0, 0.5};
    double y[] = {7, 7}, ya[] = {8}, xb[] = {9};
    const auto call = [&](const double* in, int n, const double* a, const double* b, double* out) {
        return backend::AALFunc92(in, n, a, ya, 2, b, xb, 2, out);
    };
    EXPECT_EQ(call(nullptr, 0, nullptr, nullptr, nullptr), Status::CountNotPositive);
    EXPECT_EQ(call(x, -2, bad, good, y), Status::CountNotPositive);
    EXPECT_EQ(call(nullptr, 2, bad, good, y), Status::ArraySize);
    EXPECT_EQ(call(x, 2, nullptr, good, y), Status::ArraySize);
    EXPECT_EQ(call(x, 2, bad, nullptr, y), Status::ArraySize);
    EXPECT_EQ(call(x, 2, good, good, nullptr), Status::ArraySize);
    EXPECT_EQ(call(x, 2, bad, good, y), Status::DivisionByZero);
    EXPECT_THAT(y, ElementsAre(7, 7));
    EXPECT_EQ(ya[0], 8);
    EXPECT_EQ(xb[0], 9);
}

} // namespace
} // namespace quordsp::test
