// Both axes go through transforms of kLanes rows or columns at a time, in a tile [n][kLanes]. Real matrices put two
// rows, or two columns, into one complex lane: by the symmetry of real spectra they can be told apart afterwards.
#include "transform/matrix.h"

#include "status.h"
#include "transform/interleaved.h"
#include "transform/order.h"
#include "transform/prepared.h"
#include "transform/split_buffer.h"

#include <algorithm>

namespace quordsp::backend {

namespace {

struct Size {
    std::size_t rows;
    std::size_t columns;
};

// The transforms of both axes, and a tile for either.
class Axes {
public:
    explicit Axes(Size size)
        : size(size),
          tile_(kLanes * std::max(size.rows, size.columns)),
          alongRows_(checked(size).columns),
          alongColumns_(size.rows)
    {}

    Split tile() const { return tile_; }
    void transformRows() const { alongRows_.forward(ConstSplit(tile_), tile_.get()); }
    void transformColumns() const { alongColumns_.forward(ConstSplit(tile_), tile_.get()); }
    std::size_t count() const { return size.rows * size.columns; }

    const Size size;

private:
    static Size checked(Size size)
    {
        if (size.rows > kMostElements / size.columns)
            throw std::bad_alloc();
        return size;
    }

    SplitBuffer tile_;
    Prepared<LanePlan> alongRows_;
    Prepared<LanePlan> alongColumns_;
};

Size checkedSize(MatrixSize size, const void* x, const void* y)
{
    requirePositiveCount(size.rows);
    requirePositiveCount(size.columns);
    requireArrays(x, y);
    return {static_cast<std::size_t>(size.rows), static_cast<std::size_t>(size.columns)};
}

Size resultSize(Size own, MatrixSize result)
{
    return {result.rows > 0 ? static_cast<std::size_t>(result.rows) : own.rows,
            result.columns > 0 ? static_cast<std::size_t>(result.columns) : own.columns};
}

// Where rows and columns stand in a matrix.
struct Order {
    BinOrder rows;
    BinOrder columns;

    Order(Size size, bool shifted) : rows(size.rows, shifted), columns(size.columns, shifted) {}
};

// Calls body with the first of each so many neighbours and how many there are.
template <class Body>
void forEachBlock(std::size_t count, std::size_t atOnce, Body body)
{
    for (std::size_t first = 0; first < count; first += atOnce)
        body(first, std::min(atOnce, count - first));
}

void clearRows(Split tile, std::size_t first, std::size_t end)
{
    for (std::size_t i = first * kLanes; i < end * kLanes; ++i)
        tile.set(i, {0, 0});
}

// Forward: the used part of x, the result in the order to. Inverse: tile is exchanged, and everything divided.
void transform(const Axes& axes, Split tile, const Complex* x, std::size_t xColumns, Size used, const Order& from,
               const Order& to, double divisor, Complex* y)
{
    const auto [rows, columns] = axes.size;
    forEachBlock(used.rows, kLanes, [&](std::size_t first, std::size_t count) {
        clearRows(tile, 0, columns);
        for (std::size_t lane = 0; lane < count; ++lane)
            for (std::size_t j = 0; j < used.columns; ++j)
                tile.set(j * kLanes + lane,
                         pointOf(x[from.rows.placeOf(first + lane) * xColumns + from.columns.placeOf(j)]));
        axes.transformRows();
        for (std::size_t lane = 0; lane < count; ++lane)
            for (std::size_t j = 0; j < columns; ++j)
                y[(first + lane) * columns + to.columns.placeOf(j)] = complexOf(tile[j * kLanes + lane]);
    });
    forEachBlock(columns, kLanes, [&](std::size_t first, std::size_t count) {
        for (std::size_t i = 0; i < used.rows; ++i)
            for (std::size_t lane = 0; lane < count; ++lane)
                tile.set(i * kLanes + lane, pointOf(y[i * columns + first + lane]));
        clearRows(tile, used.rows, rows);
        axes.transformColumns();
        for (std::size_t i = 0; i < rows; ++i)
            for (std::size_t lane = 0; lane < count; ++lane)
                y[to.rows.placeOf(i) * columns + first + lane] = complexOf(tile[i * kLanes + lane] / divisor);
    });
}

// The spectra of the two real rows in one lane, of a transform of n points.
struct Pair {
    Point<double> first;
    Point<double> second;
};
Pair pairAt(ConstSplit tile, std::size_t k, std::size_t n, std::size_t lane)
{
    const auto a = tile[k * kLanes + lane], b = conjugate(tile[(k > 0 ? n - k : 0) * kLanes + lane]);
    return {0.5 * (a + b), quarterTurn(0.5 * (a - b))};
}

// Bins 0..columns/2 of all rows, in their places.
void transformRealRows(const Axes& axes, const double* x, std::size_t xColumns, Size used, const Order& to, Complex* y)
{
    const std::size_t columns = axes.size.columns;
    const Split tile = axes.tile();
    forEachBlock(used.rows, 2 * kLanes, [&](std::size_t first, std::size_t count) {
        clearRows(tile, 0, columns);
        for (std::size_t row = 0; row < count; ++row)
            for (std::size_t j = 0; j < used.columns; ++j)
                (row < kLanes ? tile.re : tile.im)[j * kLanes + row % kLanes] = x[(first + row) * xColumns + j];
        axes.transformRows();
        for (std::size_t row = 0; row < count; ++row)
            for (std::size_t k = 0; k <= columns / 2; ++k) {
                const Pair pair = pairAt(tile, k, columns, row % kLanes);
                y[(first + row) * columns + to.columns.placeOf(k)] = complexOf(row < kLanes ? pair.first : pair.second);
            }
    });
}

// Columns 0..columns/2, and with each its mirror image. A column that is its own has real bins where rows are theirs.
void transformHalfTheColumns(const Axes& axes, std::size_t usedRows, const Order& to, Complex* y)
{
    const auto [rows, columns] = axes.size;
    const Split tile = axes.tile();
    const auto element = [&](std::size_t i, std::size_t k) -> Complex& {
        return y[to.rows.placeOf(i) * columns + to.columns.placeOf(k)];
    };
    forEachBlock(columns / 2 + 1, kLanes, [&](std::size_t first, std::size_t count) {
        for (std::size_t i = 0; i < usedRows; ++i)
            for (std::size_t lane = 0; lane < count; ++lane)
                tile.set(i * kLanes + lane, pointOf(y[i * columns + to.columns.placeOf(first + lane)]));
        clearRows(tile, usedRows, rows);
        axes.transformColumns();
        for (std::size_t lane = 0; lane < count; ++lane) {
            const std::size_t k = first + lane, mirrored = (columns - k) % columns;
            for (std::size_t i = 0; i < (k == mirrored ? rows / 2 + 1 : rows); ++i) {
                const auto value = tile[i * kLanes + lane];
                const std::size_t opposite = (rows - i) % rows;
                element(i, k) = complexOf(value);
                element(opposite, mirrored) = complexOf(conjugate(value));
                if (k == mirrored && i == opposite)
                    element(i, k).imaginary = 0;
            }
        }
    });
}

// Rows 0..rows/2, inversely, into halves: [rows/2 + 1][columns].
void invertHalfTheRows(const Axes& axes, const Complex* x, const Order& from, Split halves)
{
    const auto [rows, columns] = axes.size;
    const Split tile = exchanged(axes.tile());
    forEachBlock(rows / 2 + 1, kLanes, [&](std::size_t first, std::size_t count) {
        clearRows(tile, 0, columns);
        for (std::size_t lane = 0; lane < count; ++lane)
            for (std::size_t j = 0; j < columns; ++j)
                tile.set(j * kLanes + lane,
                         pointOf(x[from.rows.placeOf(first + lane) * columns + from.columns.placeOf(j)]));
        axes.transformRows();
        for (std::size_t lane = 0; lane < count; ++lane)
            for (std::size_t j = 0; j < columns; ++j)
                halves.set((first + lane) * columns + j, tile[j * kLanes + lane]);
    });
}

// Two columns a lane: with the mirror images of their lower halves, the first is the real part of the result.
void invertPairsOfColumns(const Axes& axes, ConstSplit halves, double* y)
{
    const auto [rows, columns] = axes.size;
    const Split tile = exchanged(axes.tile());
    const auto divisor = static_cast<double>(axes.count());
    forEachBlock(columns, 2 * kLanes, [&](std::size_t first, std::size_t count) {
        for (std::size_t i = 0; i <= rows / 2; ++i)
            for (std::size_t lane = 0; lane < kLanes; ++lane) {
                const std::size_t at = i * columns + first + lane, opposite = (rows - i) % rows;
                Point<double> a = lane < count ? halves[at] : Point<double>{0, 0};
                Point<double> b = lane + kLanes < count ? halves[at + kLanes] : Point<double>{0, 0};
                if (i == opposite)
                    a.im = b.im = 0;
                tile.set(i * kLanes + lane, a - quarterTurn(b));
                tile.set(opposite * kLanes + lane, conjugate(a) - quarterTurn(conjugate(b)));
            }
        axes.transformColumns();
        for (std::size_t i = 0; i < rows; ++i)
            for (std::size_t j = 0; j < count; ++j)
                y[i * columns + first + j] = (j < kLanes ? tile.re : tile.im)[i * kLanes + j % kLanes] / divisor;
    });
}

} // namespace

void matrixFft(const double* x, MatrixSize size, MatrixSize result, bool shift, Complex* y)
{
    const Size own = checkedSize(size, x, y);
    const Axes axes(resultSize(own, result));
    const Size used = {std::min(own.rows, axes.size.rows), std::min(own.columns, axes.size.columns)};
    const Order to(axes.size, shift);
    transformRealRows(axes, x, own.columns, used, to, y);
    transformHalfTheColumns(axes, used.rows, to, y);
}

void matrixFft(const Complex* x, MatrixSize size, MatrixSize result, bool shift, Complex* y)
{
    const Size own = checkedSize(size, x, y);
    const Axes axes(resultSize(own, result));
    const Size used = {std::min(own.rows, axes.size.rows), std::min(own.columns, axes.size.columns)};
    transform(axes, axes.tile(), x, own.columns, used, Order(axes.size, false), Order(axes.size, shift), 1, y);
}

void matrixInverseFft(const Complex* x, MatrixSize size, bool shifted, double* y)
{
    const Axes axes(checkedSize(size, x, y));
    const SplitBuffer halves((axes.size.rows / 2 + 1) * axes.size.columns);
    invertHalfTheRows(axes, x, Order(axes.size, shifted), halves);
    invertPairsOfColumns(axes, halves, y);
}

void matrixInverseFft(const Complex* x, MatrixSize size, bool shifted, Complex* y)
{
    const Axes axes(checkedSize(size, x, y));
    const Order natural(axes.size, false), from(axes.size, shifted);
    transform(axes, exchanged(axes.tile()), x, axes.size.columns, axes.size, from, natural,
              static_cast<double>(axes.count()), y);
}

} // namespace quordsp::backend
