// The peaks or valleys of a signal, and how far apart they are.
#pragma once
#include <cstddef>
#include <optional>
#include <span>
#include <vector>

namespace quordsp::cli {

struct PeakSearch {
    std::optional<double> threshold = std::nullopt; // lower peaks and higher valleys do not count
    int width = 3;                                  // samples of each fit of a parabola, 3 or more
    bool valleys = false;
};

// The vertex of a fitted parabola, between samples as a rule.
struct Peak {
    double place; // in samples, the first one is 0
    double amplitude;
    double secondDerivative; // per square of the distance of two samples
};

// In order, without strays. Throws a Failure when the backend reports an error.
std::vector<Peak> findPeaks(std::span<const double> samples, const PeakSearch& search);

// Where a noisy signal is next to straight, the vertex of a wide parabola may lie anywhere, far from the samples of the
// fit. The backend finds peaks in the order of their fits, so that such a stray stands out of order, or outside the
// signal. What stays is the longest row in order.
std::vector<Peak> withoutStrays(std::span<const Peak> peaks, std::size_t samples);

struct Intervals {
    double mean; // in samples
    double shortest;
    double longest;
};

// From each peak to the next; nothing for fewer than two.
std::optional<Intervals> intervalsOf(std::span<const Peak> peaks);

} // namespace quordsp::cli
