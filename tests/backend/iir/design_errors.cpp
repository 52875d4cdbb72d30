#include "backend/iir/design_errors.h"

#include "extended_precision.h"
#include "status.h"

#include <array>
#include <cmath>
#include <complex>
#include <numbers>
#include <optional>

namespace quordsp::test {
namespace {

using Real = long double;
using Point = std::complex<Real>;
using backend::Response;

constexpr Real kPi = std::numbers::pi_v<Real>;

const backend::Family kDefinitions[] = {backend::kButterworth, backend::kBessel, backend::kChebyshev,
                                        backend::kInverseChebyshev, backend::kElliptic};

bool isReciprocal(Response response)
{
    return response == Response::HighPass || response == Response::BandStop;
}

// The frequency variable of the prototype and back, on the imaginary axis.
class Map {
public:
    Map(Response response, const Cutoffs& cutoffs)
        : response_{response},
          low_{std::tan(kPi * cutoffs.fl)},
          width_{std::tan(kPi * cutoffs.fh) - low_},
          squaredCenter_{low_ * std::tan(kPi * cutoffs.fh)}
    {}

    Real prototypeFrequency(Real f) const
    {
        const Real w = std::tan(kPi * f);
        const Real q = isBand(response_) ? (w * w - squaredCenter_) / (width_ * w) : w / low_;
        return isReciprocal(response_) ? 1 / q : q;
    }

    Real frequency(Real q) const
    {
        const Point s = analog({0, isReciprocal(response_) ? 1 / q : q}).front();
        return std::atan(std::abs(s.imag())) / kPi;
    }

    // What a root of the prototype becomes in the z-plane.
    std::vector<Point> digital(Point p) const
    {
        std::vector<Point> roots = analog(isReciprocal(response_) ? Real{1} / p : p);
        for (Point& s : roots)
            s = (Real{1} + s) / (Real{1} - s);
        return roots;
    }

private:
    std::vector<Point> analog(Point p) const
    {
        if (!isBand(response_))
            return {p * low_};
        const Point half = p * (width_ / 2), root = std::sqrt(half * half - squaredCenter_);
        const Point larger = std::abs(half + root) > std::abs(half - root) ? half + root : half - root;
        return {larger, squaredCenter_ / larger};
    }

    Response response_;
    Real low_, width_, squaredCenter_;
};

Real square(Real value)
{
    return value * value;
}

// The gain of a prototype at frequency q.
Real exactGain(const vectors::Prototype& prototype, Real q)
{
    Real gain = prototype.gain;
    for (const auto& [real, imaginary, zero] : prototype.sections) {
        const Real squared = square(real) + square(imaginary);
        if (imaginary == 0)
            gain *= -real / std::hypot(real, q);
        else
            gain *= squared * std::abs(1 - square(q / zero)) / std::hypot(squared - square(q), 2 * real * q);
    }
    return gain;
}

// The magnitude of a polynomial in x = exp(-2 pi j f). About x = 1 or x = -1, whichever is nearer, it is worked out in
// the distance from there, the powers of which have exact coefficients: nothing cancels where the roots crowd.
Real magnitude(std::span<const Real> coefficients, Real f)
{
    const Real sign = f < 0.25L ? 1 : -1;
    const Real angle = kPi * (sign > 0 ? f : f - 0.5L);
    const Point distance{-2 * square(std::sin(angle)), -2 * std::sin(angle) * std::cos(angle)};
    std::array<Real, 5> shifted{};
    for (std::size_t k = coefficients.size(); k-- > 0;) { // Horner's scheme with the factor sign (1 + distance)
        for (std::size_t i = coefficients.size(); i-- > 1;)
            shifted[i] = sign * (shifted[i] + shifted[i - 1]);
        shifted[0] = sign * shifted[0] + coefficients[k];
    }
    Point sum = 0;
    for (std::size_t i = coefficients.size(); i-- > 0;)
        sum = sum * distance + shifted[i];
    return std::abs(sum);
}

struct Section {
    std::vector<Real> a, b;
};

std::vector<Section> sectionsOf(const backend::Coefficients& filter, std::size_t order)
{
    std::vector<Section> sections(filter.reverse.size() / order);
    for (std::size_t k = 0; k < sections.size(); ++k) {
        const auto reverse = std::span{filter.reverse}.subspan(k * order, order);
        const auto forward = std::span{filter.forward}.subspan(k * (order + 1), order + 1);
        sections[k] = {{1}, {forward.begin(), forward.end()}};
        sections[k].a.insert(sections[k].a.end(), reverse.begin(), reverse.end());
        while (sections[k].a.size() > 2 && sections[k].a.back() == 0)
            sections[k].a.pop_back();
    }
    return sections;
}

Real gainOf(const std::vector<Section>& sections, Real f)
{
    Real gain = 1;
    for (const Section& section : sections)
        gain *= magnitude(section.b, f) / magnitude(section.a, f);
    return gain;
}

// By how much Newton's method moves a root of a section: how far rounding has moved its pole.
Real poleError(const Section& section, Point pole)
{
    Point value = 0, slope = 0;
    for (Real coefficient : section.a) { // in powers of z, highest first
        slope = slope * pole + value;
        value = value * pole + coefficient;
    }
    return std::abs(value / slope);
}

// Prototype frequencies over the pass band, close about its edge, and far into the stop band.
std::vector<Real> prototypeFrequencies()
{
    std::vector<Real> values;
    for (int i = 0; i <= 16; ++i) {
        values.push_back(0.001L + 0.9989L * std::sin(kPi / 2 * i / 16.0L));
        values.push_back(1 + std::pow(10.0L, -4 + i / 2.5L));
    }
    return values;
}

void raise(Real& largest, Real value)
{
    largest = std::max(largest, value);
}

void measureGain(Errors& errors, const vectors::Prototype& prototype, const Map& map, Real q,
                 const std::vector<Section>& sections)
{
    constexpr Real kHalfPower = 0.7L, kFloor = 3.16e-8L;
    const Real f = map.frequency(q);
    const Real wanted = exactGain(prototype, map.prototypeFrequency(f));
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

std::optional<backend::Coefficients> designed(const backend::Design& design, std::size_t sectionOrder)
{
    try {
        return backend::cascadeOf(design, sectionOrder);
    } catch (const backend::Failure&) {
        return {};
    }
}

} // namespace

void measure(Errors& errors, const vectors::Prototype& prototype, Response response, const Cutoffs& cutoffs,
             std::size_t sectionOrder)
{
    const backend::ExtendedPrecision precision;
    ++errors.designs;
    const auto filter = designed({kDefinitions[prototype.family],
                                  response,
                                  prototype.order,
                                  {1, cutoffs.fl, cutoffs.fh},
                                  {prototype.ripple, prototype.attenuation}},
                                 sectionOrder);
    if (!filter) {
        ++errors.refused;
        return;
    }
    const std::vector<Section> sections = sectionsOf(*filter, sectionOrder);
    const Map map{response, cutoffs};
    static const std::vector<Real> frequencies = prototypeFrequencies();
    for (Real q : frequencies) {
        measureGain(errors, prototype, map, q, sections);
        if (isBand(response))
            measureGain(errors, prototype, map, -q, sections);
    }
    for (const auto& [real, imaginary, zero] : prototype.sections)
        for (const Point pole : map.digital({real, imaginary}))
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
