// The polynomial whose error is delta, -delta, delta, ... at the places of a reference, of which there is one more than
// the polynomial has coefficients. |delta| bounds the least possible largest error from below.
#pragma once

#include "fir/approximation.h"

#include <optional>

namespace quordsp::backend {

// Ascending frequencies.
using Reference = std::vector<Place>;

struct Node {
    Real x;
    Real value; // of P
};

class Interpolant {
public:
    // Null when the places are too close to each other to be told apart.
    static std::optional<Interpolant> through(const Approximation& approximation, const Reference& reference);

    Real delta() const { return delta_; }
    const std::vector<Node>& nodes() const { return nodes_; }
    Real error(const Place& place) const;

private:
    struct Term {
        Real x;
        Real weight;
        Real weightedValue;
    };

    explicit Interpolant(const Approximation& approximation) : approximation_{&approximation} {}
    void setValues(const Reference& reference, const std::vector<Real>& weights);
    void setTerms(const std::vector<Real>& weights);
    bool isFinite() const;
    Real valueAt(Real x) const;

    const Approximation* approximation_;
    Real delta_ = 0;
    std::vector<Node> nodes_;
    std::vector<Term> terms_;
};

} // namespace quordsp::backend
