// With z = 1 + d the bilinear map is s = d / (d + 2), and s2 s^2 + s1 s + s0 becomes
//     (s2 + s1 + s0) d^2 + (2 s1 + 4 s0) d + 4 s0
// over (d + 2)^2. Since no coefficient of an analog section is negative, these sums do not cancel: each coefficient is
// accurate relative to itself, however close to z = 1 its polynomial has its roots.
//
// Poles nearer to z = -1 are those of the mirrored section, with 1 / s in place of s and -z in place of z. Zeros at the
// other end, which wide band-stop filters have, keep an absolute accuracy only.
#include "iir/delta_sections.h"

#include "iir/gain_account.h"

#include <limits>
#include <utility>

namespace quordsp::backend {
namespace {

// d2 d^2 + d1 d + d0
struct DeltaQuadratic {
    Real d2, d1, d0;
};

DeltaQuadratic inDelta(const Quadratic& q)
{
    return {q.s2 + q.s1 + q.s0, 2 * q.s1 + 4 * q.s0, 4 * q.s0};
}

// But for a factor of 4.
Quadratic inAnalog(const DeltaQuadratic& q)
{
    return {4 * q.d2 - 2 * q.d1 + q.d0, 2 * (q.d1 - q.d0), q.d0};
}

// To double, and to 0 what would count as 0 when the filter runs.
Real rounded(Real value)
{
    const auto result = static_cast<double>(value);
    return std::abs(result) < std::numeric_limits<double>::min() ? 0 : result;
}

DeltaQuadratic roundedQuotient(const DeltaQuadratic& q, Real divisor)
{
    return {rounded(q.d2 / divisor), rounded(q.d1 / divisor), rounded(q.d0 / divisor)};
}

Quadratic timesOnePlusS(const Quadratic& linear)
{
    return {linear.s1, linear.s1 + linear.s0, linear.s0};
}

// A first-order section gets a pole and a zero at z = 0, which is s = -1.
AnalogSection ofSecondOrder(const AnalogSection& section)
{
    if (section.denominator.s2 != 0)
        return section;
    return {timesOnePlusS(section.numerator), timesOnePlusS(section.denominator)};
}

AnalogSection mirrored(AnalogSection section)
{
    std::swap(section.numerator.s2, section.numerator.s0);
    std::swap(section.denominator.s2, section.denominator.s0);
    return section;
}

// Routh's conditions, which are exact where the poles crowd. NaN does not meet them.
bool isStable(const Quadratic& denominator)
{
    return denominator.s2 > 0 && denominator.s1 > 0 && denominator.s0 > 0;
}

class RoundedSection {
public:
    explicit RoundedSection(const AnalogSection& exact) : isMirrored_{exact.denominator.s0 > exact.denominator.s2}
    {
        const auto [numerator, denominator] = isMirrored_ ? mirrored(exact) : exact;
        const DeltaQuadratic a = inDelta(denominator);
        a_ = roundedQuotient(a, a.d2);
        b_ = roundedQuotient(inDelta(numerator), a.d2);
    }

    // What the rounded coefficients stand for.
    AnalogSection analog() const
    {
        const AnalogSection section{inAnalog(b_), inAnalog(a_)};
        return isMirrored_ ? mirrored(section) : section;
    }

    void appendTo(Coefficients& cascade) const
    {
        const double c = isMirrored_ ? -1 : 1;
        for (Real value : {c * a_.d1, a_.d0})
            cascade.reverse.push_back(static_cast<double>(value));
        for (Real value : {b_.d2, c * b_.d1, b_.d0})
            cascade.forward.push_back(static_cast<double>(value));
    }

private:
    bool isMirrored_;
    DeltaQuadratic a_, b_;
};

} // namespace

Coefficients deltaSections(std::span<const AnalogSection> sections, std::span<const AxisPoint> points)
{
    Coefficients cascade;
    GainAccount account(points);
    for (const AnalogSection& section : sections) {
        const RoundedSection rounded{ofSecondOrder(section)};
        const AnalogSection analog = rounded.analog();
        require(isStable(analog.denominator), Status::DesignFailed);
        account.add([&](const AxisPoint& point) { return powerGain(analog, point) / powerGain(section, point); });
        rounded.appendTo(cascade);
    }
    account.requireSmall();
    return cascade;
}

} // namespace quordsp::backend
