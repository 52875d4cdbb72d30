// What a signal is like, in a few numbers.
#pragma once
#include <cstddef>
#include <span>
#include <vector>

namespace quordsp::cli {

struct Moments {
    double mean;
    double rms;
    double deviation; // rms about the mean
};

struct Extreme {
    double value;
    std::size_t index; // of the first sample with this value
};

struct Extremes {
    Extreme minimum;
    Extreme maximum;
};

// Of one sample or more.
Moments statisticalMoments(std::span<const double> samples);

// These two throw a Failure when the backend reports an error.
Extremes extremesOf(std::span<const double> samples);
std::vector<double> sorted(std::span<const double> samples);

// The value below which so many percent of the samples lie, on the straight line between the two sorted samples beside
// that place; 0 is the least sample and 100 the greatest.
double percentile(std::span<const double> sortedSamples, double percent);

} // namespace quordsp::cli
