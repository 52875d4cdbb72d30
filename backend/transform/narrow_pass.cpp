// The first passes, whose stride is less than a vector holds: the vectors run over groups and strides alike, and each
// lane has twiddles of its own. Of a stride of 1 the outputs of a lane are neighbours.
#include "transform/pass_kernel.h"

#include <algorithm>
#include <bit>

namespace quordsp::backend {

namespace {

// Where lane i belongs: output j at [i / stride][j][i % stride].
struct Place {
    std::size_t group;
    std::size_t within;
};

// Lane by lane; place is that of the first, and then that of the lane after the last.
template <std::size_t R, std::size_t W>
[[gnu::always_inline]] inline void scatter(const Pass& pass, const Points<Vector<W>, kCapacity<R>>& a, Place& place,
                                           const Split& y)
{
    const std::size_t radix = radixOf<R>(pass);
    double re[kCapacity<R>][W], im[kCapacity<R>][W];
    for (std::size_t j = 0; j < radix; ++j)
        storeSplit<W>(a[j], re[j], im[j]);
    for (std::size_t lane = 0; lane < W; ++lane) {
        const Split target = y + (place.group * radix * pass.stride + place.within);
        for (std::size_t j = 0; j < radix; ++j) {
            target.re[j * pass.stride] = re[j][lane];
            target.im[j * pass.stride] = im[j][lane];
        }
        if (++place.within == pass.stride)
            place = {place.group + 1, 0};
    }
}

template <std::size_t W, std::size_t R, bool kInterleaved>
[[gnu::always_inline]] inline void narrowPass(const Pass& pass, const ConstSplit& from, const Split& to) noexcept
{
    const ConstSplit x = from; // lest they are read again after every value that is written
    const Split y = to;
    const std::size_t count = pass.groups * pass.stride;
    const std::size_t radix = radixOf<R>(pass);
    const ConstSplit twiddles = pass.laneTwiddles;
    Place place = {};
#pragma clang loop vectorize(disable) // it is as wide as it should be
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
        if (first != i)
            place = {first / pass.stride, first % pass.stride};
        scatter<R, W>(pass, a, place, y);
    }
}

} // namespace

void chooseNarrow(Pass& pass)
{
    withRadix(pass.radix, [&]<std::size_t R>() {
        if (pass.groups * pass.stride < kWideStride) {
            pass.ofSplit = pass.ofInterleaved = narrowPass<1, R, false>;
        } else if (pass.groups * pass.stride < kFullyWideStride) {
            pass.ofSplit = forThisMachine<narrowPass<2, R, false>, narrowPass<4, R, false>, narrowPass<4, R, false>>();
            pass.ofInterleaved =
                forThisMachine<narrowPass<2, R, true>, narrowPass<4, R, true>, narrowPass<4, R, true>>();
        } else {
            pass.ofSplit = forThisMachine<narrowPass<2, R, false>, narrowPass<4, R, false>, narrowPass<8, R, false>>();
            pass.ofInterleaved =
                forThisMachine<narrowPass<2, R, true>, narrowPass<4, R, true>, narrowPass<8, R, true>>();
        }
    });
}

} // namespace quordsp::backend
