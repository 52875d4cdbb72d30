#include "plot/decimate.h"

#include <algorithm>
#include <cmath>

#include <gmock/gmock.h>

namespace quordsp::cli {
namespace {

using testing::Contains;
using testing::ElementsAre;

TEST(Decimate, KeepsAShortCurveWhole)
{
    EXPECT_THAT(decimate(std::vector{3.0, 1.0, 2.0}, 1), ElementsAre(0, 1, 2));
    EXPECT_TRUE(decimate({}, 10).empty());
}

TEST(Decimate, KeepsFirstLowestHighestAndLastOfAColumnInOrder)
{
    EXPECT_THAT(decimate(std::vector{5.0, 9.0, 6.0, 1.0, 4.0, 5.0}, 1), ElementsAre(0, 1, 3, 5));
}

TEST(Decimate, KeepsEachSampleOnce)
{
    EXPECT_THAT(decimate(std::vector{1.0, 2.0, 3.0, 4.0, 5.0, 6.0}, 1), ElementsAre(0, 5));
}

TEST(Decimate, KeepsEveryLonePeakOfALongCurve)
{
    std::vector<double> samples(100000);
    for (std::size_t i = 333; i < samples.size(); i += 9973)
        samples[i] = i % 2 ? 1 : -1;
    const auto kept = decimate(samples, 100);
    EXPECT_LE(kept.size(), 400u);
    EXPECT_TRUE(std::ranges::is_sorted(kept));
    for (std::size_t i = 333; i < samples.size(); i += 9973)
        EXPECT_THAT(kept, Contains(i));
}

TEST(Decimate, KeepsTheEnds)
{
    const auto kept = decimate(std::vector<double>(12347), 10);
    EXPECT_EQ(kept.front(), 0u);
    EXPECT_EQ(kept.back(), 12346u);
}

TEST(Decimate, FindsTheExtremesBesideNan)
{
    const std::vector<double> samples{NAN, 2, NAN, 7, 1, NAN, 3, NAN};
    EXPECT_THAT(decimate(samples, 1), ElementsAre(0, 3, 4, 7));
}

} // namespace
} // namespace quordsp::cli
