// Inverse Chebyshev: flat in the pass band, equal ripples in the stop band, which begins at 1 rad/s. It is 1 minus a
// Chebyshev filter of 1 / s, in power: the poles are reciprocals of such poles, the zeros those of the polynomial.
#include "iir/ellipse.h"

namespace quordsp::backend {

Prototype inverseChebyshevPrototype(std::int32_t order, const Tolerances& tolerances)
{
    const PoleEllipse ellipse(order, std::sqrt(powerExcess(tolerances.attenuation)));
    const Real whole = Real{2} * order;
    const auto section = [&](std::int32_t k) {
        const std::complex<Real> pole = ellipse.pole(k);
        return PrototypeSection{pole / std::norm(pole), 1 / cosPi(k, whole)};
    };
    return {sectionsByQuality(order, section)};
}

} // namespace quordsp::backend
