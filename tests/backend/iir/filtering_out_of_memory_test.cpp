// Allocation n of the filters that take coefficients, and of the complex ones, fails, for every n.
#include "backend/support/complex.h"
#include "backend/support/failing_new.h"
#include "backend/support/iir.h"

namespace quordsp::test {
namespace {

using backend::Complex;
using backend::failEveryAllocation;

bool isStill(const Complex& sample, double value)
{
    return sample.real == value && sample.imaginary == value;
}

TEST(FilteringOutOfMemory, IsReportedByTheComplexOneCallFilters)
{
    Complex x[] = {{1, 1}, {2, 2}}, y[] = {{7, 7}, {7, 7}};
    const auto call = [&] { return backend::AALFunc452(x, 2, 1, 0.1, 0.2, 5, y); };
    EXPECT_GT(failEveryAllocation(call, [&] { return isStill(y[0], 7) && isStill(y[1], 7); }), 4);
}

TEST(FilteringOutOfMemory, IsReportedInPlaceWithTheInputUntouched)
{
    Complex x[] = {{1, 1}, {2, 2}};
    const auto call = [&] { return backend::AALFunc450(x, 2, 1, 0.1, 3, nullptr); };
    EXPECT_GT(failEveryAllocation(call, [&] { return isStill(x[0], 1) && isStill(x[1], 2); }), 4);
}

TEST(FilteringOutOfMemory, IsReportedByTheComplexCascadeThatStartsFromZeros)
{
    const Filter filter = cascade(LowPass, 3, 0.1, 0);
    Complex x{1, 1}, y{7, 7};
    const auto call = [&] { return backend::AALFunc466(&x, 1, filter.get(), nullptr, &y); };
    EXPECT_EQ(failEveryAllocation(call, [&] { return isStill(y, 7); }), 1);
}

TEST(FilteringOutOfMemory, CannotHappenToACascadeWithAState)
{
    const Filter filter = cascade(LowPass, 3, 0.1, 0);
    Complex x{1, 1}, elements[4] = {};
    backend::ComplexState state{4, elements};
    const auto complex = [&] { return backend::AALFunc466(&x, 1, filter.get(), &state, &x); };
    EXPECT_EQ(failEveryAllocation(complex, [] { return true; }), 0);
    double y = 1;
    const auto real = [&] { return backend::AALFunc91(&y, 1, filter.get(), &y); };
    EXPECT_EQ(failEveryAllocation(real, [] { return true; }), 0);
}

TEST(FilteringOutOfMemory, IsReportedByTheComplexDirectForm)
{
    const double a[] = {1, 0.5}, b[] = {1, 0.5};
    Complex x{1, 1}, y{7, 7}, ya{8, 8}, xb{9, 9};
    const auto call = [&] { return backend::AALFunc354(&x, 1, a, &ya, 2, b, &xb, 2, &y); };
    EXPECT_GT(failEveryAllocation(call, [&] { return isStill(y, 7) && isStill(ya, 8) && isStill(xb, 9); }), 1);
}

TEST(FilteringOutOfMemory, IsReportedByTheZeroPhaseFilterBeforeItsFirstPass)
{
    const double a[] = {1, 0.5}, b[] = {1, 0.5};
    double x[] = {1, 2};
    const auto call = [&] { return backend::AALFunc385(x, 2, a, 2, b, 2, x); };
    EXPECT_GT(failEveryAllocation(call, [&] { return x[0] == 1 && x[1] == 2; }), 1);
}

} // namespace
} // namespace quordsp::test
