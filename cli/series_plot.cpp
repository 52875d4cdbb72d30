#include "series_plot.h"

#include <cmath>

#include "number.h"

namespace quordsp::cli {
namespace {

constexpr double kFarStart = 100; // durations before the first sample

} // namespace

TimeOrigin timeOrigin(double start, double duration)
{
    if (std::abs(start) > kFarStart * duration)
        return {start, "time after " + rounded(start, 15) + " s (s)"};
    return {0, "time (s)"};
}

Plot timePlot(const Series& series)
{
    Plot plot;
    const TimeOrigin origin = timeOrigin(series.start, static_cast<double>(series.samples.size()) / series.rate);
    plot.xLabel = origin.label;
    plot.xStart = series.start - origin.time;
    plot.xStep = 1 / series.rate;
    return plot;
}

void show(Plot& plot, const SampleRange& range)
{
    plot.xStart += static_cast<double>(range.first) * plot.xStep;
    for (Panel& panel : plot.panels)
        for (Curve& curve : panel.curves)
            curve.samples = curve.samples.subspan(range.first, range.last - range.first);
}

} // namespace quordsp::cli
