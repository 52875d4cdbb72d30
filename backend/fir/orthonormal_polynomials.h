// What a least-squares fit of polynomials to a frame of 2 k + 1 points needs: polynomials that are orthonormal over the
// points and their weights. A fit is then a sum of products, and no system of equations is left to solve.
#pragma once

#include "buffer.h"

#include <cstdint>
#include <span>

namespace quordsp::backend {

// In u = (i - k) / k, which stands for the points i = 0..2k. To be used in extended precision.
class OrthonormalPolynomials {
public:
    using Real = long double;

    // Degrees 0..order <= 2k. weights: null for 1 each; else at least order + 1 of them are positive, the others 0.
    // Fails as Singular when the weights differ so much that the small ones do not tell the polynomials apart.
    OrthonormalPolynomials(std::int32_t order, std::int32_t sidePoints, const double* weights);

    std::size_t count() const { return count_; }
    std::size_t frame() const { return frame_; }

    std::span<const Real> values(std::size_t degree) const { return {values_.get() + degree * frame_, frame_}; }

    // Of 1, u, u^2, ...
    std::span<const Real> coefficients(std::size_t degree) const
    {
        return {coefficients_.get() + degree * count_, count_};
    }

    Real weight(std::size_t i) const { return weights_ ? weights_[i] : 1; }

private:
    struct Polynomial {
        std::span<Real> values, coefficients;
    };

    Polynomial polynomial(std::size_t degree);
    Real product(std::span<const Real> a, std::span<const Real> b) const;
    void timesU(std::size_t degree);
    void orthogonalise(std::size_t degree);
    void normalise(std::size_t degree, Real norm);

    std::size_t count_, frame_;
    const double* weights_;
    Buffer<Real> values_, coefficients_;
};

} // namespace quordsp::backend
