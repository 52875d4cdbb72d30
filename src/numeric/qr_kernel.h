// The Householder reflector and its application, for every instruction set alike.
//
// A reflector is applied without being scaled first: its column's products with itself, which give the norm, and with
// the columns behind are all that it takes. One pass over the rows subtracts what one reflector asks for and sums the
// products for the next. Where the squares leave the range in which nothing is lost by that, the reflector is made step
// by step, with a scaled norm.
//
// Sums over rows run in lanes and are reduced in one order, whatever the width of the registers, so that all versions
// give the same bits.
#pragma once

#include <cmath>
#include <numbers>

#include "numeric/lanes.h"
#include "numeric/qr.h"

namespace quordsp {

// Scalar products of x with several columns at once, which share the loads of x.
template <int kCount>
[[gnu::always_inline]] inline void multiply(const double* x, const double* const* columns, int rows,
                                            double* products) noexcept
{
    Lanes sums[kCount] = {};
    int row = 0;
    for (; row + kLanes <= rows; row += kLanes)
        for (int c = 0; c < kCount; ++c)
            sums[c] += lanesAt(x + row) * lanesAt(columns[c] + row);
    for (int c = 0; c < kCount; ++c)
        products[c] = sumOf(sums[c]);
    for (; row < rows; ++row)
        for (int c = 0; c < kCount; ++c)
            products[c] += x[row] * columns[c][row];
}

// Subtracts multiples of x from several columns, and multiplies what is left of them with y, which is the first of them
// or has been through this before. The first `skipped` rows are no part of the products.
template <int kCount>
[[gnu::always_inline]] inline void subtractAndMultiply(const double* x, const double* y, const double* factors,
                                                       double* const* columns, int skipped, int rows,
                                                       double* products) noexcept
{
    Lanes sums[kCount] = {};
    int row = 0;
    for (; row < skipped; ++row)
        for (int c = 0; c < kCount; ++c)
            columns[c][row] -= factors[c] * x[row];
    for (; row + kLanes <= rows; row += kLanes) {
        const Lanes subtracted = lanesAt(x + row);
        lanesAt(columns[0] + row) -= factors[0] * subtracted;
        const Lanes multiplied = lanesAt(y + row);
        sums[0] += multiplied * lanesAt(columns[0] + row);
        for (int c = 1; c < kCount; ++c) {
            const Lanes rest = lanesAt(columns[c] + row) - factors[c] * subtracted;
            lanesAt(columns[c] + row) = rest;
            sums[c] += multiplied * rest;
        }
    }
    for (int c = 0; c < kCount; ++c)
        products[c] = sumOf(sums[c]);
    for (; row < rows; ++row)
        for (int c = 0; c < kCount; ++c) {
            columns[c][row] -= factors[c] * x[row];
            products[c] += y[row] * columns[c][row];
        }
}

// The 2-norm by a running scale: right for elements of any size, zero, infinite and NaN ones. Zeros cost no division:
// before its breakpoint a column has nothing else.
[[gnu::always_inline]] inline double scaledNorm(const double* x, int count) noexcept
{
    double scale = 3.312168642111238e-170;
    double sum = 0.0;
    for (int i = 0; i < count; ++i) {
        const double a = std::abs(x[i]);
        if (a > scale) {
            sum = 1.0 + sum * (scale / a) * (scale / a);
            scale = a;
        } else if (a != 0.0)
            sum += (a / scale) * (a / scale);
    }
    return count == 1 ? std::abs(x[0]) : scale * std::sqrt(sum);
}

[[gnu::always_inline]] inline double hypotenuse(double a, double b) noexcept
{
    const double x = std::abs(a);
    const double y = std::abs(b);
    if (y > x)
        return y * std::sqrt(1.0 + (x / y) * (x / y));
    if (x > y)
        return x * std::sqrt(1.0 + (y / x) * (y / x));
    return std::isnan(y) ? y : x * std::numbers::sqrt2;
}

// I - tau (1,v)(1,v)' with v = scale x.
struct Reflector {
    double tau;
    double scale;
};

// Takes alpha to the length of (alpha,x), with the opposite sign so that nothing cancels.
[[gnu::always_inline]] inline Reflector reflectorOf(double length, double& alpha) noexcept
{
    const double beta = alpha >= 0.0 ? -length : length;
    const Reflector reflector{(beta - alpha) / beta, 1.0 / (alpha - beta)};
    alpha = beta;
    return reflector;
}

[[gnu::always_inline]] inline void multiplyAll(double* x, int count, double factor) noexcept
{
    for (int i = 0; i < count; ++i)
        x[i] *= factor;
}

// The same for elements of any size; x becomes v. tau is 0 when x is zero, or when the length is: a caller may have set
// the processor to flush the smallest numbers to zero, which no enlarging brings back.
[[gnu::always_inline]] inline Reflector makeReflector(double& alpha, double* x, int count) noexcept
{
    constexpr double kSmallest = 1.0020841800044864e-292;
    constexpr double kEnlarge = 9.9792015476736e+291;
    const double norm = scaledNorm(x, count);
    double length = hypotenuse(alpha, norm);
    if (norm == 0.0 || length == 0.0)
        return {0.0, 1.0};
    int enlarged = 0;
    for (; length < kSmallest; ++enlarged) {
        multiplyAll(x, count, kEnlarge);
        length *= kEnlarge;
        alpha *= kEnlarge;
    }
    if (enlarged > 0)
        length = hypotenuse(alpha, scaledNorm(x, count));
    const auto [tau, scale] = reflectorOf(length, alpha);
    multiplyAll(x, count, scale);
    for (; enlarged > 0; --enlarged)
        alpha *= kSmallest;
    return {tau, 1.0};
}

// Part of a matrix: the rows [first, last), and a number for each column.
struct Portion {
    Matrix a;
    int first;
    int last;
    double* products;

    int rows() const noexcept { return last - first; }
    double* column(int j) const noexcept { return a.column(j) + first; }
};

template <int kCount>
struct Group {
    double* columns[kCount];

    [[gnu::always_inline]] Group(const Portion& p, int j) noexcept
    {
        for (int c = 0; c < kCount; ++c)
            columns[c] = p.column(j + c);
    }
};

// The products of a column with itself and with those behind it.
struct Multiply {
    const Portion& p;
    int pivot;

    template <int kCount>
    [[gnu::always_inline]] void group(int j) const noexcept
    {
        const Group<kCount> group{p, j};
        multiply<kCount>(p.column(pivot), group.columns, p.rows(), p.products + j);
    }
};

// Subtracts from the columns behind the pivot what stands in the place of their products, which become those with the
// next pivot.
struct Subtract {
    const Portion& p;
    int pivot;
    int skipped;

    template <int kCount>
    [[gnu::always_inline]] void group(int j) const noexcept
    {
        const Group<kCount> group{p, j};
        double factors[kCount];
        for (int c = 0; c < kCount; ++c)
            factors[c] = p.products[j + c];
        subtractAndMultiply<kCount>(p.column(pivot), p.column(pivot + 1), factors, group.columns, skipped, p.rows(),
                                    p.products + j);
    }
};

// Works on as many columns together as the registers hold sums for, in groups of about one size.
template <class Work>
[[gnu::always_inline]] inline void inGroups(const Work& work, int j, int end) noexcept
{
    constexpr int kMost = 6;
    while (j < end) {
        const int groups = (end - j + kMost - 1) / kMost;
        const int count = (end - j + groups - 1) / groups;
        switch (count) {
        case 1:
            work.template group<1>(j);
            break;
        case 2:
            work.template group<2>(j);
            break;
        case 3:
            work.template group<3>(j);
            break;
        case 4:
            work.template group<4>(j);
            break;
        case 5:
            work.template group<5>(j);
            break;
        default:
            work.template group<6>(j);
            break;
        }
        j += count;
    }
}

// Reflects the pivot's row, and leaves in the place of the products what is to be subtracted from the rows below.
[[gnu::always_inline]] inline void reflectRow(const Portion& p, int pivot, const Reflector& reflector) noexcept
{
    for (int j = pivot + 1; j < p.a.columns; ++j) {
        double& top = p.a.column(j)[pivot];
        const double factor = reflector.tau * (top + reflector.scale * p.products[j]);
        top -= factor;
        p.products[j] = factor * reflector.scale;
    }
}

// Makes the reflector of a column whose products are known. They are others when the column had to be scaled.
[[gnu::always_inline]] inline Reflector reflectorOf(const Portion& p, int pivot) noexcept
{
    double& alpha = p.a.column(pivot)[pivot];
    const double squares = p.products[pivot];
    if (squares > 1e-100 && squares < 1e10 && std::abs(alpha) < 1e5)
        return reflectorOf(std::sqrt(alpha * alpha + squares), alpha);
    const Reflector reflector = makeReflector(alpha, p.column(pivot), p.rows());
    if (reflector.tau != 0.0)
        for (int j = pivot; j < p.a.columns; ++j)
            Multiply{p, pivot}.group<1>(j);
    return reflector;
}

// Takes the rows [first, last) of the pivots' columns to zero by reflectors with their diagonal elements, and reflects
// the columns behind. Each column begins `shrink` rows further down than the one before. After the last pivot only its
// row counts.
[[gnu::always_inline]] inline void eliminateKernel(Matrix a, int pivots, int first, int last, int shrink,
                                                   double* products) noexcept
{
    Portion p{a, first, last, products};
    bool areProductsKnown = false;
    for (int i = 0; i < pivots && p.rows() > 0; ++i) {
        if (!areProductsKnown)
            inGroups(Multiply{p, i}, i, a.columns);
        const Reflector reflector = reflectorOf(p, i);
        areProductsKnown = reflector.tau != 0.0;
        if (areProductsKnown) {
            reflectRow(p, i, reflector);
            if (i + 1 < pivots)
                inGroups(Subtract{p, i, shrink}, i + 1, a.columns);
        }
        p.first += shrink;
    }
}

} // namespace quordsp
