// What a filter design has become: sections that follow one another, each a quotient of two polynomials in 1/z.
#pragma once
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "band_map.h"
#include "filter_choice.h"

namespace quordsp::cli {

struct Section {
    std::vector<double> forward; // numerator, ascending powers of 1/z
    std::vector<double> reverse; // denominator, likewise; the first is 1
};

enum class Form : std::uint8_t { Taps, Cascade, Direct, Mapped };

struct TransferFunction {
    Form form;
    std::vector<Section> sections; // of the low-pass when there is a map
    Impulse impulse = {};          // of a FIR filter
    std::optional<BandMap> map = std::nullopt;
    std::string refusal = {}; // what the backend says to the form that was asked for, when this is another one
};

// The design at a sampling rate, by the backend: the taps of a FIR filter; the sections of an IIR filter, or the
// direct form when that is preferred or the backend has no sections. A design whose sections it refuses, although
// it filters with it, comes as the sections of its low-pass and a map. Throws a Failure when the backend refuses the
// design.
TransferFunction designFilter(const ChosenFilter& filter, double rate, bool preferDirect);

} // namespace quordsp::cli
