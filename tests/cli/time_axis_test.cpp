#include "time_axis.h"

#include <cmath>

#include <gtest/gtest.h>

namespace quordsp::cli {
namespace {

TEST(TimeColumn, IsFoundByItsNameAndUnit)
{
    const auto column = findTimeColumn({"x_g", "Time_ms", "y_g"});
    ASSERT_TRUE(column);
    EXPECT_EQ(column->index, 1u);
    EXPECT_EQ(column->seconds, 1e-3);
}

TEST(TimeColumn, IsInSecondsWhenItsNameHasNoUnit)
{
    for (const char* const name : {"t", "time", "TIME", "Time (s)", "time_s", "timestamp", "seconds"})
        EXPECT_EQ(findTimeColumn({name}).value().seconds, 1) << name;
}

TEST(TimeColumn, IsNotFoundInOtherNames)
{
    EXPECT_FALSE(findTimeColumn({"x_s", "timer", "time_g", "T", "column 1", ""}));
}

std::vector<double> grid(double start, double rate, int count, double roundTo)
{
    std::vector<double> times;
    for (int i = 0; i < count; ++i)
        times.push_back(std::round((start + i / rate) / roundTo) * roundTo);
    return times;
}

TEST(SamplingRate, OfTimesInDecimalsIsTheWholeNumberMeant)
{
    EXPECT_EQ(samplingRate(grid(0, 5000, 40000, 1e-4)), 5000);
    EXPECT_EQ(samplingRate(grid(12.5, 360, 21601, 1e-12)), 360);
}

TEST(SamplingRate, IsFoundFromTimesRoundedToMicroseconds)
{
    EXPECT_NEAR(samplingRate(grid(0, 44100, 44101, 1e-6)).value(), 44100, 1e-6 * 44100);
}

TEST(SamplingRate, OfTwoTimesIsTheirDistance)
{
    EXPECT_EQ(samplingRate(std::vector{1.0, 1.5}), 2);
}

TEST(SamplingRate, IsNoneForTimesWithAGap)
{
    EXPECT_FALSE(samplingRate(std::vector{0.0, 1.0, 2.0, 3.4, 4.4, 5.4}));
}

TEST(SamplingRate, IsNoneForTimesThatDoNotAscend)
{
    EXPECT_FALSE(samplingRate(std::vector{1.0, 1.0, 1.0}));
    EXPECT_FALSE(samplingRate(std::vector{2.0, 1.0, 0.0}));
    EXPECT_FALSE(samplingRate(std::vector{0.0}));
    EXPECT_FALSE(samplingRate(std::vector<double>{}));
}

} // namespace
} // namespace quordsp::cli
