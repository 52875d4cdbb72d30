// A signal through a filter.
#pragma once
#include <optional>
#include <vector>

#include "filter_choice.h"
#include "series.h"

namespace quordsp::cli {

struct Filtered {
    std::vector<double> real;
    std::vector<double> imaginary; // of a complex signal
    std::optional<double> delay;   // samples; that of an IIR filter is not the same at each frequency
};

// Throws a Failure when the backend refuses, or makes of finite samples some that are not.
Filtered runOnce(const ChosenFilter& filter, const Series& series);

// Forwards and backwards; likewise.
Filtered runBothWays(const ChosenFilter& filter, const Series& series);

// Throws a Failure when one of them has no use of both ways.
void requireIirForZeroPhase(const std::vector<ChosenFilter>& filters);

} // namespace quordsp::cli
