// Even sizes n = 2m: the complex transform Z of x[0] + i x[1], x[2] + i x[3], ... holds the transforms E of the even
// and O of the odd elements as Z = E + i O, and both are conjugate symmetric. The spectrum is
// X[k] = E[k] + exp(-2 pi i k/n) O[k].
#include "transform/real_plan.h"

#include "transform/kernel.h"
#include "transform/roots.h"
#include "transform/vector.h"
#include "transform/work.h"

#include <algorithm>

namespace quordsp::backend {

namespace {

// Elements k.. and m - k.., which belong together.
template <std::size_t W>
[[gnu::always_inline]] inline void join(ConstSplit z, ConstSplit twiddles, std::size_t m, std::size_t k, Split spectrum)
{
    const std::size_t mirrored = m - k - (W - 1);
    const auto a = load<W, false>(z, k), b = conjugate(reversed<W>(load<W, false>(z, mirrored)));
    const auto even = 0.5 * (a + b);
    const auto odd = quarterTurn(0.5 * (a - b)) * load<W, false>(twiddles, k);
    store<W, false>(even + odd, spectrum, k);
    store<W, false>(reversed<W>(conjugate(even - odd)), spectrum, mirrored);
}

template <std::size_t W>
[[gnu::always_inline]] inline void split(ConstSplit spectrum, ConstSplit twiddles, std::size_t m, std::size_t k,
                                         Split z)
{
    const std::size_t mirrored = m - k - (W - 1);
    const auto a = load<W, false>(spectrum, k), b = conjugate(reversed<W>(load<W, false>(spectrum, mirrored)));
    const auto even = a + b;
    const auto odd = quarterTurn((a - b) * conjugate(load<W, false>(twiddles, k))); // times -1
    store<W, false>(even - odd, z, k);
    store<W, false>(reversed<W>(conjugate(even + odd)), z, mirrored);
}

template <std::size_t W>
[[gnu::always_inline]] inline void joinPairs(ConstSplit z, ConstSplit twiddles, std::size_t m, Split spectrum) noexcept
{
    std::size_t k = 1;
    for (; k + W <= m / 2 + 1; k += W)
        join<W>(z, twiddles, m, k, spectrum);
    for (; k <= m / 2; ++k)
        join<1>(z, twiddles, m, k, spectrum);
}

template <std::size_t W>
[[gnu::always_inline]] inline void splitPairs(ConstSplit spectrum, ConstSplit twiddles, std::size_t m, Split z) noexcept
{
    std::size_t k = 1;
    for (; k + W <= m / 2 + 1; k += W)
        split<W>(spectrum, twiddles, m, k, z);
    for (; k <= m / 2; ++k)
        split<1>(spectrum, twiddles, m, k, z);
}

void joinHalves(ConstSplit z, ConstSplit twiddles, std::size_t m, Split spectrum)
{
    const double first = z.re[0] + z.im[0], last = z.re[0] - z.im[0];
    forThisMachine<joinPairs<2>, joinPairs<4>, joinPairs<8>>()(z, twiddles, m, spectrum);
    spectrum.set(0, {first, 0});
    spectrum.set(m, {last, 0});
}

void splitHalves(ConstSplit spectrum, ConstSplit twiddles, std::size_t m, Split z)
{
    forThisMachine<splitPairs<2>, splitPairs<4>, splitPairs<8>>()(spectrum, twiddles, m, z);
    z.set(0, {spectrum.re[0] + spectrum.re[m], spectrum.re[0] - spectrum.re[m]});
}

} // namespace

RealPlan::RealPlan(std::size_t n) : n_(n), points_(n % 2 == 0 ? n / 2 : n), complex_(makePlan<ComplexPlan>(points_))
{
    if (n % 2 != 0)
        return;
    twiddles_ = SplitBuffer(n / 4 + 1);
    const Roots root(n);
    for (std::size_t k = 0; k <= n / 4; ++k)
        twiddles_.get().set(k, root(k));
}

void RealPlan::forward(const double* x, Split spectrum, double* work) const
{
    Work arrays(work);
    const Split z = arrays.take(points_);
    if (n_ % 2 == 0) {
        complex_->forward(ConstSplit{x, x + 1, 2}, z, arrays.rest());
        joinHalves(z, twiddles_, points_, spectrum);
    } else {
        for (std::size_t i = 0; i < points_; ++i)
            z.set(i, {x[i], 0});
        complex_->forward(z, z, arrays.rest());
        for (std::size_t k = 0; k < bins(); ++k)
            spectrum.set(k, z[k]);
        spectrum.set(0, {z.re[0], 0});
    }
}

void RealPlan::inverse(ConstSplit spectrum, double* x, double* work) const
{
    Work arrays(work);
    const Split z = arrays.take(points_);
    if (n_ % 2 == 0) {
        splitHalves(spectrum, twiddles_, points_, z);
        complex_->inverse(z, Split{x, x + 1, 2}, arrays.rest());
    } else {
        z.set(0, {spectrum[0].re, 0});
        for (std::size_t k = 1; k < bins(); ++k) {
            z.set(k, spectrum[k]);
            z.set(n_ - k, conjugate(spectrum[k]));
        }
        complex_->inverse(z, z, arrays.rest());
        std::copy_n(z.re, n_, x);
    }
}

} // namespace quordsp::backend
