// The spectrum of a signal, real or complex, with the phase when it is asked for.
#pragma once
#include <optional>
#include <string>
#include <vector>

#include "label.h"
#include "series.h"
#include "strongest_line.h"

namespace quordsp::cli {

struct SpectrumChoice {
    std::string amplitude = "rms"; // or "peak"; of a complex signal both are the modulus
    bool power = false;
    bool phase = false;
    bool unwrap = false;
};

struct Spectrum {
    std::string quantity; // of the levels, as their column has it
    Label level;          // as their axis has it
    bool squared;         // the levels are power
    std::vector<double> levels;
    double (*peakOf)(double);                         // the peak amplitude of what has this level
    std::size_t zero;                                 // bin of 0 Hz
    std::vector<double> phases = {};                  // degrees; none unless they are asked for
    std::optional<StrongestLine> line = std::nullopt; // of a complex signal without the sine
};

// Bins from 0 Hz up to below half the rate. Both throw a Failure when the backend reports an error.
Spectrum oneSidedSpectrum(const Series& series, const SpectrumChoice& choice);

// Bins from the lowest frequency, which is negative, to the highest. The series is the real part, and its label that of
// the signal; the imaginary part is as long.
Spectrum twoSidedSpectrum(const Series& series, const std::vector<double>& imaginary, const SpectrumChoice& choice);

} // namespace quordsp::cli
