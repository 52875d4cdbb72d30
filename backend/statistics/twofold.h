// Numbers of twice the precision of double: the unevaluated sum of two of them.
#pragma once

#include <bit>
#include <cstdint>

namespace quordsp::backend {

struct Twofold {
    double high = 0;
    double low = 0; // at most half a unit in the last place of high
};

inline Twofold exactSum(double a, double b)
{
    const double sum = a + b;
    const double ofB = sum - a;
    return {sum, (a - (sum - ofB)) + (b - ofB)};
}

// |a| >= |b|, or a is 0.
inline Twofold exactSumInOrder(double a, double b)
{
    const double sum = a + b;
    return {sum, b - (sum - a)};
}

// The upper 26 bits of the mantissa, and the rest.
inline Twofold halves(double a)
{
    const auto upper = std::bit_cast<double>(std::bit_cast<std::uint64_t>(a) & ~std::uint64_t{0x7ffffff});
    return {upper, a - upper};
}

inline Twofold operator+(Twofold a, double b)
{
    const Twofold sum = exactSum(a.high, b);
    return exactSumInOrder(sum.high, sum.low + a.low);
}

inline Twofold operator+(Twofold a, Twofold b)
{
    const Twofold high = exactSum(a.high, b.high);
    const Twofold low = exactSum(a.low, b.low);
    const Twofold sum = exactSumInOrder(high.high, high.low + low.high);
    return exactSumInOrder(sum.high, sum.low + low.low);
}

inline Twofold operator-(Twofold a)
{
    return {-a.high, -a.low};
}

inline Twofold operator-(Twofold a, Twofold b)
{
    return a + -b;
}

inline Twofold operator*(double a, Twofold b)
{
    const double product = a * b.high;
    const Twofold x = halves(a);
    const Twofold y = halves(b.high);
    const double rest = ((x.high * y.high - product) + x.high * y.low + x.low * y.high) + x.low * y.low;
    return exactSumInOrder(product, rest + a * b.low);
}

} // namespace quordsp::backend
