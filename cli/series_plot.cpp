#include "series_plot.h"

#include <cmath>

#include "number.h"

namespace quordsp::cli {
namespace {

constexpr double kFarStart = 100; // durations before the first sample

bool startsFar(const Series& series)
{
    const double duration = static_cast<double>(series.samples.size()) / series.rate;
    return std::abs(series.start) > kFarStart * duration;
}

} // namespace

Plot timePlot(const Series& series)
{
    Plot plot;
    const bool far = startsFar(series);
    plot.xLabel = far ? "time after " + rounded(series.start, 15) + " s (s)" : "time (s)";
    plot.yLabel = series.label.axis();
    plot.xStart = far ? 0 : series.start;
    plot.xStep = 1 / series.rate;
    return plot;
}

} // namespace quordsp::cli
