// Which column of a CSV file is time, and what sampling rate its values tell.
#pragma once
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace quordsp::cli {

struct TimeColumn {
    std::size_t index;
    double seconds; // of one unit of the column
};

// A column named "t", "time", "timestamp" or "seconds", with or without a unit of time ("time_ms"); none when no name
// fits.
std::optional<TimeColumn> findTimeColumn(const std::vector<std::string>& names);

// The sampling rate of equally spaced times in seconds; nothing when they are fewer than two, do not ascend, or leave
// an equal grid by more than a twentieth of an interval (which leaves room for times that were rounded when they were
// written).
std::optional<double> samplingRate(std::span<const double> times);

} // namespace quordsp::cli
