// Allocation n fails, for every n: each entry answers "not enough memory", writes nothing and leaks nothing. Works
// where the module takes operator new from this program.
#include "backend/support/failing_new.h"
#include "backend/support/iir_families.h"

namespace quordsp::test {
namespace {

using backend::failEveryAllocation;

TEST(OutOfMemory, IsReportedByTheOneCallFilters)
{
    for (int type : kTypes) {
        const double x[] = {1, 2};
        double y[] = {7, 7};
        const auto call = [&] { return butterworth(type, x, 2, 1, 0.1, 0.2, 5, y); };
        EXPECT_GT(failEveryAllocation(call, [&] { return y[0] == 7 && y[1] == 7; }), 4);
    }
}

TEST(OutOfMemory, IsReportedByTheDirectCoefficients)
{
    std::vector<double> a(7, 7.0), b = a;
    const std::vector<double> before = a;
    const auto call = [&] { return backend::AALFunc19(BandPass, 3, 1, 0.1, 0.2, a.data(), 7, b.data(), 7); };
    EXPECT_GT(failEveryAllocation(call, [&] { return a == before && b == before; }), 4);
}

TEST(OutOfMemory, LeavesACascadeFilterAsItWas)
{
    const Filter filter = allocate(BandStop, 4);
    filter->reset = 0;
    const auto untouched = [&] { return filter->reset == 0 && filter->reverse[0] == 0 && filter->forward[0] == 0; };
    EXPECT_GT(failEveryAllocation([&] { return backend::AALFunc18(1, 0.1, 0.2, filter.get()); }, untouched), 4);
}

TEST(OutOfMemory, IsReportedByTheDesignsOfEveryFamily)
{
    for (Family family : kFamilies) {
        const Order order{family, BandPass, 3};
        std::vector<double> a(7, 7.0), b = a;
        const std::vector<double> before = a;
        EXPECT_GT(failEveryAllocation([&] { return directInto(order, a.data(), 7, b.data(), 7); },
                                      [&] { return a == before && b == before; }),
                  4);
        backend::Complex x{1, 2};
        EXPECT_GT(failEveryAllocation([&] { return filter(order, &x, 1, static_cast<backend::Complex*>(nullptr)); },
                                      [&] { return x.real == 1 && x.imaginary == 2; }),
                  4);
    }
}

TEST(OutOfMemory, IsReportedByTheConversionOfACascade)
{
    const Filter filter = cascade(LowPass, 2, 0.1, 0);
    double a[] = {7, 7, 7}, b[] = {7, 7, 7};
    const auto call = [&] { return backend::CascadeToDirectCoef(filter.get(), a, 3, b, 3); };
    EXPECT_GT(failEveryAllocation(call, [&] { return a[0] == 7 && b[0] == 7; }), 2);
}

TEST(OutOfMemory, IsReportedByTheDirectForm)
{
    const double x[] = {1, 2}, a[] = {1, 0.5}, b[] = {1, 0.5};
    double y[] = {7, 7}, ya[] = {8}, xb[] = {9};
    const auto call = [&] { return backend::AALFunc92(x, 2, a, ya, 2, b, xb, 2, y); };
    EXPECT_GT(failEveryAllocation(call, [&] { return y[0] == 7 && ya[0] == 8 && xb[0] == 9; }), 1);
}

} // namespace
} // namespace quordsp::test
