// Allocation n fails, for every n: Sort answers "not enough memory", writes nothing and leaks nothing.
#include "backend/support/failing_new.h"

#include <vector>

namespace quordsp::backend {
namespace {

TEST(StatisticsOutOfMemory, IsSurvivedBySort)
{
    for (const std::size_t n : {10u, 5000u}) {
        std::vector<double> x(n, 2.0);
        x.back() = 1;
        const std::vector<double> before = x;
        const auto sortInPlace = [&] { return AALFunc160(x.data(), static_cast<std::int64_t>(n), 0, x.data()); };
        EXPECT_GT(failEveryAllocation(sortInPlace, [&] { return x == before; }), 0);
        EXPECT_EQ(x.front(), 1);
    }
}

} // namespace
} // namespace quordsp::backend
