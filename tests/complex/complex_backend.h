// A backend for complex signals: it tells what it is given, and answers every element.
#pragma once
#include <vector>

#include "complex/complex_exports.h"

namespace quordsp::complex_exports {

// A complex value as the backend has it.
struct Sample {
    double re;
    double im;
    bool operator==(const Sample&) const = default;
};
using Samples = std::vector<Sample>;

// What the backend was given: in words, and what its blocks held.
struct Received {
    std::string note;
    Samples input;
    Samples pastOutputs;
    Samples state;
};

// What the answering backend makes of an element, or of its index where no packed signal goes in.
Sample answerTo(Sample sample);
Sample answerTo(int index);

// Has the backend's entries answer, all max(n, m) elements; and tell what they receive, from one thread only.
void answerCalls();
void answerCallsInto(std::vector<Received>& received);

} // namespace quordsp::complex_exports
