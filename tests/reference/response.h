// Frequency responses by definition, in extended precision. Frequencies are fractions of the sampling frequency.
#pragma once

#include <cmath>
#include <complex>
#include <numbers>
#include <span>
#include <vector>

namespace quordsp::reference {

// Value at frequency f of a polynomial in 1/z, lowest power first.
inline std::complex<long double> spectrum(std::span<const double> coefficients, long double f)
{
    const std::complex<long double> step = std::polar(1.0L, -2 * std::numbers::pi_v<long double> * f);
    std::complex<long double> sum = 0;
    for (std::size_t k = coefficients.size(); k-- > 0;)
        sum = sum * step + static_cast<long double>(coefficients[k]);
    return sum;
}

inline double decibels(long double gain)
{
    return static_cast<double>(20 * std::log10(gain));
}

// Gain of a Butterworth filter, type 0 low-pass, 1 high-pass, 2 band-pass, 3 band-stop, from its defining equation
// 1 / (1 + q^(2 order)).
inline long double butterworthGain(int type, int order, long double fl, long double fh, long double f)
{
    const auto tangent = [](long double value) { return std::tan(std::numbers::pi_v<long double> * value); };
    const long double w = tangent(f), low = tangent(fl), high = tangent(fh);
    const long double q = type < 2 ? w / low : (w * w - low * high) / (w * (high - low));
    return 1 / std::sqrt(1 + std::pow(q * q, type % 2 == 0 ? order : -order));
}

} // namespace quordsp::reference
