// Allocation n of the median filter fails, for every n.
#include "backend/support/failing_new.h"

#include <algorithm>
#include <vector>

namespace quordsp::test {
namespace {

TEST(OutOfMemory, IsReportedByTheMedianFilterBeforeItWrites)
{
    for (std::int64_t rank : {1, 40}) {
        std::vector<double> x(50, 3.0);
        const auto call = [&] { return backend::AALFunc407(x.data(), 50, rank, -1, x.data()); };
        const auto untouched = [&] { return std::count(x.begin(), x.end(), 3.0) == 50; };
        EXPECT_EQ(backend::failEveryAllocation(call, untouched), rank == 1 ? 1 : 6);
    }
}

// More samples in a window than its ranks can number.
TEST(OutOfMemory, IsTheAnswerToAWindowBeyondAllBounds)
{
    double x = 1;
    EXPECT_EQ(backend::AALFunc407(&x, std::int64_t{1} << 40, std::int64_t{1} << 39, 0, &x),
              backend::Status::OutOfMemory);
    EXPECT_EQ(x, 1);
}

} // namespace
} // namespace quordsp::test
