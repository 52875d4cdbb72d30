// FIR designs that are their coefficients: what they are, and how a signal goes through them.
#pragma once
#include <span>

#include "QuorDSP_DAQ.h"
#include "filter_request.h"

namespace quordsp::cli::fir {

// How the coefficients come about. A negative status leaves nothing of use.
using Design = AnalysisLibErrType (*)(const FilterRequest&, Impulse&);

AnalysisLibErrType windowed(const FilterRequest&, Impulse&);
AnalysisLibErrType kaiser(const FilterRequest&, Impulse&);
AnalysisLibErrType equiripple(const FilterRequest&, Impulse&);
AnalysisLibErrType multiband(const FilterRequest&, Impulse&);
AnalysisLibErrType differentiator(const FilterRequest&, Impulse&);
AnalysisLibErrType hilbert(const FilterRequest&, Impulse&);

// From zero state.
AnalysisLibErrType convolve(std::span<const double> taps, const FilterSignal& signal);

template <Design design>
AnalysisLibErrType filter(const FilterRequest& request, FilterSignal& signal)
{
    Impulse impulse;
    const AnalysisLibErrType status = design(request, impulse);
    signal.delay = impulse.delay();
    return status < 0 ? status : convolve(impulse.taps, signal);
}

} // namespace quordsp::cli::fir
