// The coefficients of callers: sections in double, all of one order D, or the direct form.
#pragma once

#include "iir/axis.h"
#include "iir/bilinear.h"

namespace quordsp::backend {

// Section after section: reverse holds a1..aD (a0 is 1), forward b0..bD.
struct Coefficients {
    std::vector<double> reverse, forward;
};

// Every sectionOrder / 2 of the sections given become one; those that are left over become the first, padded with
// zeros. At points[0] each has the exact gain. Throws DesignFailed when double cannot hold a filter of such sections
// that is stable and whose gain at all points is within 1e-3 of the exact one.
Coefficients roundedSections(std::span<const AnalogSection> sections, std::size_t sectionOrder,
                             std::span<const AxisPoint> points);

// A polynomial in 1/z, lowest power first.
using Polynomial = std::vector<Real>;

// Trailing zeros of the factor do not count.
void multiplyBy(Polynomial& polynomial, std::span<const Real> factor);

// DesignFailed unless double can hold every coefficient.
void requireFinite(std::span<const Real> polynomial);

} // namespace quordsp::backend
