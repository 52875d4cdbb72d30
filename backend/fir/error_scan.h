// Where the error of an approximation is largest.
#pragma once

#include "fir/interpolant.h"

namespace quordsp::backend {

// The place of the largest error between each two changes of its sign, ascending. Errors up to noise have no sign.
// Where an error is not a number, that place alone.
std::vector<Sample> extremaOf(const Interpolant& interpolant, const Approximation& approximation,
                              const Reference& reference, Real noise);

// The same in double precision, many times as fast, where errors of about 1e-13 in units of the largest amplitude do
// not matter. Nothing where the polynomial or a band is beyond double.
std::vector<Sample> quickExtremaOf(const Interpolant& interpolant, const Approximation& approximation,
                                   const Reference& reference);

} // namespace quordsp::backend
