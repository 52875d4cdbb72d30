// Passes that run over the stride with vectors. All lanes of a group have the same twiddles.
#include "transform/pass_kernel.h"

#include <algorithm>

namespace quordsp::backend {

namespace {

// The last vector of a row overlaps the one before, if it must.
template <std::size_t W, std::size_t R, bool kTwiddled, bool kLoadInterleaved, bool kStoreInterleaved>
[[gnu::always_inline]] inline void runRows(const Pass& pass, const ConstSplit x, const Split y)
{
    const std::size_t radix = radixOf<R>(pass), length = pass.length;
    const std::size_t rows = pass.rows;
    const std::size_t xPitch = pass.pitch ? pass.pitch : x.pitch, yPitch = pass.pitch ? pass.pitch : y.pitch;
    const std::size_t xStep = pass.groups * rows * xPitch, yStep = rows * yPitch;
    for (std::size_t group = 0; group < pass.groups; ++group) {
        const Point<double>* const twiddles = pass.groupTwiddles + group * (radix - 1);
        for (std::size_t row = 0; row < rows; ++row) {
            const std::size_t xRow = (group * rows + row) * xPitch, yRow = (group * radix * rows + row) * yPitch;
#pragma clang loop vectorize(disable) // it is as wide as it should be; looking for overlaps costs more than it does
            for (std::size_t i = 0; i < length; i += W) {
                const std::size_t first = std::min(i, length - W);
                Points<Vector<W>, kCapacity<R>> a;
                for (std::size_t j = 0; j < radix; ++j)
                    a[j] = load<W, kLoadInterleaved>(x, xRow + j * xStep + first);
                apply<R>(pass, a);
                if constexpr (kTwiddled)
                    for (std::size_t j = 1; j < radix; ++j)
                        a[j] = a[j] * twiddles[j - 1];
                for (std::size_t j = 0; j < radix; ++j)
                    store<W, kStoreInterleaved>(a[j], y, yRow + j * yStep + first);
            }
        }
    }
}

template <std::size_t W, std::size_t R, bool kInterleaved>
[[gnu::always_inline]] inline void widePass(const Pass& pass, const ConstSplit& x, const Split& y) noexcept
{
    runRows<W, R, true, kInterleaved, false>(pass, x, y);
}

template <std::size_t W, std::size_t R, bool kInterleaved>
[[gnu::always_inline]] inline void lastPass(const Pass& pass, const ConstSplit& x, const Split& y) noexcept
{
    runRows<W, R, false, false, kInterleaved>(pass, x, y);
}

} // namespace

void chooseWide(Pass& pass)
{
    withRadix(pass.radix, [&]<std::size_t R>() {
        if (pass.stride < kFullyWideStride) {
            pass.ofSplit = forThisMachine<widePass<2, R, false>, widePass<4, R, false>, widePass<4, R, false>>();
            pass.ofInterleaved = nullptr; // it is not the first one
        } else {
            pass.ofSplit = forThisMachine<widePass<2, R, false>, widePass<4, R, false>, widePass<8, R, false>>();
            pass.ofInterleaved = forThisMachine<widePass<2, R, true>, widePass<4, R, true>, widePass<8, R, true>>();
        }
    });
}

void chooseLast(Pass& pass)
{
    withRadix(pass.radix, [&]<std::size_t R>() {
        if (pass.stride < kWideStride) {
            pass.ofSplit = pass.ofInterleaved = lastPass<1, R, false>;
        } else if (pass.stride < kFullyWideStride) {
            pass.ofSplit = forThisMachine<lastPass<2, R, false>, lastPass<4, R, false>, lastPass<4, R, false>>();
            pass.ofInterleaved = forThisMachine<lastPass<2, R, true>, lastPass<4, R, true>, lastPass<4, R, true>>();
        } else {
            pass.ofSplit = forThisMachine<lastPass<2, R, false>, lastPass<4, R, false>, lastPass<8, R, false>>();
            pass.ofInterleaved = forThisMachine<lastPass<2, R, true>, lastPass<4, R, true>, lastPass<8, R, true>>();
        }
    });
}

} // namespace quordsp::backend
