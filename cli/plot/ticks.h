// Where an axis is marked: at round numbers, few enough to read.
#pragma once
#include <optional>
#include <string>
#include <vector>

namespace quordsp::cli {

struct Range {
    double low;
    double high;
};

// Reads as "text", "10^exponent" or "text x 10^exponent".
struct Tick {
    double value;
    std::string text;
    std::optional<int> exponent;
};

// The round step, 1, 2 or 5 times a power of ten, that leaves at most so many intervals in the range.
double roundStep(Range range, int mostIntervals);

// The range with finite ends and a distance between them that can be divided; a range without extent lies in the
// middle then.
Range withExtent(Range range);

// The range widened to whole steps; one without extent or without finite ends gets some.
Range widenToSteps(Range range, int mostIntervals);

// Multiples of the round step inside the range.
std::vector<Tick> linearTicks(Range range, int mostIntervals);

// The powers of ten around a range of positive values, at most so many decades down from the top.
Range widenToDecades(Range range, int mostDecades);

// The powers of ten inside the range.
std::vector<Tick> decadeTicks(Range range);

} // namespace quordsp::cli
