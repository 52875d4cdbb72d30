// Between interleaved complex arrays, as callers have them, and separate real and imaginary parts.
#pragma once

#include "nianlys.h"
#include "transform/point.h"

namespace quordsp::backend {

inline Point<double> pointOf(Complex value)
{
    return {value.real, value.imaginary};
}

inline Complex complexOf(Point<double> value)
{
    return {value.re, value.im};
}

inline void separate(const Complex* from, std::size_t count, Split to)
{
    for (std::size_t i = 0; i < count; ++i)
        to.set(i, pointOf(from[i]));
}

} // namespace quordsp::backend
