// What a filter runs on: sections in double, all of one order D, or the direct form.
#pragma once

#include "iir/bilinear.h"

#include <span>

namespace quordsp::backend {

// Section after section: reverse holds a1..aD (a0 is 1), forward b0..bD.
struct Coefficients {
    std::vector<double> reverse, forward;
};

// Every sectionOrder / 2 biquads become one section; those that are left over become the first, padded with zeros.
// Throws DesignFailed when double cannot hold a stable filter of such sections.
Coefficients roundedSections(std::span<const Biquad> biquads, std::size_t sectionOrder);

// A polynomial in 1/z, lowest power first.
using Polynomial = std::vector<Real>;

void multiplyBy(Polynomial& polynomial, std::span<const Real> factor);

// DesignFailed unless double can hold every coefficient.
void requireFinite(std::span<const Real> polynomial);

// Fills out with the first out.size() coefficients, rounded; requires that all are finite.
void roundTo(std::span<double> out, std::span<const Real> polynomial);

} // namespace quordsp::backend
