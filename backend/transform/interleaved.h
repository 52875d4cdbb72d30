// Interleaved complex arrays, as callers have them, as the real and imaginary parts that transforms work on.
#pragma once

#include "parts.h"
#include "transform/point.h"

#include <algorithm>

namespace quordsp::backend {

inline ConstSplit splitOf(const Complex* x)
{
    return {partsOf(x), partsOf(x) + 1, 2};
}

inline Split splitOf(Complex* x)
{
    return {partsOf(x), partsOf(x) + 1, 2};
}

inline void copy(ConstSplit from, std::size_t count, Split to)
{
    for (std::size_t i = 0; i < count; ++i)
        to.set(i, from[i]);
}

// n values of x, of which it has the used ones at the given step, and zeros: x itself, if it is just that, or memory.
template <class T>
const T* padded(const T* x, std::size_t step, std::size_t used, std::size_t n, T* memory)
{
    if (step == 1 && used == n)
        return x;
    for (std::size_t i = 0; i < used; ++i)
        memory[i] = x[i * step];
    std::fill(memory + used, memory + n, T{});
    return memory;
}

// What transforms of n points into y read: padded, if it must be, in y.
inline const double* inputOf(const double* x, std::size_t step, std::size_t used, std::size_t n, Complex* y)
{
    return padded(x, step, used, n, partsOf(y));
}

inline ConstSplit inputOf(const Complex* x, std::size_t step, std::size_t used, std::size_t n, Complex* y)
{
    return splitOf(padded(x, step, used, n, y));
}

} // namespace quordsp::backend
