// W neighbouring elements of complex arrays, in vectors.
#pragma once

#include "transform/point.h"

#include <cstddef>
#include <utility>

namespace quordsp::backend {

template <std::size_t W>
struct VectorOf {
    using Type [[gnu::vector_size(W * sizeof(double))]] = double;
};
template <>
struct VectorOf<1> {
    using Type = double;
};
template <std::size_t W>
using Vector = typename VectorOf<W>::Type;

namespace vector {

// Elements first, first + step, ... of a followed by b.
template <std::size_t kFirst, std::size_t kStep, class V, std::size_t... i>
[[gnu::always_inline]] inline void pick(const V& a, const V& b, V& picked, std::index_sequence<i...>)
{
    picked = __builtin_shufflevector(a, b, kFirst + kStep * i...);
}

// Elements kFirst.. of a and b in turn.
template <std::size_t kFirst, class V, std::size_t... i>
[[gnu::always_inline]] inline void pickInTurn(const V& a, const V& b, V& zipped, std::index_sequence<i...>)
{
    zipped = __builtin_shufflevector(a, b, kFirst + i / 2 + (i % 2) * sizeof...(i)...);
}

template <std::size_t W>
[[gnu::always_inline]] inline void zip(const Vector<W>& a, const Vector<W>& b, Vector<W>& low, Vector<W>& high)
{
    pickInTurn<0>(a, b, low, std::make_index_sequence<W>());
    pickInTurn<W / 2>(a, b, high, std::make_index_sequence<W>());
}

} // namespace vector

template <class V>
[[gnu::always_inline]] inline void loadReal(const double* x, V& value)
{
    __builtin_memcpy(&value, x, sizeof value);
}

template <class V>
[[gnu::always_inline]] inline void storeReal(const V& value, double* y)
{
    __builtin_memcpy(y, &value, sizeof value);
}

template <std::size_t W>
[[gnu::always_inline]] inline Point<Vector<W>> loadSplit(const double* re, const double* im)
{
    Point<Vector<W>> value;
    loadReal(re, value.re);
    loadReal(im, value.im);
    return value;
}

template <std::size_t W>
[[gnu::always_inline]] inline void storeSplit(Point<Vector<W>> value, double* re, double* im)
{
    storeReal(value.re, re);
    storeReal(value.im, im);
}

// Of an interleaved array; the imaginary parts may come first.
template <std::size_t W>
[[gnu::always_inline]] inline Point<Vector<W>> loadInterleaved(const double* re, const double* im)
{
    const bool exchanged = im < re;
    const double* const start = exchanged ? im : re;
    const auto halves = loadSplit<W>(start, start + W);
    Point<Vector<W>> value;
    vector::pick<0, 2>(halves.re, halves.im, value.re, std::make_index_sequence<W>());
    vector::pick<1, 2>(halves.re, halves.im, value.im, std::make_index_sequence<W>());
    return exchanged ? Point<Vector<W>>{value.im, value.re} : value;
}

template <std::size_t W>
[[gnu::always_inline]] inline void storeInterleaved(Point<Vector<W>> value, double* re, double* im)
{
    const bool exchanged = im < re;
    double* const start = exchanged ? im : re;
    if (exchanged)
        std::swap(value.re, value.im);
    Point<Vector<W>> halves;
    vector::zip<W>(value.re, value.im, halves.re, halves.im);
    storeSplit<W>(halves, start, start + W);
}

// Elements i.. of x. One element alone may stand in an array of either kind.
template <std::size_t W, bool kInterleaved>
[[gnu::always_inline]] inline Point<Vector<W>> load(const ConstSplit& x, std::size_t i)
{
    if constexpr (W == 1)
        return x[i];
    else if constexpr (kInterleaved)
        return loadInterleaved<W>(x.re + 2 * i, x.im + 2 * i);
    else
        return loadSplit<W>(x.re + i, x.im + i);
}

template <std::size_t W, bool kInterleaved>
[[gnu::always_inline]] inline void store(Point<Vector<W>> value, const Split& y, std::size_t i)
{
    if constexpr (W == 1)
        y.set(i, value);
    else if constexpr (kInterleaved)
        storeInterleaved<W>(value, y.re + 2 * i, y.im + 2 * i);
    else
        storeSplit<W>(value, y.re + i, y.im + i);
}

// In reverse order.
template <std::size_t W>
[[gnu::always_inline]] inline Point<Vector<W>> reversed(Point<Vector<W>> a)
{
    if constexpr (W > 1) {
        vector::pick<W - 1, std::size_t(-1)>(a.re, a.re, a.re, std::make_index_sequence<W>());
        vector::pick<W - 1, std::size_t(-1)>(a.im, a.im, a.im, std::make_index_sequence<W>());
    }
    return a;
}

// The elements of R vectors in turn, R a power of two: what stood at [j][lane] then stands at [lane][j].
template <std::size_t R, std::size_t W>
[[gnu::always_inline]] inline void storeInTurn(const Point<Vector<W>>* values, double* re, double* im)
{
    Point<Vector<W>> from[R], to[R];
    for (std::size_t j = 0; j < R; ++j)
        to[j] = values[j];
    for (std::size_t shuffles = 1; shuffles < R; shuffles *= 2) {
        for (std::size_t j = 0; j < R; ++j)
            from[j] = to[j];
        for (std::size_t j = 0; j < R / 2; ++j) {
            vector::zip<W>(from[j].re, from[j + R / 2].re, to[2 * j].re, to[2 * j + 1].re);
            vector::zip<W>(from[j].im, from[j + R / 2].im, to[2 * j].im, to[2 * j + 1].im);
        }
    }
    for (std::size_t j = 0; j < R; ++j)
        storeSplit<W>(to[j], re + j * W, im + j * W);
}

} // namespace quordsp::backend
