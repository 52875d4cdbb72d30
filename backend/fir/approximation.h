// What an equiripple filter is to approximate, and by how much a polynomial misses it.
#pragma once

#include "fir/linear_phase.h"

namespace quordsp::backend {

// The amplitude is to be desired between lower and upper, in units of the sampling frequency; or desired * f, with an
// error that counts in proportion to f, for the bands of a differentiator.
struct ApproximationBand {
    Real lower, upper;
    Real desired;
    Real weight;
    bool isSlope = false;

    Real width() const { return upper - lower; }
};

struct Place {
    Real f;
    std::size_t band;
};

struct Approximation {
    LinearPhase filter;
    std::vector<ApproximationBand> bands;

    // What P is multiplied by: the amplitude, or the slope, is gain * P.
    Real gain(const Place& place) const;
    // weight * (desired - value), where the filter's amplitude, or slope, is value.
    Real error(const Place& place, Real value) const;
    Real largestDesired() const;
    Real largestWeight() const;
    Real smallestWeight() const;
    Real width() const;
};

} // namespace quordsp::backend
