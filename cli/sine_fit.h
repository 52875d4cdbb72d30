// The sine that fits a signal best, for a line that lies between two bins of a spectrum.
#pragma once
#include <optional>
#include <span>

namespace quordsp::cli {

struct Sine {
    double frequency; // in the unit of the rate
    double amplitude; // peak, in the unit of the signal
    double share;     // of the signal's power about its mean that the sine accounts for, 0..1
};

/**
 * Weighted least squares over offset, cosine, sine and frequency, solved by Gauss-Newton steps. The weights are a Hann
 * window, so that other lines, a few bins away or more, hardly pull. Without noise the result is exact to rounding, for
 * any frequency between bins and for a record of a few periods.
 * @param samples       8 or more
 * @param rate      Hz  > 0
 * @param frequency Hz  where to start, within half a bin (rate / count / 2) of the line
 * @return nothing when the steps do not settle within one and a half bins of the start, that is when there is no line
 * there
 * @accuracy 1e-9 relative for a pure sine of two periods or more
 */
std::optional<Sine> fitSine(std::span<const double> samples, double rate, double frequency);

// The amplitude, in the unit of the signal, of the sine of a given frequency that fits best, weighted in the same way:
// offset, cosine and sine alone. Nothing when they cannot be told apart.
std::optional<double> amplitudeAt(std::span<const double> samples, double rate, double frequency);

} // namespace quordsp::cli
