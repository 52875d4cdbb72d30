#include "series_plot.h"

#include <gtest/gtest.h>

namespace quordsp::cli {
namespace {

Series tenSecondsFrom(double start)
{
    Series series;
    series.label = {"x", "g"};
    series.rate = 4;
    series.start = start;
    series.samples.resize(40);
    return series;
}

TEST(TimePlot, CountsTimeAsTheSignalDoes)
{
    const Plot plot = timePlot(tenSecondsFrom(12));
    EXPECT_EQ(plot.xLabel, "time (s)");
    EXPECT_EQ(plot.yLabel, "x (g)");
    EXPECT_EQ(plot.xStart, 12);
    EXPECT_EQ(plot.xStep, 0.25);
}

TEST(TimePlot, CountsTimeFromTheFirstSampleOfASignalThatStartsLongAfterZero)
{
    const Plot plot = timePlot(tenSecondsFrom(1700000000));
    EXPECT_EQ(plot.xLabel, "time after 1700000000 s (s)");
    EXPECT_EQ(plot.xStart, 0);
}

} // namespace
} // namespace quordsp::cli
