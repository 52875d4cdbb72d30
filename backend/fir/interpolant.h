// The polynomial whose error is delta, -delta, delta, ... at the places of a reference, of which there is one more than
// the polynomial has coefficients. |delta| bounds the least possible largest error from below.
#pragma once

#include "fir/approximation.h"

#include <optional>

namespace quordsp::backend {

// Ascending frequencies.
using Reference = std::vector<Place>;

struct Sample {
    Place place;
    Real error;
};

struct Node {
    Real x;
    Real value; // of P
};

class Interpolant {
public:
    // Of the barycentric formula.
    struct Term {
        Real x;
        Real weight;
        Real weightedValue;
    };

    // Null when the places are too close to each other to be told apart.
    static std::optional<Interpolant> through(const Approximation& approximation, const Reference& reference);

    Real delta() const { return delta_; }
    const std::vector<Node>& nodes() const { return nodes_; }
    // As many as nodes, and perhaps one without weight.
    const std::vector<Term>& terms() const { return terms_; }
    // The errors at frequencies of a band.
    using Number = Real;
    void evaluate(std::size_t band, std::span<const Real> f, Real* errors) const;
    Real error(const Place& place) const;

private:
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
