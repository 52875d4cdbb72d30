#include "iir/axis.h"

namespace quordsp::backend {
namespace {

AxisPoint at(Real f, Real fs)
{
    return {sinPi(f, fs), cosPi(f, fs)};
}

Real squared(Real value)
{
    return value * value;
}

Real powerOfQuadraticAt(const Quadratic& q, const AxisPoint& point)
{
    const auto [u, v] = point;
    return squared(q.s0 * v * v - q.s2 * u * u) + squared(q.s1 * u * v);
}

Real powerOfLinearAt(const Quadratic& q, const AxisPoint& point)
{
    return squared(q.s0 * point.denominator) + squared(q.s1 * point.numerator);
}

} // namespace

std::vector<AxisPoint> axisPoints(Response response, const Frequencies& frequencies)
{
    const auto [fs, fl, fh] = frequencies;
    const AxisPoint zero{0, 1}, infinity{1, 0}, lower = at(fl, fs);
    if (!isBand(response))
        return {response == Response::LowPass ? zero : infinity, lower};
    const AxisPoint upper = at(fh, fs);
    if (response == Response::BandStop)
        return {zero, infinity, lower, upper};
    const AxisPoint center{std::sqrt(lower.numerator * upper.numerator),
                           std::sqrt(lower.denominator * upper.denominator)};
    return {center, lower, upper};
}

Real powerGain(const AnalogSection& section, const AxisPoint& point)
{
    const auto power = section.denominator.s2 == 0 ? powerOfLinearAt : powerOfQuadraticAt;
    return power(section.numerator, point) / power(section.denominator, point);
}

Quartic inverseBilinear(const Quartic& p)
{
    const Real even = p[0] + p[2] + p[4], odd = p[1] + p[3];
    const Real outer = 4 * (p[0] - p[4]), inner = 2 * (p[1] - p[3]);
    return {even + odd, outer + inner, 6 * (p[0] + p[4]) - 2 * p[2], outer - inner, even - odd};
}

Real powerAt(const Quartic& c, const AxisPoint& point)
{
    const auto [u, v] = point;
    const Real u2 = u * u, v2 = v * v;
    return squared((c[0] * v2 - c[2] * u2) * v2 + c[4] * u2 * u2) + squared((c[1] * v2 - c[3] * u2) * u * v);
}

} // namespace quordsp::backend
