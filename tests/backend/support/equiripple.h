// The equiripple entries under one name each, and what their filters do.
#pragma once

#include "nianlys.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <vector>

namespace quordsp::test {

using backend::Band;
using backend::Status;

inline constexpr int kMultiBand = 1, kDifferentiator = 2, kHilbert = 3;

struct EquirippleOrder {
    int taps;
    int type;
    std::vector<Band> bands;
};

struct Equiripple {
    Status status;
    std::vector<double> h;
    double ripple;
};

inline Equiripple design(const EquirippleOrder& order)
{
    std::vector<double> amplitudes, weights, edges;
    for (const Band& band : order.bands) {
        amplitudes.push_back(band.amplitude);
        weights.push_back(band.weight);
        edges.insert(edges.end(), {band.lowerFrequency, band.upperFrequency});
    }
    Equiripple result{{}, std::vector<double>(static_cast<std::size_t>(order.taps)), -1};
    result.status = backend::AALFunc65(static_cast<int>(order.bands.size()), amplitudes.data(), weights.data(), 1,
                                       edges.data(), order.type, order.taps, result.h.data(), &result.ripple);
    return result;
}

// A(f): the real or imaginary part of the sum of h[k] exp(j w (c - k)), c the centre, by Horner's rule.
inline long double amplitude(const std::vector<double>& h, bool isAntisymmetric, long double f)
{
    const long double w = 2 * std::numbers::pi_v<long double> * f;
    const long double cosine = std::cos(w), sine = -std::sin(w);
    long double re = 0, im = 0;
    for (std::size_t k = h.size(); k-- > 0;) {
        const long double product = re * cosine - im * sine + h[k];
        im = re * sine + im * cosine;
        re = product;
    }
    const long double delay = w * static_cast<long double>(h.size() - 1) / 2;
    return isAntisymmetric ? im * std::cos(delay) + re * std::sin(delay) : re * std::cos(delay) - im * std::sin(delay);
}

inline long double weightedError(const std::vector<double>& h, int type, const Band& band, long double f)
{
    const long double value = amplitude(h, type != kMultiBand, f);
    const bool isSlope = type == kDifferentiator && band.amplitude != 0;
    return band.weight * ((isSlope ? value / f : value) - band.amplitude);
}

// The largest error over each stretch of one sign, on a grid of so many points between two extrema, denser at the
// edges.
inline std::vector<double> extrema(const EquirippleOrder& order, const std::vector<double>& h, int density)
{
    std::vector<double> result;
    for (const Band& band : order.bands) {
        const double width = band.upperFrequency - band.lowerFrequency;
        const int steps = 20 + static_cast<int>(order.taps * width * density);
        for (int i = 0; i <= steps; ++i) {
            const double part = (1 - std::cos(std::numbers::pi * i / steps)) / 2;
            const double f = std::max(band.lowerFrequency + width * part, order.type == kDifferentiator ? 1e-7 : 0);
            const auto error = static_cast<double>(weightedError(h, order.type, band, f));
            if (result.empty() || (error < 0) != (result.back() < 0))
                result.push_back(error);
            else if (std::abs(error) > std::abs(result.back()))
                result.back() = error;
        }
    }
    return result;
}

inline double largest(const std::vector<double>& errors)
{
    double result = 0;
    for (const double error : errors)
        result = std::max(result, std::abs(error));
    return result;
}

} // namespace quordsp::test
