// What the one-call filters run on: second-order sections in double, in powers of z - 1 or z + 1 (section_forms.h).
#pragma once

#include "iir/sections.h"

namespace quordsp::backend {

// One section each. Throws DesignFailed when double cannot hold a filter of such sections that is stable and whose gain
// at all points is within 1e-3 of the exact one.
Coefficients deltaSections(std::span<const AnalogSection> sections, std::span<const AxisPoint> points);

} // namespace quordsp::backend
