// Butterworth: maximally flat; the poles lie evenly on the left half of the unit circle.
#include "iir/prototype.h"

namespace quordsp::backend {

Prototype butterworthPrototype(std::int32_t order, const Tolerances&)
{
    Prototype prototype;
    prototype.sections.reserve(static_cast<std::size_t>(order / 2 + order % 2));
    // The poles stand k pi / (2 order) off the imaginary axis, k odd; k = order is the real pole.
    const Real whole = Real{2} * order;
    for (std::int32_t k = order - 1 + order % 2; k > 0; k -= 2)
        prototype.sections.push_back({{-sinPi(k, whole), cosPi(k, whole)}});
    return prototype;
}

} // namespace quordsp::backend
