// Allocation n fails, for every n: each entry answers "not enough memory", writes nothing and leaks nothing.
#include "backend/support/failing_new.h"
#include "backend/support/fir.h"

namespace quordsp::test {
namespace {

using backend::failEveryAllocation;

TEST(EquirippleOutOfMemory, IsReportedByTheDesigns)
{
    Array h(9, 7.0);
    double ripple = 8;
    const auto call = [&] { return backend::AALFunc69(1, 0.1, 0.2, 9, h.data(), &ripple); };
    EXPECT_GT(failEveryAllocation(call, [&] { return h == Array(9, 7.0) && ripple == 8; }), 20);
}

TEST(EquirippleOutOfMemory, IsReportedByTheFilters)
{
    const Array x = noise(50);
    Array y(50, 7.0);
    const auto call = [&] { return backend::AALFunc472(x.data(), 50, 9, 1, 0.1, 0.2, y.data()); };
    EXPECT_GT(failEveryAllocation(call, [&] { return y == Array(50, 7.0); }), 20);
}

TEST(NarrowBandOutOfMemory, IsANullRecord)
{
    backend::FirFilter* filter = nullptr;
    const auto call = [&] {
        filter = backend::AALFunc491();
        backend::AALFunc492(filter);
    };
    EXPECT_EQ(support::failEveryAllocation(call, [&](int) { EXPECT_EQ(filter, nullptr); }), 1);
}

// A design of two filters and one of two shifted copies, in place of an earlier one.
TEST(NarrowBandOutOfMemory, IsReportedByTheDesignAndTheFilter)
{
    backend::FirFilter* const filter = backend::AALFunc491();
    const auto design = [&](int type) { return backend::AALFunc409(1, 0.04, 0.2, 0.2, 0.9, 1, type, filter); };
    ASSERT_EQ(design(1), Status::Success);
    EXPECT_GT(filter->interpolation, 1);
    for (const int type : {0, 2}) {
        const backend::FirFilter before = *filter;
        EXPECT_GT(failEveryAllocation([&] { return design(type); },
                                      [&] { return filter->model == before.model && filter->type == before.type; }),
                  20);
    }
    const Array x = noise(50);
    Array y(50, 7.0);
    filter->type = 4;
    EXPECT_GT(failEveryAllocation([&] { return backend::AALFunc410(x.data(), 50, *filter, y.data()); },
                                  [&] { return y == Array(50, 7.0); }),
              1);
    backend::AALFunc492(filter);
}

} // namespace
} // namespace quordsp::test
