#include "transform/complex_plan.h"

#include "buffer.h"
#include "transform/chirp.h"
#include "transform/mixed_radix.h"

namespace quordsp::backend {

std::unique_ptr<const ComplexPlan> makeComplexPlan(std::size_t n)
{
    if (n > kMostElements)
        throw std::bad_alloc();
    const Factors factors = factorized(n);
    if (factors.rest == 1)
        return std::make_unique<MixedRadix>(n, factors.radices);
    return std::make_unique<Chirp>(n);
}

} // namespace quordsp::backend
