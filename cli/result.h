// What a command leaves: a CSV table and, when it is asked for, a plot. Either all of it is there in the end or
// nothing.
#pragma once
#include <filesystem>
#include <functional>
#include <vector>

#include "csv_writer.h"
#include "plot/plot.h"

namespace quordsp::cli {

struct OutputChoice {
    std::filesystem::path table;
    std::filesystem::path plot; // empty: none
};

void writeResult(const OutputChoice& output, const std::vector<OutputColumn>& columns, std::size_t rows,
                 const std::function<Plot()>& makePlot);

// Says on the standard output which files there are now.
void printWritten(const OutputChoice& output);

} // namespace quordsp::cli
