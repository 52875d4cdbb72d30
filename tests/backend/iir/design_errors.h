// How far a design, rounded to double, is from the one that an exact prototype stands for.
#pragma once

#include "backend/iir/exact_filter.h"
#include "iir/design.h"

namespace quordsp::test {

// The largest of several designs. The pass band is where the gain is above -3 dB, the stop band goes on down to
// -150 dB.
struct Errors {
    long double pass = 0, stop = 0; // dB
    long double pole = 0;
    int designs = 0, refused = 0;
};

// What the sections of a cascade are.
enum class Form { Delta, DirectOfSecondOrder, DirectOfFourthOrder };

void measure(Errors& errors, const vectors::Prototype& prototype, backend::Response response, const Cutoffs& cutoffs,
             Form form);

// The largest relative error of a pole, a zero or the gain of the prototype itself.
long double prototypeError(const vectors::Prototype& prototype);

} // namespace quordsp::test
