// Where the error of an approximation is largest.
#pragma once

#include "fir/interpolant.h"

namespace quordsp::backend {

struct Sample {
    Place place;
    Real error;
};

// The place of the largest error between each two changes of its sign, ascending. Errors up to noise have no sign.
// Where an error is not a number, that place alone.
std::vector<Sample> extremaOf(const Interpolant& interpolant, const Approximation& approximation,
                              const Reference& reference, Real noise);

} // namespace quordsp::backend
