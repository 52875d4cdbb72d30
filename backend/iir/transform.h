// From the prototype to an analog filter of the wanted response and cut-offs, in the frequency scale of the bilinear
// map.
#pragma once

#include "band.h"
#include "iir/prototype.h"

namespace quordsp::backend {

// s2 s^2 + s1 s + s0
struct Quadratic {
    Real s2, s1, s0;
};

// A second-order section, or a first-order one when both s2 are 0.
struct AnalogSection {
    Quadratic numerator, denominator;
};

// One section a prototype section, two for a pole pair of a band filter (they follow each other). The product has the
// prototype's gain at the reference frequency: 0, infinity, the centre, or both ends of the axis, by response.
std::vector<AnalogSection> transform(const Prototype& prototype, Response response, const Frequencies& frequencies);

} // namespace quordsp::backend
