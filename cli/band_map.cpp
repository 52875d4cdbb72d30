#include "band_map.h"

#include <cmath>
#include <numbers>

namespace quordsp::cli {
namespace {

using Complex = std::complex<double>;

constexpr double kPi = std::numbers::pi;

// Of a pole of the analogue filter.
double distanceOf(Complex s)
{
    const double power = -4 * s.real() / std::norm(1.0 - s); // 1 - |z|^2
    return power / (1 + std::sqrt(1 - power));
}

} // namespace

// A difference of tangents, without cancellation.
BandMap::BandMap(double lower, double upper, bool stops)
    : width_(std::sin(kPi * (upper - lower)) / (std::cos(kPi * lower) * std::cos(kPi * upper))),
      middle_(std::sqrt(std::tan(kPi * lower) * std::tan(kPi * upper))),
      stops_(stops)
{}

// With t = tan(pi f), the low-pass's tangent is (t^2 - m^2)/(w t) for a band-pass, and minus its inverse for a
// band-stop. Where m is 0, t and with it the sine is left out of the quotient.
BandMap::Place BandMap::placeOf(double frequency) const
{
    const double sine = std::sin(kPi * frequency);
    const double cosine = frequency < 0.5 ? std::cos(kPi * frequency) : 0;
    const bool isBand = middle_ > 0;
    const double above = isBand ? (sine - middle_ * cosine) * (sine + middle_ * cosine) : sine;
    const double across = width_ * cosine * (isBand ? sine : 1);
    const double numerator = isBand ? sine * sine + middle_ * middle_ * cosine * cosine : 1;
    const double slope = width_ * numerator / (across * across + above * above);
    if (!stops_)
        return {std::atan2(above, across) / kPi, slope, false};
    const double turned = std::atan2(across, -above) / kPi;
    return {above < 0 ? turned : turned - 1, slope, isBand && above >= 0};
}

std::vector<double> BandMap::distancesOf(Complex pole) const
{
    const Complex analog = (pole - 1.0) / (pole + 1.0);
    const Complex half = width_ / 2 * (stops_ ? 1.0 / analog : analog);
    if (middle_ == 0)
        return {distanceOf(2.0 * half)};
    const Complex root = std::sqrt(half * half - middle_ * middle_);
    return {distanceOf(half + root), distanceOf(half - root)};
}

} // namespace quordsp::cli
