// The polynomial of each degree is u times the one before, less its share of all lower ones. Taking that share off
// twice leaves it orthogonal to the last digit.
#include "fir/orthonormal_polynomials.h"

#include "status.h"

#include <cmath>

namespace quordsp::backend {
namespace {

using Real = OrthonormalPolynomials::Real;

void subtract(std::span<Real> from, Real factor, std::span<const Real> values)
{
    for (std::size_t i = 0; i < from.size(); ++i)
        from[i] -= factor * values[i];
}

void scale(std::span<Real> values, Real factor)
{
    for (Real& value : values)
        value *= factor;
}

} // namespace

OrthonormalPolynomials::OrthonormalPolynomials(std::int32_t order, std::int32_t sidePoints, const double* weights)
    : count_{static_cast<std::size_t>(order) + 1},
      frame_{2 * static_cast<std::size_t>(sidePoints) + 1},
      weights_{weights},
      values_{makeBuffer<Real>(count_ * frame_)},
      coefficients_{makeBuffer<Real>(count_ * count_)}
{
    // Below this share of its length, what is left of a polynomial is rounding errors.
    constexpr Real kNothing = 1e-13L;
    std::fill_n(coefficients_.get(), count_ * count_, Real{0});
    std::fill_n(values_.get(), frame_, Real{1});
    coefficients_[0] = 1;
    normalise(0, std::sqrt(product(values(0), values(0))));
    for (std::size_t degree = 1; degree < count_; ++degree) {
        timesU(degree);
        const Real before = std::sqrt(product(values(degree), values(degree)));
        orthogonalise(degree);
        orthogonalise(degree);
        const Real left = std::sqrt(product(values(degree), values(degree)));
        require(left > kNothing * before, Status::Singular);
        normalise(degree, left);
    }
}

OrthonormalPolynomials::Polynomial OrthonormalPolynomials::polynomial(std::size_t degree)
{
    return {{values_.get() + degree * frame_, frame_}, {coefficients_.get() + degree * count_, count_}};
}

Real OrthonormalPolynomials::product(std::span<const Real> a, std::span<const Real> b) const
{
    Real sum = 0;
    for (std::size_t i = 0; i < frame_; ++i)
        sum += weight(i) * a[i] * b[i];
    return sum;
}

void OrthonormalPolynomials::timesU(std::size_t degree)
{
    const Polynomial to = polynomial(degree), from = polynomial(degree - 1);
    const auto sidePoints = static_cast<Real>(frame_ / 2);
    for (std::size_t i = 0; i < frame_; ++i)
        to.values[i] = from.values[i] * ((static_cast<Real>(i) - sidePoints) / sidePoints);
    std::copy(from.coefficients.begin(), from.coefficients.end() - 1, to.coefficients.begin() + 1);
}

void OrthonormalPolynomials::orthogonalise(std::size_t degree)
{
    const Polynomial newest = polynomial(degree);
    for (std::size_t lower = 0; lower < degree; ++lower) {
        const Real share = product(newest.values, values(lower));
        subtract(newest.values, share, values(lower));
        subtract(newest.coefficients, share, coefficients(lower));
    }
}

void OrthonormalPolynomials::normalise(std::size_t degree, Real norm)
{
    scale(polynomial(degree).values, 1 / norm);
    scale(polynomial(degree).coefficients, 1 / norm);
}

} // namespace quordsp::backend
