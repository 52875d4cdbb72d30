#include "iir/sections.h"

#include "status.h"

#include <algorithm>

namespace quordsp::backend {
namespace {

bool isFinite(Real value)
{
    return std::isfinite(static_cast<double>(value));
}

std::size_t degreeOf(std::span<const Real> polynomial)
{
    std::size_t degree = polynomial.size() - 1;
    while (degree > 0 && polynomial[degree] == 0)
        --degree;
    return degree;
}

// Rounds a1, a2, ... so that the last one that is not 0 takes up what the rounding of the others did to the polynomial
// at z = 1, or at z = -1 for poles on that side. There a narrow filter is sensitive: with a cut-off of 1e-4 fs the
// polynomial itself is only 4e-7, against which 2e-16 in one coefficient is 5e-10. In the pole radius, which the last
// coefficient sets, the same 2e-16 stands against 1e-3.
void roundDenominator(std::span<const Real> a, std::span<double> rounded)
{
    const Real z = a[1] > 0 ? -1 : 1;
    const std::size_t degree = degreeOf(a);
    Real lost = 0; // over the power of z that belongs to the coefficient in hand
    for (std::size_t k = 1; k < a.size(); ++k) {
        lost *= z;
        const Real wanted = a[k] + (k == degree ? lost : 0);
        rounded[k - 1] = static_cast<double>(wanted);
        lost += wanted - rounded[k - 1];
    }
}

// All poles lie inside the unit circle. With 1/z = (1 - s) / (1 + s) they must lie left of the imaginary axis, which
// Routh's conditions tell from the coefficients c of the polynomial in s; these are exact where the poles crowd at z
// = 1. NaN meets none of the conditions.
bool isStable(std::span<const double> reverse)
{
    std::array<Real, 4> a{};
    std::copy(reverse.begin(), reverse.end(), a.begin());
    const auto [a1, a2, a3, a4] = a;
    const Real c0 = 1 + a2 + a4 + (a1 + a3), c4 = 1 + a2 + a4 - (a1 + a3);
    const Real c1 = 4 * (1 - a4) + 2 * (a1 - a3), c3 = 4 * (1 - a4) - 2 * (a1 - a3);
    const Real c2 = 6 * (1 + a4) - 2 * a2;
    return c0 > 0 && c1 > 0 && c2 > 0 && c3 > 0 && c4 > 0 && c1 * c2 * c3 > c4 * c1 * c1 + c0 * c3 * c3;
}

// One section out of the biquads given.
void roundSection(std::span<const Biquad> biquads, std::span<double> reverse, std::span<double> forward)
{
    Polynomial a{1}, b{1};
    for (const Biquad& biquad : biquads) {
        multiplyBy(a, biquad.a);
        multiplyBy(b, biquad.b);
    }
    a.resize(forward.size());
    b.resize(forward.size());
    roundDenominator(a, reverse);
    roundTo(forward, b);
    require(isStable(reverse), Status::DesignFailed);
}

} // namespace

void multiplyBy(Polynomial& polynomial, std::span<const Real> factor)
{
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

void roundTo(std::span<double> out, std::span<const Real> polynomial)
{
    requireFinite(polynomial);
    std::transform(polynomial.begin(), polynomial.begin() + static_cast<std::ptrdiff_t>(out.size()), out.begin(),
                   [](Real value) { return static_cast<double>(value); });
}

Coefficients roundedSections(std::span<const Biquad> biquads, std::size_t sectionOrder)
{
    const std::size_t whole = sectionOrder / 2;
    const std::size_t count = (biquads.size() + whole - 1) / whole;
    Coefficients result{std::vector<double>(count * sectionOrder), std::vector<double>(count * (sectionOrder + 1))};
    const std::span<double> reverse{result.reverse}, forward{result.forward};
    std::size_t taken = 0;
    for (std::size_t section = 0; section < count; ++section) {
        const std::size_t size = section == 0 ? biquads.size() - (count - 1) * whole : whole;
        roundSection(biquads.subspan(taken, size), reverse.subspan(section * sectionOrder, sectionOrder),
                     forward.subspan(section * (sectionOrder + 1), sectionOrder + 1));
        taken += size;
    }
    return result;
}

} // namespace quordsp::backend
