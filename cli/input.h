// The input of a command: a column of a CSV file or a channel of a WAV file, as one equally spaced signal; or two of
// them as the parts of a complex one.
#pragma once
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "series.h"

namespace quordsp::cli {

struct InputChoice {
    std::filesystem::path path;
    std::string column;                        // name, or number from 1; empty: the first that is not time
    std::optional<double> rate = std::nullopt; // Hz; without it a CSV file's time column tells
    std::string imaginary = {};                // column of the imaginary part; empty: the signal is real
};

// The column that is chosen among these, or that one when there is no choice; throws a Failure when it is not there.
std::size_t chooseColumn(const InputChoice& choice, const std::vector<std::string>& names, std::size_t otherwise);

// Throws a Failure when the file, a column or the rate does not fit.
Series readSeries(const InputChoice& choice);

struct Span {
    std::optional<double> from = std::nullopt; // s, the first sample at or after it
    std::optional<double> to = std::nullopt;   // s, up to the last sample before it
};

struct SampleRange {
    std::size_t first;
    std::size_t last; // exclusive
};

// The samples between two times of the signal's own time axis; throws a Failure that names the option when none lies
// there.
SampleRange samplesWithin(const Series& series, const Span& span, const std::string& option);

// The part of a signal between two times of its own time axis; throws a Failure when no sample lies there.
Series cut(Series series, const Span& span);

} // namespace quordsp::cli
