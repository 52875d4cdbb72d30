// The bilinear map s = (1 - x) / (1 + x), x = 1/z, section by section.
#pragma once

#include "iir/transform.h"

#include <array>

namespace quordsp::backend {

// (b0 + b1 x + b2 x^2) / (a0 + a1 x + a2 x^2) with a0 = 1; a first-order section has b2 = a2 = 0.
struct Biquad {
    std::array<Real, 3> b, a;
};

Biquad bilinear(const AnalogSection& section);

} // namespace quordsp::backend
