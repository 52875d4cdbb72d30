// The plot of a signal over time, before its curves are added.
#pragma once
#include <string>

#include "input.h"
#include "plot/plot.h"
#include "series.h"

namespace quordsp::cli {

// Where an axis of time counts from. Times that count from long ago would not fit under their ticks: they count from
// the first one then.
struct TimeOrigin {
    double time; // s
    std::string label;
};

TimeOrigin timeOrigin(double start, double duration);

Plot timePlot(const Series& series);

// Only those samples: of all curves, which are as long as the signal.
void show(Plot& plot, const SampleRange& range);

} // namespace quordsp::cli
