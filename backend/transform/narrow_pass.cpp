// The first passes, whose stride is less than a vector holds: the vectors run over groups and strides alike, and each
// lane has twiddles of its own. Of a stride of 1 the outputs of a lane are neighbours.
#include "transform/pass_kernel.h"

#include <algorithm>
#include <bit>

namespace quordsp::backend {

namespace {

// Lane by lane: output j of lane i belongs at [i / stride][j][i % stride].
template <std::size_t R, std::size_t W>
[[gnu::always_inline]] inline void scatter(const Pass& pass, const Points<Vector<W>, kCapacity<R>>& a,
                                           std::size_t first, const Split& y)
{
    const std::size_t radix = radixOf<R>(pass);
    std::size_t within = first % pass.stride;
    Split target = y + (first / pass.stride) * radix * pass.stride;
    double re[kCapacity<R>][W], im[kCapacity<R>][W];
    for (std::size_t j = 0; j < radix; ++j)
        storeSplit<W>(a[j], re[j], im[j]);
    for (std::size_t lane = 0; lane < W; ++lane) {
        for (std::size_t j = 0; j < radix; ++j) {
            target.re[j * pass.stride + within] = re[j][lane];
            target.im[j * pass.stride + within] = im[j][lane];
        }
        if (++within == pass.stride) {
            within = 0;
            target = target + radix * pass.stride;
        }
    }
}

template <std::size_t W, std::size_t R, bool kInterleaved>
[[gnu::always_inline]] inline void narrowPass(const Pass& pass, ConstSplit x, Split y) noexcept
{
    const std::size_t count = pass.groups * pass.stride;
    const std::size_t radix = radixOf<R>(pass);
    const ConstSplit twiddles = pass.laneTwiddles;
    for (std::size_t i = 0; i < count; i += W) {
        const std::size_t first = std::min(i, count - W);
        Points<Vector<W>, kCapacity<R>> a;
        for (std::size_t j = 0; j < radix; ++j)
            a[j] = load<W, kInterleaved>(x, j * count + first);
        apply<R>(pass, a);
        for (std::size_t j = 1; j < radix; ++j)
            a[j] = a[j] * loadSplit<W>(twiddles.re + (j - 1) * count + first, twiddles.im + (j - 1) * count + first);
        if constexpr (W > 1 && std::has_single_bit(R)) {
            if (pass.stride == 1) {
                storeInTurn<R, W>(a.data(), y.re + first * R, y.im + first * R);
                continue;
            }
        }
        scatter<R, W>(pass, a, first, y);
    }
}

} // namespace

void chooseNarrow(Pass& pass)
{
    withRadix(pass.radix, [&]<std::size_t R>() {
        if (pass.groups * pass.stride < kWideStride) {
            pass.ofSplit = pass.ofInterleaved = narrowPass<1, R, false>;
        } else {
            pass.ofSplit = forThisMachine<narrowPass<2, R, false>, narrowPass<4, R, false>, narrowPass<8, R, false>>();
            pass.ofInterleaved =
                forThisMachine<narrowPass<2, R, true>, narrowPass<4, R, true>, narrowPass<8, R, true>>();
        }
    });
}

} // namespace quordsp::backend
