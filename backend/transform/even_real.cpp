// Even sizes n = 2m: the complex transform Z of x[0] + i x[1], x[2] + i x[3], ... holds the transforms E of the even
// and O of the odd elements as Z = E + i O, and both are conjugate symmetric. The spectrum is
// X[k] = E[k] + exp(-2 pi i k/n) O[k].
#include "transform/even_real.h"

#include "transform/kernel.h"
#include "transform/roots.h"
#include "transform/vector.h"
#include "transform/work.h"

namespace quordsp::backend {

namespace {

// Elements k.. and m - k.., which belong together.
template <std::size_t W, bool kInterleaved>
[[gnu::always_inline]] inline void join(ConstSplit z, ConstSplit twiddles, std::size_t m, std::size_t k, Split spectrum)
{
    const std::size_t mirrored = m - k - (W - 1);
    const auto a = load<W, false>(z, k), b = conjugate(reversed<W>(load<W, false>(z, mirrored)));
    const auto even = 0.5 * (a + b);
    const auto odd = quarterTurn(0.5 * (a - b)) * load<W, false>(twiddles, k);
    store<W, kInterleaved>(even + odd, spectrum, k);
    store<W, kInterleaved>(reversed<W>(conjugate(even - odd)), spectrum, mirrored);
}

template <std::size_t W, bool kInterleaved>
[[gnu::always_inline]] inline void split(ConstSplit spectrum, ConstSplit twiddles, std::size_t m, std::size_t k,
                                         Split z)
{
    const std::size_t mirrored = m - k - (W - 1);
    const auto a = load<W, kInterleaved>(spectrum, k);
    const auto b = conjugate(reversed<W>(load<W, kInterleaved>(spectrum, mirrored)));
    const auto even = a + b;
    const auto odd = quarterTurn((a - b) * conjugate(load<W, false>(twiddles, k))); // times -1
    store<W, false>(even - odd, z, k);
    store<W, false>(reversed<W>(conjugate(even + odd)), z, mirrored);
}

// Pairs from k on; what is less than a vector in ever narrower ones.
template <std::size_t W, bool kInterleaved>
[[gnu::always_inline]] inline void joinPairs(ConstSplit z, ConstSplit twiddles, std::size_t m, std::size_t k,
                                             Split spectrum) noexcept
{
    for (; k + W <= m / 2 + 1; k += W)
        join<W, kInterleaved>(z, twiddles, m, k, spectrum);
    if constexpr (W > 1)
        joinPairs<W / 2, kInterleaved>(z, twiddles, m, k, spectrum);
}

template <std::size_t W, bool kInterleaved>
[[gnu::always_inline]] inline void splitPairs(ConstSplit spectrum, ConstSplit twiddles, std::size_t m, std::size_t k,
                                              Split z) noexcept
{
    for (; k + W <= m / 2 + 1; k += W)
        split<W, kInterleaved>(spectrum, twiddles, m, k, z);
    if constexpr (W > 1)
        splitPairs<W / 2, kInterleaved>(spectrum, twiddles, m, k, z);
}

template <bool kInterleaved>
void joinHalves(ConstSplit z, ConstSplit twiddles, std::size_t m, Split spectrum)
{
    const auto [re, im] = z[0];
    forThisMachine<joinPairs<2, kInterleaved>, joinPairs<4, kInterleaved>, joinPairs<8, kInterleaved>>()(z, twiddles, m,
                                                                                                         1, spectrum);
    spectrum.set(0, {re + im, 0});
    spectrum.set(m, {re - im, 0});
}

template <bool kInterleaved>
void splitHalves(ConstSplit spectrum, double last, ConstSplit twiddles, std::size_t m, Split z)
{
    forThisMachine<splitPairs<2, kInterleaved>, splitPairs<4, kInterleaved>, splitPairs<8, kInterleaved>>()(
        spectrum, twiddles, m, 1, z);
    z.set(0, {spectrum.re[0] + last, spectrum.re[0] - last});
}

} // namespace

EvenReal::EvenReal(std::size_t n) : half_(n / 2), complex_(makePlan<ComplexPlan>(half_)), twiddles_(half_ / 2 + 1)
{
    const Roots root(n);
    for (std::size_t k = 0; k <= half_ / 2; ++k)
        twiddles_.get().set(k, root(k));
}

void EvenReal::forward(const double* x, const Split& spectrum, double* work) const
{
    Work arrays(work);
    const Split z = arrays.take(half_);
    complex_->forward(ConstSplit{x, x + 1, 2}, z, arrays.rest());
    (spectrum.step == 1 ? joinHalves<false> : joinHalves<true>)(z, twiddles_, half_, spectrum);
}

void EvenReal::inverse(const ConstSplit& spectrum, double last, double* x, double* work) const
{
    Work arrays(work);
    const Split z = arrays.take(half_);
    (spectrum.step == 1 ? splitHalves<false> : splitHalves<true>)(spectrum, last, twiddles_, half_, z);
    complex_->inverse(z, Split{x, x + 1, 2}, arrays.rest());
}

} // namespace quordsp::backend
