// A few neighbouring values that are computed alike, to be used like one number.
#pragma once

#include <cstddef>

namespace quordsp::backend {

struct Row {
    static constexpr std::size_t size = 8;
    double lane[size];
};

inline Row operator+(const Row& a, const Row& b)
{
    Row sum;
    for (std::size_t i = 0; i < Row::size; ++i)
        sum.lane[i] = a.lane[i] + b.lane[i];
    return sum;
}

inline Row operator-(const Row& a, const Row& b)
{
    Row difference;
    for (std::size_t i = 0; i < Row::size; ++i)
        difference.lane[i] = a.lane[i] - b.lane[i];
    return difference;
}

inline Row operator-(const Row& a)
{
    Row negative;
    for (std::size_t i = 0; i < Row::size; ++i)
        negative.lane[i] = -a.lane[i];
    return negative;
}

inline Row operator*(double factor, const Row& a)
{
    Row product;
    for (std::size_t i = 0; i < Row::size; ++i)
        product.lane[i] = factor * a.lane[i];
    return product;
}

} // namespace quordsp::backend
