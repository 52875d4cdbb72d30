// Errors of transforms over whole vectors, relative in the Euclidean norm, against a transform in long double. The
// bounds are multiples of eps sqrt(log2 n): rounding errors of a fast transform add up like a random walk over its
// log n steps.
#pragma once
#include "backend/transform/signals.h"
#include "reference/fft.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <limits>

namespace quordsp::backend {

inline constexpr double kSmoothBound = 0.6;
inline constexpr double kOtherBound = 1.5;

inline bool isSmooth(std::size_t n)
{
    for (const std::size_t prime : {2u, 3u, 5u, 7u})
        while (n % prime == 0)
            n /= prime;
    return n == 1;
}

inline double boundFor(std::size_t n)
{
    return isSmooth(n) ? kSmoothBound : kOtherBound;
}

// A signal is a matrix of one row.
struct Shape {
    std::size_t rows;
    std::size_t columns;

    std::size_t size() const { return rows * columns; }
    // Where the element of the opposite frequency, or time, stands.
    std::size_t opposite(std::size_t i) const
    {
        return (rows - i / columns) % rows * columns + (columns - i % columns) % columns;
    }
};

inline reference::Values exactTransform(const Signal& x, Shape shape)
{
    reference::Values bins(shape.size()), column(shape.rows);
    for (std::size_t i = 0; i < bins.size(); ++i)
        bins[i] = {x.re[i], x.im[i]};
    if (shape.rows == 1)
        return reference::fft(std::move(bins));
    for (auto row = bins.begin(); row != bins.end(); row += static_cast<std::ptrdiff_t>(shape.columns))
        std::ranges::copy(reference::fft({row, row + static_cast<std::ptrdiff_t>(shape.columns)}), row);
    for (std::size_t j = 0; j < shape.columns; ++j) {
        for (std::size_t i = 0; i < shape.rows; ++i)
            column[i] = bins[i * shape.columns + j];
        column = reference::fft(std::move(column));
        for (std::size_t i = 0; i < shape.rows; ++i)
            bins[i * shape.columns + j] = column[i];
    }
    return bins;
}

// What an entry makes of x.
using Transform = Signal(Signal x, Shape shape);

template <Status (*entry)(Signal&)>
Signal ofSignal(Signal x, Shape)
{
    EXPECT_EQ(entry(x), Status::Success);
    return x;
}

inline Signal matrixFft(Signal x, Shape shape)
{
    Complexes y(shape.size());
    EXPECT_EQ(AALFunc267(interleaved(x).data(), static_cast<std::int64_t>(shape.rows),
                         static_cast<std::int64_t>(shape.columns), 0, 0, 0, y.data()),
              Status::Success);
    return separated(y);
}

inline Signal inverseMatrixFft(Signal x, Shape shape)
{
    Complexes y(shape.size());
    EXPECT_EQ(AALFunc269(interleaved(x).data(), static_cast<std::int64_t>(shape.rows),
                         static_cast<std::int64_t>(shape.columns), 0, y.data()),
              Status::Success);
    return separated(y);
}

inline Signal realMatrixFft(Signal x, Shape shape)
{
    Complexes y(shape.size());
    EXPECT_EQ(AALFunc266(x.re.data(), static_cast<std::int64_t>(shape.rows), static_cast<std::int64_t>(shape.columns),
                         0, 0, 0, y.data()),
              Status::Success);
    return separated(y);
}

inline Signal inverseRealMatrixFft(Signal x, Shape shape)
{
    EXPECT_EQ(AALFunc268(interleaved(x).data(), static_cast<std::int64_t>(shape.rows),
                         static_cast<std::int64_t>(shape.columns), 0, x.re.data()),
              Status::Success);
    return x;
}

struct Transforms {
    Transform* complex;
    Transform* inverse;
    Transform* real;
    Transform* inverseReal; // gives real parts
};

inline constexpr Transforms kOfSignals = {ofSignal<fft>, ofSignal<inverseFft>, ofSignal<realFft>,
                                          ofSignal<inverseRealFft>};
inline constexpr Transforms kOfMatrices = {matrixFft, inverseMatrixFft, realMatrixFft, inverseRealMatrixFft};

// In units of eps sqrt(log2 n).
struct Errors {
    double complex;
    double inverse;
    double real;
    double inverseReal;

    double largest() const { return std::max({complex, inverse, real, inverseReal}); }
    void include(const Errors& other)
    {
        for (double Errors::* kind : {&Errors::complex, &Errors::inverse, &Errors::real, &Errors::inverseReal})
            this->*kind = std::max(this->*kind, other.*kind);
    }
};

template <class Expected>
double errorOf(const Signal& found, Expected expected)
{
    const std::size_t n = found.re.size();
    long double error = 0, size = 0;
    for (std::size_t i = 0; i < n; ++i) {
        const reference::Value exact = expected(i);
        const long double re = found.re[i] - exact.re, im = found.im[i] - exact.im;
        error += re * re + im * im;
        size += exact.re * exact.re + exact.im * exact.im;
    }
    const double unit =
        std::numeric_limits<double>::epsilon() * std::sqrt(std::log2(static_cast<double>(std::max<std::size_t>(n, 2))));
    const double units = static_cast<double>(std::sqrt(error / size)) / unit;
    return std::isnan(units) ? std::numeric_limits<double>::infinity() : units; // NaN would get lost in std::max
}

// The spectrum whose inverse transform is the real part of that of z. Without a rounding error: noise has 32 bits.
inline Signal symmetricPart(const Signal& z, Shape shape)
{
    Signal symmetric = z;
    for (std::size_t i = 0; i < shape.size(); ++i) {
        const std::size_t opposite = shape.opposite(i);
        symmetric.re[i] = (z.re[i] + z.re[opposite]) / 2;
        symmetric.im[i] = (z.im[i] - z.im[opposite]) / 2;
    }
    return symmetric;
}

// Of complex and real noise. The exact transform of the complex noise says what all four must give.
inline Errors errorsOf(Shape shape, const Transforms& transforms = kOfSignals)
{
    const Signal z = complexNoise(shape.size());
    const reference::Values exact = exactTransform(z, shape);
    const auto count = static_cast<long double>(shape.size());
    const auto opposite = [&](std::size_t i) { return exact[shape.opposite(i)]; };
    Signal signal = transforms.inverseReal(symmetricPart(z, shape), shape);
    std::ranges::fill(signal.im, 0.0);
    return {
        .complex = errorOf(transforms.complex(z, shape), [&](std::size_t i) { return exact[i]; }),
        .inverse = errorOf(transforms.inverse(z, shape), [&](std::size_t i) { return opposite(i) / count; }),
        .real = errorOf(transforms.real({z.re, Array(z.re.size())}, shape),
                        [&](std::size_t i) { return (exact[i] + conjugate(opposite(i))) / 2; }),
        .inverseReal = errorOf(signal, [&](std::size_t i) { return reference::Value{opposite(i).re / count, 0}; }),
    };
}

} // namespace quordsp::backend
