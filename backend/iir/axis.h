// Gains at points of the frequency axis. They are taken in the frequency scale of the bilinear map, s = (1 - x) / (1 +
// x), x = 1/z, where nothing cancels at frequencies close to 0 or fs / 2.
#pragma once

#include "iir/transform.h"

#include <array>
#include <span>

namespace quordsp::backend {

// s = j numerator / denominator, which reaches infinity.
struct AxisPoint {
    Real numerator, denominator;
};

// Where a filter's gain is held against that of the design: the reference frequency, then the edges of the bands.
std::vector<AxisPoint> axisPoints(Response response, const Frequencies& frequencies);

// The squared gain.
Real powerGain(const AnalogSection& section, const AxisPoint& point);

// s^0 to s^4 of p((1 - s) / (1 + s)) (1 + s)^4, where p holds x^0 to x^4.
using Quartic = std::array<Real, 5>;
Quartic inverseBilinear(const Quartic& p);

// The squared magnitude of a quartic in s. That of two quotients can be compared for any scale of the point.
Real powerAt(const Quartic& c, const AxisPoint& point);

} // namespace quordsp::backend
