#include "transform/real_plan.h"

#include "buffer.h"
#include "transform/even_real.h"
#include "transform/kernel.h"
#include "transform/odd_real.h"
#include "transform/vector.h"

namespace quordsp::backend {
namespace {

// From bin k on; what is less than a vector in ever narrower ones.
template <std::size_t W, bool kInterleaved>
[[gnu::always_inline]] inline void mirror(Split spectrum, std::size_t n, std::size_t k) noexcept
{
    const std::size_t end = (n + 1) / 2;
    for (; k + W <= end; k += W) {
        const auto bins = conjugate(load<W, kInterleaved>(spectrum, k));
        store<W, kInterleaved>(reversed<W>(bins), spectrum, n - k - (W - 1));
    }
    if constexpr (W > 1)
        mirror<W / 2, kInterleaved>(spectrum, n, k);
}

std::unique_ptr<const RealMethod> methodFor(std::size_t n)
{
    if (n > kMostElements)
        throw std::bad_alloc();
    if (n % 2 == 0)
        return std::make_unique<EvenReal>(n);
    return std::make_unique<OddReal>(n);
}

} // namespace

RealPlan::RealPlan(std::size_t n) : n_(n), method_(methodFor(n)) {}

void completeSpectrum(Split spectrum, std::size_t n)
{
    (spectrum.step == 1 ? forThisMachine<mirror<2, false>, mirror<4, false>, mirror<8, false>>()
                        : forThisMachine<mirror<2, true>, mirror<4, true>, mirror<8, true>>())(spectrum, n, 1);
}

} // namespace quordsp::backend
