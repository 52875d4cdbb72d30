#include "transform/four_step.h"

#include "transform/roots.h"
#include "transform/turning.h"

#include <algorithm>

namespace quordsp::backend {

namespace {

// The largest divisor up to the square root.
std::size_t rowsOf(std::size_t n)
{
    std::size_t largest = 1;
    for (std::size_t i = 2; i * i <= n; ++i)
        if (n % i == 0)
            largest = i;
    return largest;
}

// Calls body with the first of each kLanes neighbours; the last ones overlap those before, if they must.
template <class Body>
void forEachBlock(std::size_t count, Body body)
{
    for (std::size_t first = 0; first < count; first += kLanes)
        body(std::min(first, count - kLanes));
}

} // namespace

bool FourStep::suits(std::size_t n)
{
    return rowsOf(n) >= kLanes;
}

FourStep::FourStep(std::size_t n)
    : n_(n),
      rows_(rowsOf(n)),
      columns_(n / rows_),
      alongColumns_(rows_, kLanes),
      alongRows_(columns_, kLanes),
      fine_(makeBuffer<Point<double>>(kFine)),
      coarse_(makeBuffer<Point<double>>(n / kFine + 1)),
      laneTwiddles_(rows_ * kLanes)
{
    for (std::size_t k = 0; k < kFine; ++k)
        fine_[k] = rootOfUnity(n, k % n);
    for (std::size_t k = 0; k <= n / kFine; ++k)
        coarse_[k] = rootOfUnity(n, k * kFine % n);
    for (std::size_t row = 0; row < rows_; ++row)
        for (std::size_t lane = 0; lane < kLanes; ++lane)
            laneTwiddles_.get().set(row * kLanes + lane, rootOfUnity(n, row * lane % n));
}

std::size_t FourStep::tableSize() const
{
    return alongColumns_.tableSize() + alongRows_.tableSize() + 2 * (kFine + n_ / kFine) + 2 * rows_ * kLanes;
}

std::size_t FourStep::workSize() const
{
    return Work::sizeOf(n_) + Work::sizeOf(rows_ * kLanes) + Work::sizeOf(rows_) + Work::sizeOf(columns_ * kLanes) +

           std::max(alongColumns_.workSize(), alongRows_.workSize());
}

void FourStep::transformColumns(ConstSplit in, Split turned, double* work) const
{
    Work arrays(work);
    const Split tile = arrays.take(rows_ * kLanes), factors = arrays.take(rows_);
    forEachBlock(columns_, [&](std::size_t column) {
        alongColumns_.forward((in + column).withPitch(columns_), tile, arrays.rest());
        for (std::size_t row = 0, k = 0; row < rows_; ++row, k += column)
            factors.set(row, root(k >= n_ ? k -= n_ : k));
        turnRows(rows_, tile, laneTwiddles_, factors, (turned + column).withPitch(columns_));
    });
}

void FourStep::transformRows(ConstSplit turned, Split out, double* work) const
{
    Work arrays(work);
    const Split tile = arrays.take(columns_ * kLanes);
    forEachBlock(rows_, [&](std::size_t row) {
        rowsToLanes(columns_, (turned + row * columns_).withPitch(columns_), tile);
        alongRows_.forward(tile, (out + row).withPitch(rows_), arrays.rest());
    });
}

void FourStep::forward(const ConstSplit& in, const Split& out, double* work) const
{
    Work arrays(work);
    const Split turned = arrays.take(n_);
    transformColumns(in, turned, arrays.rest());
    transformRows(turned, out, arrays.rest());
}

} // namespace quordsp::backend
