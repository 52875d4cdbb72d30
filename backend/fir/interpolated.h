// Interpolated FIR low-pass filters: a model whose taps are spread apart, so that its response is repeated around the
// multiples of 1 / interpolation, followed by an image suppressor that stops the repetitions.
#pragma once

#include "real.h"

#include <cstdint>
#include <vector>

namespace quordsp::backend {

// Linear deviations from 1 where a filter passes, from 0 where it stops.
struct Deviations {
    Real pass, stop;
};

// Both lengths are odd.
struct InterpolatedFilter {
    std::int32_t interpolation;
    std::vector<double> model, image;
};

// Passes 0..pass, stops stop..1/2, in units of the sampling frequency, 0 < pass < stop < 1/2. To be called in extended
// precision. Throws DesignFailed.
InterpolatedFilter interpolatedLowPass(Real pass, Real stop, const Deviations& allowed);

} // namespace quordsp::backend
