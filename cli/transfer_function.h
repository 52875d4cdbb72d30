// What a filter design has become: sections that follow one another, each a quotient of two polynomials in 1/z.
#pragma once
#include <cstdint>
#include <vector>

#include "filter_choice.h"

namespace quordsp::cli {

struct Section {
    std::vector<double> forward; // numerator, ascending powers of 1/z
    std::vector<double> reverse; // denominator, likewise; the first is 1
};

enum class Form : std::uint8_t { Taps, Cascade, Direct };

struct TransferFunction {
    Form form;
    std::vector<Section> sections;
};

// The design at a sampling rate, by the backend: the taps of a FIR filter; the sections of an IIR filter, or the
// direct form when that is preferred or the backend gives no sections. Throws a Failure when the backend refuses it.
TransferFunction designFilter(const ChosenFilter& filter, double rate, bool preferDirect);

} // namespace quordsp::cli
