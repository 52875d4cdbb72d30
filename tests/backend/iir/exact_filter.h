// The filter that a prototype of 50 digits stands for.
#pragma once

#include "band.h"
#include "data/backend/iir_prototypes.inc"

#include <complex>
#include <vector>

namespace quordsp::test {

struct Cutoffs {
    double fl, fh; // fractions of fs
};

// Nothing cancels near f = 1/2.
long double sinPi(long double f);
long double cosPi(long double f);

class ExactFilter {
public:
    using Real = long double;
    using Point = std::complex<Real>;

    ExactFilter(const vectors::Prototype& prototype, backend::Response response, const Cutoffs& cutoffs);

    // A frequency, in fractions of fs, at which the prototype's frequency is q.
    Real frequencyOf(Real q) const;

    Point responseAt(Real f) const;

    // The poles in the s-plane of the bilinear map s = (z - 1) / (z + 1); of each pair, what its upper one becomes.
    std::vector<Point> poles() const;

private:
    std::vector<Point> analog(Point q) const;

    const vectors::Prototype& prototype_;
    bool isBand_, isReciprocal_;
    Real low_, width_, squaredCenter_;
};

} // namespace quordsp::test
