// A way to transform real signals of one size. Spectra are held as their bins 0..n/2; the others are the conjugates of
// these.
#pragma once

#include "transform/point.h"

#include <cstddef>

namespace quordsp::backend {

// Immutable, like ComplexPlan.
class RealMethod {
public:
    virtual ~RealMethod() = default;

    virtual std::size_t tableSize() const = 0; // doubles that the plan holds, about
    virtual std::size_t workSize() const = 0;  // doubles

    // Unscaled. x and the spectrum may overlap. Imaginary parts that are 0 for any real signal come out as 0.
    virtual void forward(const double* x, const Split& spectrum, double* work) const = 0;

    // Unscaled: n times the signal. x and the spectrum may overlap. Ignores the imaginary parts that no real signal
    // has. last: the real part of bin n/2 of an even size, which in a shifted spectrum stands before the others.
    virtual void inverse(const ConstSplit& spectrum, double last, double* x, double* work) const = 0;
};

} // namespace quordsp::backend
