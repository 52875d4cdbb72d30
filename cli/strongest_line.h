// The strongest line of a spectrum: the bin that shows it, and the sine that stands there, between two bins as a rule.
#pragma once
#include <optional>
#include <span>

#include "sine_fit.h"

namespace quordsp::cli {

struct StrongestLine {
    std::size_t bin; // of the highest level, DC excluded; its level is up to 36 % below that of a sine between two bins
    double frequency;         // Hz, of the bin
    std::optional<Sine> sine; // fitted to the samples around that frequency; nothing when no sine settles there
};

// What rounding leaves in the bins of a constant signal of so many samples stays below it. The offset level is that of
// DC; levels of power are squared.
double roundingLevel(double offsetLevel, std::size_t count, bool squared);

// The bin of the highest level besides that of 0 Hz; nothing when none is above the floor, the level of rounding.
std::optional<std::size_t> highestBin(std::span<const double> levels, std::size_t zero, double floor);

// The levels are those of the single-sided spectrum of the samples. Nothing when there is no bin besides DC or none is
// above the floor, the level of rounding.
std::optional<StrongestLine> findStrongestLine(std::span<const double> samples, double rate,
                                               std::span<const double> levels, double floor = 0);

} // namespace quordsp::cli
