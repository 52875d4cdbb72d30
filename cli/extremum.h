// The greatest value of a function between two places.
#pragma once
#include <functional>

namespace quordsp::cli {

using Function = std::function<double(double at)>;

// Of one that has one maximum there.
double peakBetween(double from, double to, const Function& function);

// Of one that has no more maxima than points by far, which are looked at first. They crowd at both ends, as the extrema
// of designs do.
double greatestBetween(double from, double to, std::size_t points, const Function& function);

// Of so many steps from one place to the other, such a point: that at 0 is the first place, that at steps the last one.
double crowded(double from, double to, std::size_t step, std::size_t steps);

} // namespace quordsp::cli
