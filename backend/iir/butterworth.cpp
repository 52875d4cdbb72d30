// Butterworth: maximally flat; the poles lie evenly on the left half of the unit circle.
#include "iir/prototype.h"

namespace quordsp::backend {

Prototype butterworthPrototype(std::int32_t order, const Tolerances&)
{
    // k pi / (2 order) off the imaginary axis.
    const Real whole = Real{2} * order;
    const auto section = [whole](std::int32_t k) { return PrototypeSection{{-sinPi(k, whole), cosPi(k, whole)}}; };
    return {sectionsByQuality(order, section)};
}

} // namespace quordsp::backend
