// Rows are transformed one after the other; columns kLanes at once, where they stand, and the last few of them one
// after the other. The spectrum of a real matrix needs half of them: the others are their mirror images.
#include "transform/matrix.h"

#include "status.h"
#include "transform/column_pairs.h"
#include "transform/columns.h"
#include "transform/division.h"
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

    std::size_t count() const { return rows * columns; }
};

Size checkedSize(MatrixSize size, const void* x, const void* y)
{
    requirePositiveCount(size.rows);
    requirePositiveCount(size.columns);
    requireArrays(x, y);
    return {static_cast<std::size_t>(size.rows), static_cast<std::size_t>(size.columns)};
}

Size withMemory(Size size)
{
    if (size.rows > kMostElements / size.columns)
        throw std::bad_alloc();
    return size;
}

// A single column stands as a single row does.
Size asRow(Size size)
{
    return {1, size.count()};
}

// Of a matrix x, what of it is used and where it stands; and the size of its transform.
struct Shape {
    Size used;
    std::size_t pitch; // from row to row
    std::size_t step;  // from column to column
    Size all;
};
Shape checkedShape(MatrixSize size, MatrixSize result, const void* x, const void* y)
{
    const Size own = checkedSize(size, x, y);
    const Size all = withMemory({result.rows > 0 ? static_cast<std::size_t>(result.rows) : own.rows,
                                 result.columns > 0 ? static_cast<std::size_t>(result.columns) : own.columns});
    const Size used = {std::min(own.rows, all.rows), std::min(own.columns, all.columns)};
    return all.columns == 1 ? Shape{asRow(used), 0, own.columns, asRow(all)} : Shape{used, own.columns, 1, all};
}

Split columnsOf(Complex* y, Size size)
{
    return splitOf(y).withPitch(size.columns);
}

void shiftMatrix(Complex* y, Size size)
{
    for (std::size_t i = 0; i < size.rows; ++i)
        shiftBins(y + i * size.columns, size.columns);
    std::rotate(y, y + (size.rows - centreOf(size.rows)) * size.columns, y + size.count());
}

// A row of a matrix that may be shifted.
const Complex* rowOf(const Complex* x, Size size, std::size_t i, bool shifted)
{
    return x + (shifted ? (i + centreOf(size.rows)) % size.rows : i) * size.columns;
}

// Makes a column its own mirror image to the last bit.
void makeSymmetric(Complex* column, Size size)
{
    for (std::size_t i = 0; i <= size.rows / 2; ++i) {
        const std::size_t opposite = (size.rows - i) % size.rows;
        const Complex value = column[i * size.columns];
        column[opposite * size.columns] = {value.real, i == opposite ? 0 : -value.imaginary};
    }
}

// Fills in the mirror images of some columns.
void mirrorColumns(Complex* y, Size size, std::size_t first, std::size_t count)
{
    const auto isItsOwn = [&](std::size_t k) { return k == 0 || 2 * k == size.columns; };
    const std::size_t begin = first + isItsOwn(first), end = first + count - isItsOwn(first + count - 1);
    for (const std::size_t k : {first, first + count - 1})
        if (isItsOwn(k))
            makeSymmetric(y + k, size);
    for (std::size_t i = 0; i < size.rows; ++i) {
        const Complex* const row = y + i * size.columns;
        Complex* const opposite = y + (size.rows - i) % size.rows * size.columns;
        for (std::size_t k = begin; k < end; ++k)
            opposite[size.columns - k] = {row[k].real, -row[k].imaginary};
    }
}

// With zeros where nothing of x is used.
template <class Plan, class In>
void transformRows(const Prepared<Plan>& alongRows, const In* x, const Shape& shape, Complex* y)
{
    const auto [rows, columns] = shape.all;
    for (std::size_t i = 0; i < shape.used.rows; ++i) {
        Complex* const row = y + i * columns;
        alongRows.forward(inputOf(x + i * shape.pitch, shape.step, shape.used.columns, columns, row), splitOf(row));
    }
    std::fill(y + shape.used.rows * columns, y + rows * columns, Complex{});
}

} // namespace

void matrixFft(const double* x, MatrixSize size, MatrixSize result, bool shift, Complex* y)
{
    const Shape shape = checkedShape(size, result, x, y);
    const Size all = shape.all;
    const Prepared<RealPlan> alongRows(all.columns);
    const Columns alongColumns(all.rows, all.columns / 2 + 1);
    transformRows(alongRows, x, shape, y);
    alongColumns.forward(columnsOf(y, all),
                         [&](std::size_t first, std::size_t count) { mirrorColumns(y, all, first, count); });
    if (shift)
        shiftMatrix(y, all);
}

void matrixFft(const Complex* x, MatrixSize size, MatrixSize result, bool shift, Complex* y)
{
    const Shape shape = checkedShape(size, result, x, y);
    const Size all = shape.all;
    const Prepared<ComplexPlan> alongRows(all.columns);
    const Columns alongColumns(all.rows, all.columns);
    transformRows(alongRows, x, shape, y);
    alongColumns.forward(columnsOf(y, all), [](std::size_t, std::size_t) {});
    if (shift)
        shiftMatrix(y, all);
}

void matrixInverseFft(const Complex* x, MatrixSize size, bool shifted, double* y)
{
    const Size all = withMemory(checkedSize(size, x, y));
    const Size half = {all.rows / 2 + 1, all.columns};
    const SplitBuffer halves(half.count());
    const Prepared<ComplexPlan> alongRows(all.columns);
    const ColumnPairs alongColumns(all.rows, all.columns);
    for (std::size_t i = 0; i < half.rows; ++i) {
        const Split row = halves.get() + i * all.columns;
        const std::size_t centre = shifted ? centreOf(all.columns) : 0;
        const ConstSplit from = splitOf(rowOf(x, all, i, shifted));
        copy(from + centre, all.columns - centre, row);
        copy(from, centre, row + (all.columns - centre));
        alongRows.inverse(ConstSplit(row), row);
    }
    alongColumns.inverse(halves, y);
    divide(y, all.count(), all.count());
}

void matrixInverseFft(const Complex* x, MatrixSize size, bool shifted, Complex* y)
{
    const Size own = withMemory(checkedSize(size, x, y)), all = own.columns == 1 ? asRow(own) : own;
    const Prepared<ComplexPlan> alongRows(all.columns);
    const Columns alongColumns(all.rows, all.columns);
    for (std::size_t i = 0; i < all.rows; ++i) {
        Complex* const row = y + i * all.columns;
        const Complex* from = rowOf(x, all, i, shifted);
        if (shifted) {
            copyUnshifted(from, all.columns, row);
            from = row;
        }
        alongRows.inverse(splitOf(from), splitOf(row));
    }
    alongColumns.forward(exchanged(columnsOf(y, all)), [&](std::size_t first, std::size_t count) {
        divideBlock(partsOf(y + first), {all.rows, 2 * count, 2 * all.columns}, all.count());
    });
}

} // namespace quordsp::backend
