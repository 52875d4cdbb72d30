// Narrow-band and wideband FIR filters by interpolation: a model filter with spread taps and an image suppressor.
#pragma once
#include "QuorDSP_DAQ.h"
#include "filter_request.h"

namespace quordsp::cli {

// Wideband: narrow is what it stops, of a low-pass or high-pass.
enum class Width { Narrow, Wide };

template <Width width>
AnalysisLibErrType narrowBandFilter(const FilterRequest&, FilterSignal&);

// The whole filter's answer to an impulse, by the filter itself.
template <Width width>
AnalysisLibErrType narrowBandImpulse(const FilterRequest&, Impulse&);

} // namespace quordsp::cli
