// Removal of a piecewise polynomial trend by least squares.
//
// The design matrix is never there as a whole: its rows are made a tile at a time, which stays in the nearest cache,
// and are taken into the upper triangle of the factorisation at once. A second pass evaluates the trend. A block of no
// more samples than the first tile has rows is factored as one matrix.
#include "numeric/detrend.h"

#include <algorithm>
#include <cstdint>

#include "QuorDSP_DAQ.h"
#include "cpu/instruction_set.h"
#include "numeric/detrend_basis.h"
#include "numeric/detrend_breakpoints.h"

namespace quordsp {
namespace {

// With breakpoints the mean is that of the samples up to the one nearest to the first breakpoint given, the earlier one
// of two that are as near. Clients rely on it that later breakpoints have no effect.
int samplesInMean(int count, const Breakpoints& breakpoints) noexcept
{
    if (breakpoints.count == 1)
        return count;
    const double place = breakpoints.places->data[1];
    const int below = static_cast<int>(place);
    return place - below > below + 1 - place ? below + 2 : below + 1;
}

void removeMean(double* signal, int count, const Breakpoints& breakpoints) noexcept
{
    const int length = samplesInMean(count, breakpoints);
    double sum = 0.0;
    for (int i = 0; i < length; ++i)
        sum += signal[i];
    const double mean = sum / length;
    for (int i = 0; i < count; ++i)
        signal[i] -= mean;
}

constexpr std::int64_t wholeLanes(std::int64_t rows) noexcept
{
    return (rows + kLanes - 1) / kLanes * kLanes;
}

// A tile fits the nearest cache; where it cannot, because of many columns, it is at least worth the way to the
// triangle.
constexpr std::int64_t tileRows(std::int64_t columns) noexcept
{
    return wholeLanes(std::max<std::int64_t>({4096 / (columns + 1), std::min<std::int64_t>(columns, 256), 64}));
}

// The triangle on top, a tile below it, the right-hand side as the last column.
struct WorkArea {
    ArrayOwner<double> storage;
    Matrix matrix;
    double* products; // one for each column
    int tileBegin;
    int rows;
};

// Tiles begin at the boundary of a cache line, and columns do not lie a power of two apart, which the cache would have
// few places for.
bool makeWorkArea(int samples, int columns, WorkArea& area) noexcept
{
    const std::int64_t tileBegin = wholeLanes(columns);
    const std::int64_t rows = std::min(tileBegin + tileRows(columns), wholeLanes(samples));
    const std::int64_t stride = rows / kLanes % 2 == 0 ? rows + kLanes : rows;
    if (stride >= INT32_MAX / (std::int64_t{columns} + 2))
        return false;
    const std::int64_t elements = (stride + 1) * (columns + 1) + kLanes - 1;
    area.storage = createOwnedColumn<double>(static_cast<std::int32_t>(elements));
    if (!area.storage)
        return false;
    const auto misplaced = reinterpret_cast<std::uintptr_t>(area.storage->data) / sizeof(double) % kLanes;
    double* const aligned = area.storage->data + (kLanes - misplaced) % kLanes;
    area.matrix = {aligned, stride, columns + 1};
    area.products = area.matrix.column(columns + 1);
    area.tileBegin = static_cast<int>(tileBegin);
    area.rows = static_cast<int>(rows);
    return true;
}

// Leaves the coefficients at the head of the last column.
void fit(const Basis& basis, const double* signal, int count, const WorkArea& area) noexcept
{
    const Matrix& a = area.matrix;
    const auto fill = [&](int index, int first, int rows) {
        onThisMachine<fillKernel>(basis, index, a, first, first + rows);
        std::copy_n(signal + index, rows, a.column(basis.columns) + first);
    };
    const int head = std::min(count, area.rows);
    fill(0, 0, head);
    factor(a, basis.columns, head, area.products);
    const int tile = area.rows - area.tileBegin;
    for (int index = head, rows; index < count; index += rows) {
        rows = std::min(tile, count - index);
        fill(index, area.tileBegin, rows);
        absorb(a, basis.columns, area.tileBegin, area.tileBegin + rows, area.products);
    }
    solveTriangle(a, basis.columns);
}

void removePolynomial(double* signal, int count, int order, const Breakpoints& breakpoints) noexcept
{
    const std::int64_t allColumns = breakpoints.count * order + 1;
    const int columns = static_cast<int>(std::min<std::int64_t>(count, allColumns));
    WorkArea area;
    if (!makeWorkArea(count, columns, area))
        return;
    const Basis basis{breakpoints.places->data, breakpoints.count, 1.0 / (count - 1), order, columns};
    fit(basis, signal, count, area);
    onThisMachine<subtractTrendKernel>(basis, area.matrix.column(columns), signal, count);
}

} // namespace

void detrend(double* signal, int count, int order, const double* breakpoints, int breakpointCount) noexcept
{
    if (count < 1 || order < 0)
        return;
    if (count == 1) {
        signal[0] *= 0.0;
        return;
    }
    Breakpoints kept;
    if (!keepBreakpoints(count, breakpoints, breakpointCount, kept))
        return;
    if (order == 0)
        removeMean(signal, count, kept);
    else
        removePolynomial(signal, count, order, kept);
}

} // namespace quordsp

AnalysisLibErrType QuorDSP_detrend(double* signal, int count, int order, double* breakpoints,
                                   int breakpointCount) noexcept
{
    quordsp::detrend(signal, count, order, breakpoints, breakpointCount);
    return QUORDSP_SUCCESS;
}
