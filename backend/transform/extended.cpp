#include "transform/extended.h"

#include "status.h"
#include "transform/fft_table.h"
#include "transform/interleaved.h"
#include "transform/order.h"
#include "transform/prepared.h"
#include "transform/split_buffer.h"

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
    const Buffer<> padded = makeBuffer(used < points ? points : 0);
    if (used < points)
        std::fill_n(std::copy_n(x, used, padded.get()), points - used, 0.0);
    const SplitBuffer bins(points / 2 + 1);
    transform.forward(used < points ? padded.get() : x, bins.get());

    const BinOrder order(points, shift);
    for (std::size_t k = 0; k <= points / 2; ++k)
        y[order.placeOf(k)] = complexOf(bins.get()[k]);
    for (std::size_t k = points / 2 + 1; k < points; ++k)
        y[order.placeOf(k)] = complexOf(conjugate(bins.get()[points - k]));
}

void extendedFft(const Complex* x, std::int64_t n, std::int64_t size, const FftTable* table, bool shift, Complex* y)
{
    const auto [used, points] = checkedSizes(x, n, size, y);
    const Prepared<ComplexPlan> transform(points, complexPlanOf(table, points));
    const SplitBuffer bins(points);
    separate(x, used, bins);
    for (std::size_t i = used; i < points; ++i)
        bins.get().set(i, {0, 0});
    transform.forward(bins.get(), bins.get());

    const BinOrder order(points, shift);
    for (std::size_t k = 0; k < points; ++k)
        y[order.placeOf(k)] = complexOf(bins.get()[k]);
}

void extendedInverseFft(const Complex* x, std::int64_t n, const FftTable* table, bool shifted, double* y)
{
    const std::size_t points = checkedSizes(x, n, n, y).points;
    const Prepared<RealPlan> transform(points, realPlanOf(table, points));
    const SplitBuffer bins(points / 2 + 1);
    const BinOrder order(points, shifted);
    for (std::size_t k = 0; k <= points / 2; ++k)
        bins.get().set(k, pointOf(x[order.placeOf(k)]));
    transform.inverse(ConstSplit(bins), y);
    for (std::size_t i = 0; i < points; ++i)
        y[i] /= static_cast<double>(points);
}

void extendedInverseFft(const Complex* x, std::int64_t n, const FftTable* table, bool shifted, Complex* y)
{
    const std::size_t points = checkedSizes(x, n, n, y).points;
    const Prepared<ComplexPlan> transform(points, complexPlanOf(table, points));
    const SplitBuffer values(points);
    const BinOrder order(points, shifted);
    for (std::size_t k = 0; k < points; ++k)
        values.get().set(k, pointOf(x[order.placeOf(k)]));
    transform.inverse(ConstSplit(values), values.get());
    for (std::size_t i = 0; i < points; ++i)
        y[i] = complexOf(values.get()[i] / static_cast<double>(points));
}

} // namespace quordsp::backend
