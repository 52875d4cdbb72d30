// One complex value, and a complex array as its real and its imaginary parts. T is double, or a vector of several that
// are computed alike.
//
// All that kernels are made of is always_inline: a vector is handed over in another way by each instruction set, and a
// kernel is compiled for several.
#pragma once

#include <cstddef>

namespace quordsp::backend {

template <class T>
struct Point {
    T re;
    T im;
};

template <class T>
[[gnu::always_inline]] inline Point<T> operator+(Point<T> a, Point<T> b)
{
    return {a.re + b.re, a.im + b.im};
}

template <class T>
[[gnu::always_inline]] inline Point<T> operator-(Point<T> a, Point<T> b)
{
    return {a.re - b.re, a.im - b.im};
}

// The plain formula: what C++ prescribes for its own complex type looks after infinities at the cost of a branch.
template <class T, class U>
[[gnu::always_inline]] inline Point<T> operator*(Point<T> a, Point<U> b)
{
    return {a.re * b.re - a.im * b.im, a.re * b.im + a.im * b.re};
}

template <class T>
[[gnu::always_inline]] inline Point<T> operator*(double factor, Point<T> a)
{
    return {factor * a.re, factor * a.im};
}

// Rounds once, which multiplying by the reciprocal would not.
inline Point<double> operator/(Point<double> a, double divisor)
{
    return {a.re / divisor, a.im / divisor};
}

template <class T>
[[gnu::always_inline]] inline Point<T> conjugate(Point<T> a)
{
    return {a.re, -a.im};
}

// Times -i: a quarter turn the way forward transforms turn.
template <class T>
[[gnu::always_inline]] inline Point<T> quarterTurn(Point<T> a)
{
    return {a.im, -a.re};
}

// Many transforms at once: of [n][kLanes] values over the first index.
inline constexpr std::size_t kLanes = 8;

// Two arrays of doubles (step 1), or one in which real and imaginary parts alternate (step 2).
template <class T>
struct BasicSplit {
    T* re;
    T* im;
    std::size_t step = 1;
    std::size_t pitch = kLanes; // from one row of lanes to the next, for those who use rows

    Point<double> operator[](std::size_t i) const { return {re[i * step], im[i * step]}; }
    void set(std::size_t i, Point<double> value) const
    {
        re[i * step] = value.re;
        im[i * step] = value.im;
    }
    BasicSplit operator+(std::size_t offset) const { return {re + offset * step, im + offset * step, step, pitch}; }
    operator BasicSplit<const T>() const { return {re, im, step, pitch}; }
    BasicSplit withPitch(std::size_t other) const { return {re, im, step, other}; }
};

using Split = BasicSplit<double>;
using ConstSplit = BasicSplit<const double>;

// Real and imaginary parts exchanged. A forward transform between exchanged arrays is the inverse transform, unscaled.
template <class T>
BasicSplit<T> exchanged(BasicSplit<T> a)
{
    return {a.im, a.re, a.step, a.pitch};
}

} // namespace quordsp::backend
