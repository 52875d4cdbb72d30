// The single-sided spectra that `quordsp spectrum` offers: one row a kind.
#pragma once
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "QuorDSP_DAQ.h"

namespace quordsp::cli {

struct SpectrumKind {
    std::string_view name;     // as the options say it
    std::string_view quantity; // of the column and the axis
    bool squared;              // the unit is the signal's squared
    double (*peakOf)(double);  // the peak amplitude of a sine whose line has this level
    // The level of bins 0 .. count/2 - 1, but at least one.
    AnalysisLibErrType (*run)(std::span<const double> in, double interval, double* level);
};

std::span<const SpectrumKind> spectrumKinds();

// The kind of that name; the names are fixed by the options.
const SpectrumKind& spectrumKind(std::string_view name);

// The phase of the same bins, that of a cosine, in radians. Unwrapped, neighbours differ by half a turn at most.
AnalysisLibErrType phaseSpectrum(std::span<const double> in, bool unwrap, double interval, double* phase);

// How many bins a signal of so many samples has.
std::size_t binCount(std::size_t samples);

} // namespace quordsp::cli
