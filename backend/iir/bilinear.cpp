#include "iir/bilinear.h"

namespace quordsp::backend {
namespace {

using Polynomial = std::array<Real, 3>;

Polynomial mapLinear(const Quadratic& q)
{
    return {q.s0 + q.s1, q.s0 - q.s1, 0};
}

Polynomial mapQuadratic(const Quadratic& q)
{
    return {q.s2 + q.s0 + q.s1, 2 * (q.s0 - q.s2), q.s2 + q.s0 - q.s1};
}

Polynomial divided(const Polynomial& p, Real divisor)
{
    return {p[0] / divisor, p[1] / divisor, p[2] / divisor};
}

} // namespace

Biquad bilinear(const AnalogSection& section)
{
    const auto map = section.denominator.s2 == 0 ? mapLinear : mapQuadratic;
    const Polynomial denominator = map(section.denominator);
    return {divided(map(section.numerator), denominator[0]), divided(denominator, denominator[0])};
}

} // namespace quordsp::backend
