// The gain of a FIR filter at equally spaced frequencies, close enough for each of its lobes: by a Fourier transform,
// since point by point it would take minutes for long filters.
#pragma once
#include <cstddef>
#include <span>
#include <vector>

namespace quordsp::cli {

class GainGrid {
public:
    // Without taps there are no points.
    explicit GainGrid(std::span<const double> taps);

    struct Points {
        std::size_t first;
        std::size_t last; // exclusive
    };
    // Those between two frequencies, as shares of the sampling rate, and at neither.
    [[nodiscard]] Points between(double from, double to) const;
    [[nodiscard]] double frequency(std::size_t point) const;
    [[nodiscard]] double decibels(std::size_t point) const { return decibels_[point]; }

private:
    std::vector<double> decibels_; // from 0 to half the sampling rate
};

} // namespace quordsp::cli
