// CSV out: one header row, commas, LF; every number in the shortest form that reads back as the same double.
#pragma once
#include <functional>
#include <string>
#include <vector>

#include "file.h"

namespace quordsp::cli {

struct OutputColumn {
    std::string name;
    std::function<double(std::size_t row)> value;
    std::function<const std::string&(std::size_t row)> text = {}; // in place of a number
};

// Without line ends in the names and texts; one with a comma or a quote in it is quoted.
void writeCsv(OutputFile& file, const std::vector<OutputColumn>& columns, std::size_t rows);

} // namespace quordsp::cli
