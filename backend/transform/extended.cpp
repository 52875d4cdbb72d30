#include "transform/extended.h"

#include "status.h"
#include "transform/division.h"
#include "transform/fft_table.h"
#include "transform/interleaved.h"
#include "transform/order.h"
#include "transform/prepared.h"

#include <algorithm>

namespace quordsp::backend {

namespace {

// Of the input and of the transform.
struct Sizes {
    std::size_t used;
    std::size_t points;
};

template <class In, class Out>
Sizes checkedSizes(const In* x, std::int64_t n, std::int64_t size, const Out* y)
{
    requirePositiveCount(n);
    requireArrays(x, y);
    const auto points = static_cast<std::size_t>(size > 0 ? size : n);
    return {std::min(static_cast<std::size_t>(n), points), points};
}

} // namespace

void extendedFft(const double* x, std::int64_t n, std::int64_t size, const FftTable* table, bool shift, Complex* y)
{
    const auto [used, points] = checkedSizes(x, n, size, y);
    const Prepared<RealPlan> transform(points, realPlanOf(table, points));
    transform.forward(inputOf(x, 1, used, points, y), splitOf(y));
    completeSpectrum(splitOf(y), points);
    if (shift)
        shiftBins(y, points);
}

void extendedFft(const Complex* x, std::int64_t n, std::int64_t size, const FftTable* table, bool shift, Complex* y)
{
    const auto [used, points] = checkedSizes(x, n, size, y);
    const Prepared<ComplexPlan> transform(points, complexPlanOf(table, points));
    transform.forward(inputOf(x, 1, used, points, y), splitOf(y));
    if (shift)
        shiftBins(y, points);
}

void extendedInverseFft(const Complex* x, std::int64_t n, const FftTable* table, bool shifted, double* y)
{
    const std::size_t points = checkedSizes(x, n, n, y).points;
    const Prepared<RealPlan> transform(points, realPlanOf(table, points));
    if (shifted)
        transform.inverse(splitOf(x + centreOf(points)), x[0].real, y);
    else
        transform.inverse(splitOf(x), y);
    divide(y, points, points);
}

void extendedInverseFft(const Complex* x, std::int64_t n, const FftTable* table, bool shifted, Complex* y)
{
    const std::size_t points = checkedSizes(x, n, n, y).points;
    const Prepared<ComplexPlan> transform(points, complexPlanOf(table, points));
    if (shifted) {
        copyUnshifted(x, points, y);
        x = y;
    }
    transform.inverse(splitOf(x), splitOf(y));
    divide(partsOf(y), 2 * points, points);
}

} // namespace quordsp::backend
