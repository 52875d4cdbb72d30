#include "frequency_response.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <numbers>

#include "polynomial.h"

namespace quordsp::cli {
namespace {

using Complex = std::complex<double>;

constexpr double kTurn = 2 * std::numbers::pi;
constexpr double kNextToEnd = 0.49999;
constexpr double kRounding = std::numeric_limits<double>::epsilon() / 2; // of a coefficient, relative

// exp(-j 2 pi frequency), exact at 0 and at half the sampling rate.
Complex onCircle(double frequency)
{
    if (frequency <= 0.25)
        return std::polar(1.0, -kTurn * frequency);
    const double rest = kTurn * (0.5 - frequency);
    return {-std::cos(rest), -std::sin(rest)};
}

Complex valueOf(std::span<const double> coefficients, Complex z)
{
    Complex sum = 0;
    for (std::size_t k = coefficients.size(); k-- > 0;)
        sum = Complex{sum.real() * z.real() - sum.imag() * z.imag(), sum.real() * z.imag() + sum.imag() * z.real()} +
              coefficients[k];
    return sum;
}

std::vector<double> trimmed(const std::vector<double>& coefficients)
{
    const auto isNonzero = [](double c) { return c != 0; };
    const auto first = std::ranges::find_if(coefficients, isNonzero);
    const auto last = std::find_if(coefficients.rbegin(), coefficients.rend(), isNonzero).base();
    return first < last ? std::vector<double>(first, last) : std::vector<double>{0.0};
}

// Of coefficients that differ by rounding at most.
int symmetryOf(std::span<const double> c)
{
    double largest = 0;
    for (const double coefficient : c)
        largest = std::max(largest, std::abs(coefficient));
    const double tolerance = 16 * kRounding * largest;
    for (const int sign : {1, -1}) {
        bool fits = true;
        for (std::size_t k = 0; k < c.size(); ++k)
            fits = fits && std::abs(c[k] - sign * c[c.size() - 1 - k]) <= tolerance;
        if (fits)
            return sign;
    }
    return 0;
}

double gainOf(Complex value)
{
    return 20 * std::log10(std::abs(value));
}

} // namespace

CirclePolynomial::CirclePolynomial(const std::vector<double>& coefficients)
    : coefficients_(trimmed(coefficients)),
      lead_(static_cast<double>(std::ranges::find_if(coefficients, [](double c) { return c != 0; }) -
                                coefficients.begin())),
      symmetry_(symmetryOf(coefficients_))
{
    if (symmetry_ == 0)
        zeros_ = zerosOf(coefficients_);
}

double CirclePolynomial::decibels(double frequency) const
{
    return gainOf(valueOf(coefficients_, onCircle(frequency)));
}

// Turned by half its degree it is real or imaginary.
ResponsePoint CirclePolynomial::atSymmetric(double frequency) const
{
    const double middle = static_cast<double>(coefficients_.size() - 1) / 2;
    const Complex value = valueOf(coefficients_, onCircle(frequency));
    const Complex turned = value * std::polar(1.0, kTurn * std::fmod(frequency * middle, 1.0));
    const double amplitude = symmetry_ > 0 ? turned.real() : turned.imag();
    const double turns = (symmetry_ > 0 ? 0 : 0.25) + (amplitude < 0 ? 0.5 : 0) - frequency * middle;
    return {gainOf(value), value == 0.0 ? std::numeric_limits<double>::quiet_NaN() : kTurn * turns, middle};
}

// The phase of a factor 1 - zero/z never wraps while the zero is inside the circle; one outside is brought inside.
ResponsePoint CirclePolynomial::atGeneral(double frequency) const
{
    const Complex z = onCircle(frequency); // 1/z
    double expected = coefficients_[0] < 0 ? kTurn / 2 : 0;
    for (const Complex zero : zeros_)
        expected += std::norm(zero) <= 1 ? std::arg(1.0 - zero * z)
                                         : std::arg(-zero) - kTurn * frequency + std::arg(1.0 - 1.0 / (zero * z));
    const Complex value = valueOf(coefficients_, z);
    const double wrapped = std::arg(value);
    std::vector<double> weighted = coefficients_;
    for (std::size_t k = 0; k < weighted.size(); ++k)
        weighted[k] *= static_cast<double>(k);
    return {gainOf(value), wrapped + kTurn * std::round((expected - wrapped) / kTurn),
            (valueOf(weighted, z) / value).real()};
}

ResponsePoint CirclePolynomial::at(double frequency) const
{
    ResponsePoint point = symmetry_ != 0 ? atSymmetric(frequency) : atGeneral(frequency);
    point.phase -= kTurn * frequency * lead_;
    point.delay += lead_;
    return point;
}

FrequencyResponse::FrequencyResponse(std::span<const Section> sections)
{
    for (const Section& section : sections) {
        forward_.emplace_back(section.forward);
        reverse_.emplace_back(section.reverse);
    }
}

// A zero at the end of the axis of a low-pass of odd order takes half a turn back.
FrequencyResponse::FrequencyResponse(const TransferFunction& function) : FrequencyResponse(function.sections)
{
    lead_ = function.impulse.lead;
    map_ = function.map;
    if (map_)
        turns_ = std::ceil(2 * ofSections(kNextToEnd).phase / kTurn - 0.25);
}

double FrequencyResponse::decibels(double frequency) const
{
    return decibelsOfSections(map_ ? std::abs(map_->placeOf(frequency).frequency) : frequency);
}

ResponsePoint FrequencyResponse::at(double frequency) const
{
    ResponsePoint point = map_ ? mapped(frequency) : ofSections(frequency);
    point.phase += kTurn * frequency * lead_;
    point.delay -= lead_;
    return point;
}

ResponsePoint FrequencyResponse::mapped(double frequency) const
{
    const auto [place, slope, isBehind] = map_->placeOf(frequency);
    ResponsePoint point = ofSections(std::abs(place));
    point.phase = std::copysign(1.0, place) * point.phase + (isBehind ? kTurn * turns_ : 0);
    point.delay *= slope;
    return point;
}

double FrequencyResponse::decibelsOfSections(double frequency) const
{
    double sum = 0;
    for (std::size_t i = 0; i < forward_.size(); ++i)
        sum += forward_[i].decibels(frequency) - reverse_[i].decibels(frequency);
    return sum;
}

ResponsePoint FrequencyResponse::ofSections(double frequency) const
{
    ResponsePoint sum{};
    for (std::size_t i = 0; i < forward_.size(); ++i) {
        const ResponsePoint above = forward_[i].at(frequency);
        const ResponsePoint below = reverse_[i].at(frequency);
        sum.decibels += above.decibels - below.decibels;
        sum.phase += above.phase - below.phase;
        sum.delay += above.delay - below.delay;
    }
    return sum;
}

namespace {

// To first order, but never more than where that would break down, at a pole that is next to multiple.
double shiftOf(const std::vector<double>& reverse, const std::vector<Complex>& poles, std::size_t pole)
{
    double moved = 0;
    for (std::size_t k = 1; k < reverse.size(); ++k)
        moved += kRounding * std::abs(reverse[k]);
    double distances = 1;
    for (std::size_t other = 0; other < poles.size(); ++other)
        distances *= other == pole ? 1 : std::abs(poles[pole] - poles[other]);
    return std::min(moved / distances, std::pow(moved, 1 / static_cast<double>(poles.size())));
}

Poles mappedPoles(std::span<const Section> sections, const BandMap& map)
{
    Poles result;
    for (const Section& section : sections)
        for (const Complex pole : zerosOf(section.reverse))
            for (const double distance : map.distancesOf(pole))
                result.greatestRadius = std::max(result.greatestRadius, 1 - distance);
    return result;
}

Poles sectionPoles(std::span<const Section> sections)
{
    Poles result;
    for (const Section& section : sections) {
        const std::vector<Complex> poles = zerosOf(section.reverse);
        for (std::size_t i = 0; i < poles.size(); ++i) {
            const double radius = std::abs(poles[i]);
            result.greatestRadius = std::max(result.greatestRadius, radius);
            result.shift = std::max(result.shift, shiftOf(section.reverse, poles, i) / std::max(1 - radius, kRounding));
        }
    }
    return result;
}

} // namespace

Poles polesOf(const TransferFunction& function)
{
    return function.map ? mappedPoles(function.sections, *function.map) : sectionPoles(function.sections);
}

} // namespace quordsp::cli
