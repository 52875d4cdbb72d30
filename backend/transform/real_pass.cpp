#include "transform/real_pass.h"

#include "transform/pass_kernel.h"

#include <algorithm>

namespace quordsp::backend {

namespace {

// The last vector overlaps the one before, if it must.
template <std::size_t W, std::size_t R>
[[gnu::always_inline]] inline void forwardPass(const RealPass& pass, const double* x, double* first,
                                               Split others) noexcept
{
    const std::size_t radix = radixOf<R>(pass), count = pass.count;
#pragma clang loop vectorize(disable) // it is as wide as it should be
    for (std::size_t i = 0; i < count; i += W) {
        const std::size_t at = std::min(i, count - W);
        Points<Vector<W>, kCapacity<R>> a;
        for (std::size_t j = 0; j < radix; ++j) {
            loadReal(x + j * count + at, a[j].re);
            a[j].im = Vector<W>{};
        }
        apply<R>(pass, a);
        storeReal(a[0].re, first + at);
        for (std::size_t j = 1; j <= radix / 2; ++j)
            store<W, false>(a[j] * load<W, false>(pass.twiddles, (j - 1) * count + at), others,
                            (j - 1) * others.pitch + at);
    }
}

// With the conjugates of the rows that are left out; only the real part of the result is worked out.
template <std::size_t W, std::size_t R>
[[gnu::always_inline]] inline void inversePass(const RealPass& pass, const double* first, ConstSplit others,
                                               double* x) noexcept
{
    const std::size_t radix = radixOf<R>(pass), count = pass.count;
#pragma clang loop vectorize(disable) // it is as wide as it should be
    for (std::size_t i = 0; i < count; i += W) {
        const std::size_t at = std::min(i, count - W);
        Points<Vector<W>, kCapacity<R>> a;
        loadReal(first + at, a[0].re);
        a[0].im = Vector<W>{};
        for (std::size_t j = 1; j <= radix / 2; ++j) {
            const auto twiddle = load<W, false>(pass.twiddles, (j - 1) * count + at);
            a[radix - j] = load<W, false>(others, (j - 1) * others.pitch + at) * conjugate(twiddle);
            a[j] = conjugate(a[radix - j]);
        }
        apply<R>(pass, a);
        for (std::size_t j = 0; j < radix; ++j)
            storeReal(a[j].re, x + j * count + at);
    }
}

} // namespace

void chooseFunctions(RealPass& pass)
{
    withRadix(pass.radix, [&]<std::size_t R>() {
        if (pass.count < kFullyWideStride) {
            pass.forward = forwardPass<1, R>;
            pass.inverse = inversePass<1, R>;
        } else {
            pass.forward = forThisMachine<forwardPass<2, R>, forwardPass<4, R>, forwardPass<8, R>>();
            pass.inverse = forThisMachine<inversePass<2, R>, inversePass<4, R>, inversePass<8, R>>();
        }
    });
}

} // namespace quordsp::backend
