#include "transform/turning.h"

#include "transform/kernel.h"
#include "transform/vector.h"

#include <algorithm>

namespace quordsp::backend {

namespace {

template <std::size_t W>
[[gnu::always_inline]] inline void turn(std::size_t rows, ConstSplit x, ConstSplit twiddles, ConstSplit factors,
                                        Split y) noexcept
{
    for (std::size_t k = 0; k < rows; ++k)
        for (std::size_t lane = 0; lane < kLanes; lane += W) {
            const auto twiddle = load<W, false>(twiddles, k * twiddles.pitch + lane) * factors[k];
            store<W, false>(load<W, false>(x, k * x.pitch + lane) * twiddle, y, k * y.pitch + lane);
        }
}

template <std::size_t W>
[[gnu::always_inline]] inline void transpose(std::size_t count, ConstSplit x, Split lanes) noexcept
{
    for (std::size_t i = 0; i < count; i += W) {
        const std::size_t first = std::min(i, count - W);
        Point<Vector<W>> values[kLanes];
        for (std::size_t lane = 0; lane < kLanes; ++lane)
            values[lane] = load<W, false>(x, lane * x.pitch + first);
        storeInTurn<kLanes, W>(values, lanes.re + first * kLanes, lanes.im + first * kLanes);
    }
}

} // namespace

void turnRows(std::size_t rows, ConstSplit x, ConstSplit twiddles, ConstSplit factors, Split y)
{
    forThisMachine<turn<2>, turn<4>, turn<8>>()(rows, x, twiddles, factors, y);
}

void rowsToLanes(std::size_t count, ConstSplit x, Split lanes)
{
    forThisMachine<transpose<2>, transpose<4>, transpose<8>>()(count, x, lanes);
}

} // namespace quordsp::backend
