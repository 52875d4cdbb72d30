// The input of a command: a column of a CSV file or a channel of a WAV file, as one equally spaced signal.
#pragma once
#include <filesystem>
#include <optional>
#include <string>

#include "series.h"

namespace quordsp::cli {

struct InputChoice {
    std::filesystem::path path;
    std::string column;                        // name, or number from 1; empty: the first that is not time
    std::optional<double> rate = std::nullopt; // Hz; without it a CSV file's time column tells
};

// Throws a Failure when the file, the column or the rate does not fit.
Series readSeries(const InputChoice& choice);

struct Span {
    std::optional<double> from = std::nullopt; // s, the first sample at or after it
    std::optional<double> to = std::nullopt;   // s, up to the last sample before it
};

// The part of a signal between two times of its own time axis; throws a Failure when no sample lies there.
Series cut(Series series, const Span& span);

} // namespace quordsp::cli
