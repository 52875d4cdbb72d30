#include "iir/elementary.h"

#include <algorithm>

namespace quordsp::backend {
namespace {

// log(2) in two parts. The upper one has 29 bits, so that its product with an exponent is exact.
constexpr Real kUpperLog2 = 0x1.62e42ffp-1L;
constexpr Real kLowerLog2 = -0xb.8c21950d87131a0p-38L;

// exp(x) = 2^exponent (1 + rest), |rest| < 0.42.
struct Reduced {
    int exponent;
    Real rest;
};

Reduced reduced(Real x)
{
    constexpr Real kBeyondRange = 20000;
    x = std::clamp(x, -kBeyondRange, kBeyondRange);
    const Real exponent = std::floor(x / std::numbers::ln2_v<Real> + Real{0.5});
    const Real remainder = (x - exponent * kUpperLog2) - exponent * kLowerLog2;
    Real sum = 1;
    for (int k = 18; k > 1; --k)
        sum = 1 + remainder / k * sum;
    return {static_cast<int>(exponent), remainder * sum};
}

// 2 artanh(t) for |t| < 0.172.
Real twiceArtanh(Real t)
{
    const Real square = t * t;
    Real sum = 0;
    for (int k = 27; k > 0; k -= 2)
        sum = sum * square + Real{2} / k;
    return t * sum;
}

} // namespace

Real expMinusOne(Real x)
{
    const auto [exponent, rest] = reduced(x);
    return std::ldexp(rest, exponent) + (std::ldexp(Real{1}, exponent) - 1);
}

Real exponential(Real x)
{
    const auto [exponent, rest] = reduced(x);
    return std::ldexp(1 + rest, exponent);
}

Real logOnePlus(Real x)
{
    int exponent;
    Real mantissa = std::frexp(1 + x, &exponent);
    if (mantissa < std::numbers::sqrt2_v<Real> / 2) {
        mantissa *= 2;
        --exponent;
    }
    if (exponent == 0)
        return twiceArtanh(x / (2 + x));
    return exponent * kUpperLog2 + (exponent * kLowerLog2 + twiceArtanh((mantissa - 1) / (mantissa + 1)));
}

Real arsinh(Real x)
{
    return logOnePlus(x + x * x / (1 + std::sqrt(1 + x * x)));
}

} // namespace quordsp::backend
