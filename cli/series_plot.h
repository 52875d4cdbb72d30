// The plot of a signal over time, before its curves are added.
#pragma once
#include "plot/plot.h"
#include "series.h"

namespace quordsp::cli {

// The axes. Times that count from long ago would not fit under their ticks: they count from the first sample then.
Plot timePlot(const Series& series);

} // namespace quordsp::cli
