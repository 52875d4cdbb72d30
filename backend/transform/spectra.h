// Spectra of real signals of any length.
#pragma once

#include <cstdint>

namespace quordsp::backend {

// Two-sided power |Y[k]/n|^2, n values that replace the signal; their sum is the signal's mean square.
void powerSpectrum(double* x, std::int64_t n);

// One-sided power: what bin k and its mirror image hold together. n/2 values, at least 1; df becomes 1/(n dt). s may be
// x.
void autoPowerSpectrum(const double* x, std::int64_t n, double dt, double* s, double* df);

// Root of the one-sided power, and the phase in (-pi, pi] or, on demand, without jumps; sizes and df as above.
void amplitudePhaseSpectrum(const double* x, std::int64_t n, bool unwrapped, double dt, double* amplitude,
                            double* phase, double* df);

} // namespace quordsp::backend
