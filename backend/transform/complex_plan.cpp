#include "transform/complex_plan.h"

#include "buffer.h"
#include "transform/chirp.h"
#include "transform/four_step.h"
#include "transform/mixed_radix.h"

namespace quordsp::backend {

namespace {

// From here on the arrays of a transform no longer fit into a near cache.
constexpr std::size_t kLarge = 1 << 16;

} // namespace

std::unique_ptr<const ComplexPlan> makeComplexPlan(std::size_t n, std::size_t lanes)
{
    if (n > kMostElements)
        throw std::bad_alloc();
    const Factors factors = factorized(n);
    if (factors.rest != 1)
        return std::make_unique<Chirp>(n, n, n, lanes);
    if (lanes == 1 && n >= kLarge && FourStep::suits(n))
        return std::make_unique<FourStep>(n);
    return std::make_unique<MixedRadix>(n, lanes);
}

} // namespace quordsp::backend
