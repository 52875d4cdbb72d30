// Allocation n fails, for every n: each entry answers "not enough memory", writes nothing and leaks nothing.
#include "backend/support/failing_new.h"
#include "backend/support/fir.h"

namespace quordsp::test {
namespace {

using backend::failEveryAllocation;

TEST(FirOutOfMemory, IsReportedByTheDesigns)
{
    for (int window : {kRectangle, kKaiser, kDolphChebyshev})
        for (int taps : {31, 64}) {
            Array h(64, 7.0);
            const auto call = [&] { return design({kLowPass, 1, 0.1, 0, taps, window, 50}, h.data()); };
            EXPECT_GT(failEveryAllocation(call, [&] { return h == Array(64, 7.0); }), 0);
        }
}

TEST(FirOutOfMemory, IsReportedByTheFiltersAndLeavesTheirState)
{
    const Array x = noise(100), h = noise(20, 2);
    Array y(100, 7.0), state(19, 8.0);
    const auto untouched = [&] { return y == Array(100, 7.0) && state == Array(19, 8.0); };
    EXPECT_GT(failEveryAllocation([&] { return filter(x.data(), 100, h, state.data(), y.data()); }, untouched), 0);
}

// A short filter, and one that goes by way of Fourier transforms.
TEST(FirOutOfMemory, IsReportedByTheOneCallFilters)
{
    const Array x = noise(5000);
    const ComplexArray z = joined(x, x);
    for (int taps : {21, 701}) {
        const Order order{kBandStop, 1, 0.1, 0.2, taps, kDolphChebyshev, 50};
        Array y(5000, 7.0);
        EXPECT_GT(failEveryAllocation([&] { return filter(x.data(), 5000, order, y.data()); },
                                      [&] { return y == Array(5000, 7.0); }),
                  taps > 100 ? 10 : 3);
        ComplexArray w(5000, {7, 7});
        EXPECT_GT(failEveryAllocation([&] { return filter(z.data(), 5000, order, w.data()); },
                                      [&] { return real(w) == Array(5000, 7.0) && imaginary(w) == Array(5000, 7.0); }),
                  3);
    }
}

TEST(FirOutOfMemory, IsReportedBySavitzkyGolay)
{
    const Array x = noise(50);
    Array filters(49, 7.0), diffFilters(21, 7.0), y(50, 7.0);
    EXPECT_GT(
        failEveryAllocation([&] { return backend::AALFunc355(2, 3, nullptr, 1, filters.data(), diffFilters.data()); },
                            [&] { return filters == Array(49, 7.0) && diffFilters == Array(21, 7.0); }),
        1);
    EXPECT_GT(failEveryAllocation([&] { return backend::AALFunc356(x.data(), 50, 2, 3, nullptr, y.data()); },
                                  [&] { return y == Array(50, 7.0); }),
              5);
}

} // namespace
} // namespace quordsp::test
