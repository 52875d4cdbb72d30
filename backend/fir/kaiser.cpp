// I0 grows like exp(x) and overflows; what stands here is I0(x) exp(-x), and the exponents are subtracted before exp()
// sees them.
#include "fir/kaiser.h"

#include <cmath>
#include <limits>
#include <numbers>

namespace quordsp::backend {
namespace {

using Real = long double;

constexpr Real kEpsilon = std::numeric_limits<Real>::epsilon();

// I0(x) = sum of ((x/2)^k / k!)^2
Real byPowers(Real x)
{
    Real term = 1, sum = 1;
    for (int k = 1; term > kEpsilon * sum / 4; ++k) {
        term *= x / (2 * k) * (x / (2 * k));
        sum += term;
    }
    return sum * std::exp(-x);
}

// I0(x) ~ exp(x) / sqrt(2 pi x) * sum of (1 * 3 * ... * (2k-1))^2 / (k! (8x)^k). Its terms fall until they are about
// exp(-2x) of the first.
Real byInversePowers(Real x)
{
    Real term = 1, sum = 1;
    for (int k = 1; term > kEpsilon * sum / 4; ++k) {
        term *= static_cast<Real>(2 * k - 1) * static_cast<Real>(2 * k - 1) / (8 * k * x);
        sum += term;
    }
    return sum / std::sqrt(2 * std::numbers::pi_v<Real> * x);
}

Real scaledI0(Real x)
{
    return x < 30 ? byPowers(x) : byInversePowers(x);
}

} // namespace

long double kaiserValue(long double beta, long double v)
{
    const Real share = std::sqrt((1 - v) * (1 + v));
    const Real exponent = -beta * v * v / (1 + share); // beta share - beta
    return scaledI0(beta * share) / scaledI0(beta) * std::exp(exponent);
}

} // namespace quordsp::backend
