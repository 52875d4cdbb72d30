// One complex value, and a complex array held as two real ones. T is double, or several of them that are
// computed alike.
#pragma once

#include <algorithm>
#include <cstddef>

namespace quordsp::backend {

template <class T>
struct Point {
    T re;
    T im;
};

template <class T>
Point<T> operator+(Point<T> a, Point<T> b)
{
    return {a.re + b.re, a.im + b.im};
}

template <class T>
Point<T> operator-(Point<T> a, Point<T> b)
{
    return {a.re - b.re, a.im - b.im};
}

// The plain formula: what C++ prescribes for its own complex type looks after infinities at the cost of a branch.
template <class T>
Point<T> operator*(Point<T> a, Point<T> b)
{
    return {a.re * b.re - a.im * b.im, a.re * b.im + a.im * b.re};
}

template <class T>
Point<T> operator*(double factor, Point<T> a)
{
    return {factor * a.re, factor * a.im};
}

template <class T>
Point<T> conjugate(Point<T> a)
{
    return {a.re, -a.im};
}

// Times -i: a quarter turn the way forward transforms turn.
template <class T>
Point<T> quarterTurn(Point<T> a)
{
    return {a.im, -a.re};
}

template <class T>
struct BasicSplit {
    T* re;
    T* im;

    Point<double> operator[](std::size_t i) const { return {re[i], im[i]}; }
    void set(std::size_t i, Point<double> value) const
    {
        re[i] = value.re;
        im[i] = value.im;
    }
    BasicSplit operator+(std::size_t offset) const { return {re + offset, im + offset}; }
    operator BasicSplit<const T>() const { return {re, im}; }
};

using Split = BasicSplit<double>;
using ConstSplit = BasicSplit<const double>;

// Real and imaginary parts exchanged. A forward transform between exchanged arrays is the inverse transform, unscaled.
template <class T>
BasicSplit<T> exchanged(BasicSplit<T> a)
{
    return {a.im, a.re};
}

inline void copy(ConstSplit from, std::size_t count, Split to)
{
    std::copy_n(from.re, count, to.re);
    std::copy_n(from.im, count, to.im);
}

} // namespace quordsp::backend
