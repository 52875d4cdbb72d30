// Bessel: maximally flat delay. The poles are the roots of the reverse Bessel polynomial, scaled so that far above the
// cut-off the gain is that of the Butterworth filter.
//
// As a function of its coefficients, a root loses a digit with every two orders. The roots themselves are tame: from
// the differential equation of the polynomial, s y'' - 2 (s + n) y' + 2 n y = 0, each satisfies
//     sum of 1 / (root - other roots) = 1 + n / root.
// Newton's method solves these equations for all roots at once, and from the guess below gains full precision within
// four steps at every order.
#include "iir/elementary.h"
#include "iir/linear_equations.h"
#include "iir/prototype.h"
#include "status.h"

namespace quordsp::backend {
namespace {

using Roots = std::vector<std::complex<Real>>;

// The time grows with the cube of the order: about a third of a second here.
constexpr std::int32_t kLargestBesselOrder = 300;

// For high orders the roots over n + 1/2 lie on a curve from j to -j that crosses the real axis at kVertex, where
// sqrt(1 + w^2) + log(-w / (1 + sqrt(1 + w^2))) = 0. Along it they are 1 / (n + 1/2) apart in a parameter t with
// dw/dt = -pi j w / sqrt(1 + w^2); t = 0 at kVertex.
constexpr Real kVertex = -0.66274341934918158097L;

std::complex<Real> slope(std::complex<Real> w)
{
    const std::complex<Real> direction = quotient(w, squareRoot(Real{1} + w * w));
    return std::numbers::pi_v<Real> * std::complex<Real>{direction.imag(), -direction.real()};
}

// A step along the curve by the classical Runge-Kutta method.
std::complex<Real> advanced(std::complex<Real> w, Real step)
{
    const std::complex<Real> first = slope(w) * step, second = slope(w + first / Real{2}) * step;
    const std::complex<Real> third = slope(w + second / Real{2}) * step, fourth = slope(w + third) * step;
    return w + (first + Real{2} * (second + third) + fourth) / Real{6};
}

// Those with a positive imaginary part, after the real one of an odd order, by ascending imaginary part; then the
// conjugates.
Roots guessedRoots(std::int32_t order)
{
    const Real scale = order + Real{0.5};
    Roots roots;
    roots.reserve(static_cast<std::size_t>(order));
    std::complex<Real> w = kVertex;
    if (order % 2)
        roots.push_back(w * scale);
    for (std::int32_t k = 0; k < order / 2; ++k) {
        w = advanced(w, (roots.empty() ? Real{0.5} : 1) / scale);
        roots.push_back(w * scale);
    }
    for (std::int32_t k = order % 2; k < order / 2 + order % 2; ++k)
        roots.push_back(std::conj(roots[static_cast<std::size_t>(k)]));
    return roots;
}

void improve(Roots& roots)
{
    const std::size_t count = roots.size();
    const Real order = static_cast<Real>(count);
    LinearEquations equations(count);
    for (std::size_t i = 0; i < count; ++i) {
        const auto row = equations.row(i);
        const std::complex<Real> reciprocal = quotient(1, roots[i]);
        std::complex<Real> excess = Real{-1} - order * reciprocal;
        row[i] = order * reciprocal * reciprocal;
        for (std::size_t j = 0; j < count; ++j) {
            if (j == i)
                continue;
            const std::complex<Real> term = quotient(1, roots[i] - roots[j]);
            excess += term;
            row[j] = term * term;
            row[i] -= row[j];
        }
        row[count] = -excess;
    }
    equations.solve();
    for (std::size_t i = 0; i < count; ++i)
        roots[i] += equations.row(i)[count];
}

// The order-th root of the product of the roots' magnitudes, (2 order - 1)!!.
Real asymptoteScale(std::int32_t order)
{
    Real sum = 0;
    for (std::int32_t k = 1; k < order; ++k)
        sum += logOnePlus(Real{2} * k);
    return exponential(sum / order);
}

} // namespace

Prototype besselPrototype(std::int32_t order, const Tolerances&)
{
    require(order <= kLargestBesselOrder, Status::DesignFailed);
    constexpr int kSteps = 4;
    Roots roots = guessedRoots(order);
    for (int k = 0; k < kSteps; ++k)
        improve(roots);
    const Real scale = asymptoteScale(order);
    Prototype prototype;
    for (std::int32_t k = 0; k < order / 2 + order % 2; ++k)
        prototype.sections.push_back({roots[static_cast<std::size_t>(k)] / scale});
    if (order % 2)
        prototype.sections.front().pole.imag(0);
    return prototype;
}

} // namespace quordsp::backend
