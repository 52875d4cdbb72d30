// The ellipse on which the poles of a Chebyshev filter lie. Those of the inverse and of the elliptic filters follow
// from such poles.
#pragma once

#include "iir/prototype.h"

namespace quordsp::backend {

// 10^(decibels / 10) - 1, the excess of power over 1. DesignFailed beyond the range of double.
Real powerExcess(Real decibels);

class PoleEllipse {
public:
    // sinh(order a) is given, a the shape of the ellipse.
    PoleEllipse(std::int32_t order, Real sinhOfAll);

    // The pole k pi / (2 order) off the imaginary axis, k odd; k = order gives the real one.
    std::complex<Real> pole(std::int32_t k) const;

private:
    Real whole_;
    Real sinh_, cosh_;
};

// The gain at s = 0 of a filter whose pass band ripples: the ripple's lower end for even orders.
Real gainAtZero(std::int32_t order, Real rippleExcess);

} // namespace quordsp::backend
