// The variable q of the prototype becomes
//     low-pass  s / W                          high-pass  W / s
//     band-pass (s^2 + W0^2) / (B s)           band-stop  B s / (s^2 + W0^2)
// with W = tan(pi f / fs), B = Wh - Wl, W0^2 = Wl Wh. The right-hand column is the left-hand one applied to the
// prototype with q replaced by 1 / q, whose unit gain is then at infinity instead of 0.
#include "iir/transform.h"

namespace quordsp::backend {
namespace {

struct Passband {
    Real width;
    Real centerSquared;
};

Real warped(Real f, Real fs)
{
    return sinPi(f, fs) / cosPi(f, fs);
}

// The width from the difference of the edges: that of the tangents would cancel in narrow bands.
Passband warpedBand(Real fl, Real fh, Real fs)
{
    return {sinPi(fh - fl, fs) / (cosPi(fl, fs) * cosPi(fh, fs)), warped(fl, fs) * warped(fh, fs)};
}

// A prototype section after the choice of q or 1 / q. Its numerator is s2 q^2 + s1 q + s0 with s1 = 0 for a pole pair,
// its denominator (q - pole)(q - conj(pole)), or q - pole for a real pole.
struct Section {
    std::complex<Real> pole;
    Quadratic numerator;

    bool isPair() const { return pole.imag() != 0; }
};

Section direct(const PrototypeSection& section)
{
    const Real squared = std::norm(section.pole);
    if (!section.isPair())
        return {section.pole, {0, 0, -section.pole.real()}};
    return {section.pole, {squared / (section.zero * section.zero), 0, squared}};
}

Section reciprocal(const PrototypeSection& section)
{
    const std::complex<Real> pole = std::conj(section.pole) / std::norm(section.pole);
    if (!section.isPair())
        return {pole, {0, 1, 0}};
    return {pole, {1, 0, 1 / (section.zero * section.zero)}};
}

Quadratic polePair(std::complex<Real> pole)
{
    return {1, -2 * pole.real(), std::norm(pole)};
}

AnalogSection scaled(const Section& section, Real w)
{
    const auto scale = [w](const Quadratic& q) { return Quadratic{q.s2, q.s1 * w, q.s0 * w * w}; };
    const auto scaleLinear = [w](const Quadratic& q) { return Quadratic{0, q.s1, q.s0 * w}; };
    if (section.isPair())
        return {scale(section.numerator), polePair(section.pole * w)};
    return {scaleLinear(section.numerator), scaleLinear({0, 1, -section.pole.real()})};
}

// A real pole of the prototype: q = (s^2 + W0^2) / (B s) makes it one section.
AnalogSection bandOfRealPole(const Section& section, const Passband& band)
{
    const auto map = [&band](const Quadratic& q) {
        return Quadratic{q.s1, q.s0 * band.width, q.s1 * band.centerSquared};
    };
    return {map(section.numerator), map({0, 1, -section.pole.real()})};
}

// The two solutions of s^2 - q B s + W0^2 = 0, the larger first; the smaller follows from it without cancellation.
std::pair<std::complex<Real>, std::complex<Real>> bandRoots(std::complex<Real> q, const Passband& band)
{
    const std::complex<Real> half = q * (band.width / 2);
    std::complex<Real> root = squareRoot(half * half - band.centerSquared);
    if (half.real() * root.real() + half.imag() * root.imag() < 0)
        root = -root;
    const std::complex<Real> larger = half + root;
    return {larger, std::conj(larger) * (band.centerSquared / std::norm(larger))};
}

// The numerators of the two sections of a pole pair: half of the zeros, and half of the gain in decibels, to each.
std::pair<Quadratic, Quadratic> bandNumerators(const Quadratic& numerator, const Passband& band)
{
    if (numerator.s2 == 0) {
        const Quadratic half{0, std::sqrt(numerator.s0) * band.width, 0};
        return {half, half};
    }
    const Real gain = std::sqrt(numerator.s2);
    const auto [larger, smaller] = bandRoots({0, std::sqrt(numerator.s0 / numerator.s2)}, band);
    return {{gain, 0, gain * std::norm(larger)}, {gain, 0, gain * std::norm(smaller)}};
}

void appendBand(std::vector<AnalogSection>& sections, const Section& section, const Passband& band)
{
    if (!section.isPair()) {
        sections.push_back(bandOfRealPole(section, band));
        return;
    }
    const auto [largerPole, smallerPole] = bandRoots(section.pole, band);
    const auto [largerZero, smallerZero] = bandNumerators(section.numerator, band);
    sections.push_back({smallerZero, polePair(smallerPole)});
    sections.push_back({largerZero, polePair(largerPole)});
}

} // namespace

std::vector<AnalogSection> transform(const Prototype& prototype, Response response, const Frequencies& frequencies)
{
    const auto [fs, fl, fh] = frequencies;
    const auto form = response == Response::LowPass || response == Response::BandPass ? direct : reciprocal;
    const Real cutoff = warped(fl, fs);
    const Passband band = isBand(response) ? warpedBand(fl, fh, fs) : Passband{};
    std::vector<AnalogSection> sections;
    sections.reserve(prototype.sections.size() * (isBand(response) ? 2 : 1));
    for (const PrototypeSection& section : prototype.sections) {
        if (isBand(response))
            appendBand(sections, form(section), band);
        else
            sections.push_back(scaled(form(section), cutoff));
    }
    auto& [s2, s1, s0] = sections.front().numerator;
    for (Real* value : {&s2, &s1, &s0})
        *value *= prototype.gain;
    return sections;
}

} // namespace quordsp::backend
