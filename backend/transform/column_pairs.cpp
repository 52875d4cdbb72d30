#include "transform/column_pairs.h"

#include "transform/kernel.h"
#include "transform/vector.h"

#include <algorithm>

namespace quordsp::backend {

namespace {

// Rows of the first column times 1 and of the second times i, with the mirror images that belong to them.
template <std::size_t W>
[[gnu::always_inline]] inline void pairUp(std::size_t rows, ConstSplit halves, Split tile) noexcept
{
    for (std::size_t i = 0; i <= rows / 2; ++i) {
        const std::size_t opposite = (rows - i) % rows;
        for (std::size_t lane = 0; lane < kLanes; lane += W) {
            auto a = load<W, false>(halves, i * halves.pitch + lane);
            auto b = load<W, false>(halves, i * halves.pitch + kLanes + lane);
            if (i == opposite)
                a.im = b.im = Vector<W>{};
            store<W, false>(a - quarterTurn(b), tile, i * kLanes + lane);
            store<W, false>(conjugate(a) - quarterTurn(conjugate(b)), tile, opposite * kLanes + lane);
        }
    }
}

template <std::size_t W>
[[gnu::always_inline]] inline void takeApart(std::size_t rows, ConstSplit tile, double* y, std::size_t pitch) noexcept
{
    for (std::size_t i = 0; i < rows; ++i)
        for (std::size_t lane = 0; lane < kLanes; lane += W) {
            const auto pair = load<W, false>(tile, i * kLanes + lane);
            storeReal(pair.re, y + i * pitch + lane);
            storeReal(pair.im, y + i * pitch + kLanes + lane);
        }
}

} // namespace

ColumnPairs::ColumnPairs(std::size_t rows, std::size_t columns)
    : rows_(rows),
      columns_(columns),
      tile_(hasMany() ? kLanes * rows : 0),
      bins_(hasOne() ? rows / 2 + 1 : 0),
      column_(makeBuffer(hasOne() ? rows : 0))
{
    if (hasMany())
        many_.emplace(rows);
    if (hasOne())
        one_.emplace(rows);
}

void ColumnPairs::invertOne(ConstSplit halves, double* y) const
{
    for (std::size_t i = 0; i <= rows_ / 2; ++i)
        bins_.get().set(i, halves[i * columns_]);
    one_->inverse(ConstSplit(bins_), column_.get());
    for (std::size_t i = 0; i < rows_; ++i)
        y[i * columns_] = column_[i];
}

void ColumnPairs::inverse(ConstSplit halves, double* y) const
{
    if (rows_ == 1) {
        std::copy_n(halves.re, columns_, y);
        return;
    }
    std::size_t first = 0;
    for (; first + kAtOnce <= columns_; first += kAtOnce) {
        const Split tile = exchanged(tile_.get());
        forThisMachine<pairUp<2>, pairUp<4>, pairUp<8>>()(rows_, (halves + first).withPitch(columns_), tile_);
        many_->forward(ConstSplit(tile), tile);
        forThisMachine<takeApart<2>, takeApart<4>, takeApart<8>>()(rows_, tile_, y + first, columns_);
    }
    for (; first < columns_; ++first)
        invertOne(halves + first, y + first);
}

} // namespace quordsp::backend
