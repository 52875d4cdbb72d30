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
    EXPECT_EQ(plot.xStart, 12);
    EXPECT_EQ(plot.xStep, 0.25);
}

TEST(TimePlot, CountsTimeFromTheFirstSampleOfASignalThatStartsLongAfterZero)
{
    const Plot plot = timePlot(tenSecondsFrom(1700000000));
    EXPECT_EQ(plot.xLabel, "time after 1700000000 s (s)");
    EXPECT_EQ(plot.xStart, 0);
}

TEST(TimeOrigin, IsTheFirstTimeWhenThatIsAHundredDurationsAway)
{
    EXPECT_EQ(timeOrigin(999, 10).time, 0);
    EXPECT_EQ(timeOrigin(1001, 10).time, 1001);
    EXPECT_EQ(timeOrigin(-1001, 10).time, -1001);
    EXPECT_EQ(timeOrigin(1716714267, 0).label, "time after 1716714267 s (s)");
    EXPECT_EQ(timeOrigin(0, 0).label, "time (s)");
}

TEST(Show, KeepsThePartOfEveryCurve)
{
    const Series series = tenSecondsFrom(12);
    Plot plot = timePlot(series);
    plot.panels = {{.yLabel = "a", .curves = {{"", series.samples}}},
                   {.yLabel = "b", .curves = {{"", series.samples}}}};
    show(plot, {4, 10});
    EXPECT_EQ(plot.xStart, 13);
    for (const Panel& panel : plot.panels) {
        EXPECT_EQ(panel.curves[0].samples.size(), 6u);
        EXPECT_EQ(panel.curves[0].samples.data(), series.samples.data() + 4);
    }
}

} // namespace
} // namespace quordsp::cli
