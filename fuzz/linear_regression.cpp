#include "reference/linear_regression.h"
#include "QuorDSP_DAQ.h"
#include "targets.h"

// The bits of the plain loops; and no count below 1 touches anything.
void quordsp::fuzz::linear_regression(Bytes bytes)
{
    const auto before = bytes.numbers(bytes.between(0, 200));
    auto data = before;
    ::linear_regression(data.data(), -bytes.byte());
    ::linear_regression(data.data(), std::numeric_limits<int>::min());
    require(areSame(data, before), "no count below 1 touches anything");
    ::linear_regression(data.data(), sizeOf(data));
    require(areSame(data, reference::withoutLine(before)), "the bits of the plain loops");
}
