// The basis of a piecewise polynomial trend: powers of the distance beyond each breakpoint, as a share of the whole
// span, and a constant.
//
// The share is a product with the span's reciprocal, which is off by a unit in the last place for some spans: a
// division for every sample and breakpoint would nearly double the time of a straight line. A column's scale has no
// influence on the trend, since it is the same in the fit and in the trend.
//
// The columns come in blocks, one for each power, the highest first, with a column for each breakpoint; the constant is
// the last. Where there are more columns than samples, the fit ends with as many as there are samples: the lowest
// powers and the constant have no part in it.
#pragma once

#include <algorithm>
#include <cstddef>

#include "numeric/lanes.h"
#include "numeric/qr.h"

namespace quordsp {

struct Basis {
    const double* places;     // of the breakpoints, counted from 0; as many as there are columns at most
    std::int64_t breakpoints; // all of them
    double perSpan;           // 1 / (N-1)
    int order;
    int columns; // that have a part in the fit

    std::int64_t powerColumns() const noexcept { return std::min<std::int64_t>(columns, breakpoints * order); }
    bool hasConstant() const noexcept { return powerColumns() < columns; }
    // Breakpoints that have a column at all.
    int used() const noexcept { return static_cast<int>(std::min(breakpoints, powerColumns())); }
    // The columns of breakpoint k: powers from the order downwards.
    int powers(int k) const noexcept { return static_cast<int>((powerColumns() - k + breakpoints - 1) / breakpoints); }
    int lowestPower(int k) const noexcept { return order - powers(k) + 1; }
};

// The share of the span that sample `index` and the seven behind it lie beyond a place, 0 before it.
[[gnu::always_inline]] inline void ramp(double index, double place, double perSpan, Lanes& share) noexcept
{
    share = (index + Lanes{0, 1, 2, 3, 4, 5, 6, 7} - place) * perSpan;
    share = share > 0.0 ? share : Lanes{};
}

// The power of a base, for exponents from 1 on.
[[gnu::always_inline]] inline void raise(const Lanes& base, int exponent, Lanes& power) noexcept
{
    Lanes square = base;
    power = base;
    for (int rest = exponent - 1; rest > 0; rest /= 2) {
        if (rest % 2 == 1)
            power *= square;
        square *= square;
    }
}

// Writes the powers of one breakpoint for the samples from `index` on into the rows [first, last) of a matrix, rounded
// up to whole lanes.
[[gnu::always_inline]] inline void fillPowers(const Basis& basis, int k, int index, const Matrix& a, int first,
                                              int last) noexcept
{
    const int lowest = basis.lowestPower(k);
    const double place = basis.places[k];
    const double perSpan = basis.perSpan;
    const std::int64_t toLower = basis.breakpoints * a.stride;
    double* const highestColumn = a.column(k);
    for (int row = first; row < last; row += kLanes) {
        Lanes share;
        Lanes power;
        ramp(static_cast<double>(index) + (row - first), place, perSpan, share);
        raise(share, lowest, power);
        std::int64_t at = (basis.order - lowest) * toLower + row;
        for (; at > row; at -= toLower) {
            lanesAt(highestColumn + at) = power;
            power *= share;
        }
        lanesAt(highestColumn + at) = power;
    }
}

[[gnu::always_inline]] inline void fillKernel(const Basis& basis, int index, Matrix a, int first, int last) noexcept
{
    for (int k = 0; k < basis.used(); ++k)
        fillPowers(basis, k, index, a, first, last);
    if (basis.hasConstant())
        std::fill(a.column(basis.columns - 1) + first, a.column(basis.columns - 1) + last, 1.0);
}

// Takes the trend of the given coefficients off 8*kRows samples.
template <int kRows>
[[gnu::always_inline]] inline void subtractTrend(const Basis& basis, const double* coefficients, double index,
                                                 double* samples) noexcept
{
    Lanes trend[kRows];
    for (int i = 0; i < kRows; ++i)
        trend[i] = Lanes{} + (basis.hasConstant() ? coefficients[basis.columns - 1] : 0.0);
    for (int k = 0; k < basis.used(); ++k) {
        Lanes share[kRows];
        Lanes sum[kRows];
        for (int i = 0; i < kRows; ++i) {
            ramp(index + i * kLanes, basis.places[k], basis.perSpan, share[i]);
            sum[i] = Lanes{} + coefficients[k];
        }
        const int lowest = basis.lowestPower(k);
        const double* coefficient = coefficients + k;
        for (int p = basis.order; p > lowest; --p) {
            coefficient += basis.breakpoints;
            for (int i = 0; i < kRows; ++i)
                sum[i] = sum[i] * share[i] + *coefficient;
        }
        for (int i = 0; i < kRows; ++i) {
            Lanes power;
            raise(share[i], lowest, power);
            trend[i] += sum[i] * power;
        }
    }
    for (int i = 0; i < kRows; ++i)
        lanesAt(samples + std::ptrdiff_t{i} * kLanes) -= trend[i];
}

[[gnu::always_inline]] inline void subtractTrendKernel(const Basis& basis, const double* coefficients, double* samples,
                                                       int count) noexcept
{
    constexpr int kRows = 4;
    constexpr int kTogether = kRows * kLanes;
    std::int64_t i = 0;
    for (; count - i >= kTogether; i += kTogether)
        subtractTrend<kRows>(basis, coefficients, static_cast<double>(i), samples + i);
    for (; i < count; i += kLanes) {
        const int rest = static_cast<int>(std::min<std::int64_t>(count - i, kLanes));
        double last[kLanes] = {};
        std::copy_n(samples + i, rest, last);
        subtractTrend<1>(basis, coefficients, static_cast<double>(i), last);
        std::copy_n(last, rest, samples + i);
    }
}

} // namespace quordsp
