// Spectra of signals of any length.
#pragma once

#include "nianlys.h"

#include <cstdint>

namespace quordsp::backend {

// Two-sided power |Y[k]/n|^2, n values, of which those of a real signal replace it; their sum is the mean square.
void powerSpectrum(double* x, std::int64_t n);
void powerSpectrum(const Complex* x, std::int64_t n, double* s);

// One-sided power: what bin k and its mirror image hold together. n/2 values, at least 1; df becomes 1/(n dt). s may be
// x.
void autoPowerSpectrum(const double* x, std::int64_t n, double dt, double* s, double* df);

// Root of the one-sided power, and the phase in (-pi, pi] or, on demand, without jumps; sizes and df as above.
void amplitudePhaseSpectrum(const double* x, std::int64_t n, bool unwrapped, double dt, double* amplitude,
                            double* phase, double* df);

} // namespace quordsp::backend
