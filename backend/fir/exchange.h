// The Remez exchange: from a reference to the one whose polynomial has the least possible largest error.
#pragma once

#include "fir/interpolant.h"

namespace quordsp::backend {

struct Solution {
    std::vector<Node> nodes; // of the polynomial
    Reference extrema;       // where its error is largest, the signs in turn
    Real largestError;
    int exchanges;
};

// Ends early once the largest error is sufficient. Null when the exchange does not settle, which only too few digits or
// too little room between the places can cause.
std::optional<Solution> exchange(const Approximation& approximation, Reference reference, Real sufficient);

} // namespace quordsp::backend
