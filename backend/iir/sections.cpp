#include "iir/sections.h"

#include "iir/gain_account.h"

#include <algorithm>

namespace quordsp::backend {
namespace {

std::size_t degreeOf(std::span<const Real> polynomial)
{
    std::size_t degree = polynomial.size() - 1;
    while (degree > 0 && polynomial[degree] == 0)
        --degree;
    return degree;
}

bool isFinite(Real value)
{
    return std::abs(value) <= std::numeric_limits<double>::max();
}

// Rounds so that the last coefficient that is not 0 takes up what the rounding of the others did to the polynomial at z
// = 1, or at z = -1 for roots on that side. There a narrow filter is sensitive: with a cut-off of 1e-4 fs the
// denominator itself is only 4e-7, against which 2e-16 in one coefficient is 5e-10. In the pole radius, which the last
// coefficient sets, the same 2e-16 stands against 1e-3. Of a numerator, this keeps the roots that are exactly there.
Quartic rounded(const Quartic& polynomial)
{
    const Real z = polynomial[1] > 0 ? -1 : 1;
    const std::size_t degree = degreeOf(polynomial);
    Quartic result{};
    Real lost = 0; // over the power of z that belongs to the coefficient in hand
    for (std::size_t k = 0; k < polynomial.size(); ++k) {
        lost *= z;
        const Real wanted = polynomial[k] + (k == degree ? lost : 0);
        result[k] = static_cast<double>(wanted);
        lost += wanted - result[k];
    }
    return result;
}

// Whether all poles lie inside the unit circle, that is left of the imaginary axis of s, by Routh's conditions. These
// are exact where the poles crowd at z = 1. NaN meets none of the conditions.
bool isStable(const Quartic& c)
{
    return c[0] > 0 && c[1] > 0 && c[2] > 0 && c[3] > 0 && c[4] > 0 &&
           c[1] * c[2] * c[3] > c[4] * c[1] * c[1] + c[0] * c[3] * c[3];
}

struct Quotient {
    Quartic numerator, denominator;
};

Quartic asQuartic(const Polynomial& polynomial)
{
    Quartic result{};
    std::copy(polynomial.begin(), polynomial.end(), result.begin());
    return result;
}

Quotient multipliedOut(std::span<const AnalogSection> sections)
{
    Polynomial a{1}, b{1};
    for (const AnalogSection& section : sections) {
        const Biquad biquad = bilinear(section);
        multiplyBy(a, biquad.a);
        multiplyBy(b, biquad.b);
    }
    return {asQuartic(b), asQuartic(a)};
}

void store(std::span<const Real> values, std::span<double> out)
{
    requireFinite(values);
    std::transform(values.begin(), values.end(), out.begin(), [](Real value) { return static_cast<double>(value); });
}

// Rounds section after section and keeps account of the gain.
class Rounding {
public:
    explicit Rounding(std::span<const AxisPoint> points) : reference_{points.front()}, account_{points} {}

    // One section out of those given. The numerator is scaled to the exact gain at the reference frequency over the
    // rounded denominator.
    void round(std::span<const AnalogSection> sections, std::span<double> reverse, std::span<double> forward)
    {
        auto [numerator, denominator] = multipliedOut(sections);
        denominator = rounded(denominator);
        const Quartic analog = inverseBilinear(denominator);
        require(isStable(analog), Status::DesignFailed);
        const Real factor = 1 / std::sqrt(error(sections, numerator, analog, reference_));
        for (Real& value : numerator)
            value *= factor;
        numerator = rounded(numerator);
        account_.add([&](const AxisPoint& point) { return error(sections, numerator, analog, point); });
        store(std::span{denominator}.subspan(1, reverse.size()), reverse);
        store(std::span{numerator}.first(forward.size()), forward);
    }

    void requireGain() const { account_.requireSmall(); }

private:
    // The squared gain over the exact one; the denominator is one in s already.
    static Real error(std::span<const AnalogSection> sections, const Quartic& numerator, const Quartic& denominator,
                      const AxisPoint& point)
    {
        Real result = powerAt(inverseBilinear(numerator), point) / powerAt(denominator, point);
        for (const AnalogSection& section : sections)
            result /= powerGain(section, point);
        return result;
    }

    AxisPoint reference_;
    GainAccount account_;
};

} // namespace

void multiplyBy(Polynomial& polynomial, std::span<const Real> factor)
{
    factor = factor.first(degreeOf(factor) + 1);
    polynomial.resize(polynomial.size() + factor.size() - 1);
    for (std::size_t k = polynomial.size(); k-- > 0;) {
        Real sum = 0;
        for (std::size_t j = std::min(k + 1, factor.size()); j-- > 0;)
            sum += polynomial[k - j] * factor[j];
        polynomial[k] = sum;
    }
}

void requireFinite(std::span<const Real> polynomial)
{
    require(std::all_of(polynomial.begin(), polynomial.end(), isFinite), Status::DesignFailed);
}

Coefficients roundedSections(std::span<const AnalogSection> sections, std::size_t sectionOrder,
                             std::span<const AxisPoint> points)
{
    const std::size_t whole = sectionOrder / 2;
    const std::size_t count = (sections.size() + whole - 1) / whole;
    Coefficients result{std::vector<double>(count * sectionOrder), std::vector<double>(count * (sectionOrder + 1))};
    const std::span<double> reverse{result.reverse}, forward{result.forward};
    Rounding rounding(points);
    std::size_t taken = 0;
    for (std::size_t k = 0; k < count; ++k) {
        const std::size_t size = k == 0 ? sections.size() - (count - 1) * whole : whole;
        rounding.round(sections.subspan(taken, size), reverse.subspan(k * sectionOrder, sectionOrder),
                       forward.subspan(k * (sectionOrder + 1), sectionOrder + 1));
        taken += size;
    }
    rounding.requireGain();
    return result;
}

} // namespace quordsp::backend
