// Chebyshev: equal ripples in the pass band, which ends at 1 rad/s, and no zeros.
#include "iir/ellipse.h"

namespace quordsp::backend {

Prototype chebyshevPrototype(std::int32_t order, const Tolerances& tolerances)
{
    const Real excess = powerExcess(tolerances.ripple);
    const PoleEllipse ellipse(order, 1 / std::sqrt(excess));
    const auto section = [&](std::int32_t k) { return PrototypeSection{ellipse.pole(k)}; };
    return {sectionsByQuality(order, section), gainAtZero(order, excess)};
}

} // namespace quordsp::backend
