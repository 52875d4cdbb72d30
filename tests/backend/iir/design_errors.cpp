#include "backend/iir/design_errors.h"

#include "extended_precision.h"
#include "status.h"

#include <cmath>
#include <optional>
#include <span>

namespace quordsp::test {
namespace {

using Real = ExactFilter::Real;
using Point = ExactFilter::Point;
using backend::Response;

const backend::Family kDefinitions[] = {backend::kButterworth, backend::kBessel, backend::kChebyshev,
                                        backend::kInverseChebyshev, backend::kElliptic};

// Polynomials in z - center, highest power first. The center is 0, 1 or -1.
struct Section {
    std::vector<Real> a, b;
    Real center;
};

// Of a point of the unit circle from 1 or -1.
Point distance(Real f, Real center)
{
    const Real sine = sinPi(f), cosine = cosPi(f);
    return Real{2} * (center > 0 ? Point{-sine * sine, sine * cosine} : Point{cosine * cosine, sine * cosine});
}

// And of s under the bilinear map.
Point distance(Point s, Real center)
{
    return (center == 0 ? Real{1} + s : center > 0 ? Real{2} * s : Point{2}) / (Real{1} - s);
}

// The same polynomial in z - by. Coefficients in double have exact results.
std::vector<Real> shifted(std::vector<Real> polynomial, Real by)
{
    for (std::size_t end = polynomial.size(); end > 1; --end)
        for (std::size_t k = 1; k < end; ++k)
            polynomial[k] += by * polynomial[k - 1];
    return polynomial;
}

// About z = 1 or z = -1, whichever is nearer, nothing cancels where the roots crowd.
Real magnitude(const std::vector<Real>& polynomial, Real center, Real f)
{
    if (center == 0) {
        const Real nearest = f < 0.25L ? 1 : -1;
        return magnitude(shifted(polynomial, nearest), nearest, f);
    }
    const Point root = distance(f, center);
    Point sum = 0;
    for (Real coefficient : polynomial)
        sum = sum * root + coefficient;
    return std::abs(sum);
}

std::vector<Section> sectionsOf(const backend::Coefficients& filter, Form form)
{
    const std::size_t order = form == Form::DirectOfFourthOrder ? 4 : 2;
    std::vector<Section> sections(filter.reverse.size() / order);
    for (std::size_t k = 0; k < sections.size(); ++k) {
        auto& [a, b, center] = sections[k];
        const auto reverse = std::span{filter.reverse}.subspan(k * order, order);
        const auto forward = std::span{filter.forward}.subspan(k * (order + 1), order + 1);
        a = {1};
        a.insert(a.end(), reverse.begin(), reverse.end());
        b.assign(forward.begin(), forward.end());
        center = form == Form::Delta ? std::copysign(1, reverse[0]) : 0;
    }
    return sections;
}

Real gainOf(const std::vector<Section>& sections, Real f)
{
    Real gain = 1;
    for (const Section& section : sections)
        gain *= magnitude(section.b, section.center, f) / magnitude(section.a, section.center, f);
    return gain;
}

// By how much Newton's method moves a root of a section: how far rounding has moved its pole, which is given in the
// s-plane.
Real poleError(const Section& section, Point pole)
{
    const Point root = distance(pole, section.center);
    Point value = 0, slope = 0;
    for (Real coefficient : section.a) {
        slope = slope * root + value;
        value = value * root + coefficient;
    }
    return value == Real{0} ? 0 : std::abs(value / slope);
}

// Over the pass band, close about its edge, far into the stop band, and where the poles are.
std::vector<Real> prototypeFrequencies(const vectors::Prototype& prototype)
{
    std::vector<Real> values;
    for (int i = 0; i <= 16; ++i) {
        values.push_back(0.001L + 0.9989L * sinPi(i / 32.0L));
        values.push_back(1 + std::pow(10.0L, -4 + i / 2.5L));
    }
    for (const auto& [real, imaginary, zero] : prototype.sections)
        if (imaginary != 0)
            values.push_back(imaginary);
    return values;
}

void raise(Real& largest, Real value)
{
    largest = std::max(largest, value);
}

void measureGain(Errors& errors, const ExactFilter& exact, Real q, const std::vector<Section>& sections)
{
    constexpr Real kHalfPower = 0.7L, kFloor = 3.16e-8L;
    const Real f = exact.frequencyOf(q), wanted = std::abs(exact.responseAt(f));
    if (wanted > kFloor)
        raise(wanted > kHalfPower ? errors.pass : errors.stop, std::abs(20 * std::log10(gainOf(sections, f) / wanted)));
}

void measurePole(Errors& errors, Point pole, const std::vector<Section>& sections)
{
    Real nearest = 1;
    for (const Section& section : sections)
        nearest = std::min(nearest, poleError(section, pole));
    raise(errors.pole, nearest);
}

std::optional<backend::Coefficients> designed(const backend::Design& design, Form form)
{
    try {
        if (form == Form::Delta)
            return backend::deltaCascadeOf(design);
        return backend::cascadeOf(design, form == Form::DirectOfFourthOrder ? 4 : 2);
    } catch (const backend::Failure&) {
        return {};
    }
}

} // namespace

void measure(Errors& errors, const vectors::Prototype& prototype, Response response, const Cutoffs& cutoffs, Form form)
{
    const backend::ExtendedPrecision precision;
    ++errors.designs;
    const auto filter = designed({kDefinitions[prototype.family],
                                  response,
                                  prototype.order,
                                  {1, cutoffs.fl, cutoffs.fh},
                                  {prototype.ripple, prototype.attenuation}},
                                 form);
    if (!filter) {
        ++errors.refused;
        return;
    }
    const std::vector<Section> sections = sectionsOf(*filter, form);
    const ExactFilter exact{prototype, response, cutoffs};
    for (Real q : prototypeFrequencies(prototype)) {
        measureGain(errors, exact, q, sections);
        if (isBand(response))
            measureGain(errors, exact, -q, sections);
    }
    for (const Point pole : exact.poles())
        measurePole(errors, pole, sections);
}

long double prototypeError(const vectors::Prototype& prototype)
{
    const backend::ExtendedPrecision precision;
    const auto [sections, gain] =
        kDefinitions[prototype.family].prototype(prototype.order, {prototype.ripple, prototype.attenuation});
    Real largest = std::abs(gain / prototype.gain - 1);
    for (std::size_t k = 0; k < sections.size(); ++k) {
        const auto& [real, imaginary, zero] = prototype.sections[k];
        const Point wanted{real, imaginary}, pole{sections[k].pole.real(), std::abs(sections[k].pole.imag())};
        raise(largest, std::abs(pole - wanted) / std::abs(wanted));
        if (zero != vectors::kNone)
            raise(largest, std::abs(sections[k].zero / zero - 1));
        else if (sections[k].zero != vectors::kNone)
            return 1;
    }
    return sections.size() == prototype.sections.size() ? largest : 1;
}

} // namespace quordsp::test
