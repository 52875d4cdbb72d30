// One equally spaced signal, as a command reads it.
#pragma once
#include <string>
#include <vector>

#include "label.h"

namespace quordsp::cli {

struct Series {
    Label label = {}; // of the column or channel; "i + j q" of two
    double rate = 0;  // Hz
    double start = 0; // s, time of the first sample
    std::vector<double> samples;
    std::vector<double> imaginary = {}; // of a complex signal, as many; none of a real one

    [[nodiscard]] bool isComplex() const { return !imaginary.empty(); }
    [[nodiscard]] double time(std::size_t index) const { return start + static_cast<double>(index) / rate; }
};

} // namespace quordsp::cli
