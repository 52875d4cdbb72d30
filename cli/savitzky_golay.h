// Savitzky-Golay smoothing and differentiation: a polynomial fitted to each frame of samples.
#pragma once
#include "QuorDSP_DAQ.h"
#include "filter_request.h"

namespace quordsp::cli {

// Without a delay. The first and the last samples take their values from the polynomials of the first and last frame.
AnalysisLibErrType savitzkyGolayFilter(const FilterRequest&, FilterSignal&);

// Of a sample in the midst of a signal.
AnalysisLibErrType savitzkyGolayImpulse(const FilterRequest&, Impulse&);

} // namespace quordsp::cli
