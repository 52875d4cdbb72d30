// Options that several commands share.
#pragma once
#include <CLI/CLI.hpp>

#include "input.h"
#include "result.h"

namespace quordsp::cli {

// Checks of an option's value: a finite number, one above zero, and one that fits an int.
extern const CLI::Validator kNumber;
extern const CLI::Validator kPositive;
extern const CLI::Validator kWhole;

// INPUT, --column and --rate.
void addInput(CLI::App& app, InputChoice& input);

// --from and --to.
void addSpan(CLI::App& app, Span& span);

// An option that takes a file name, in UTF-8.
CLI::Option* addPath(CLI::App& app, const std::string& name, std::filesystem::path& path, const std::string& help);

// -o and --plot.
void addOutput(CLI::App& app, OutputChoice& output);

// Throws a Failure when two of the files are the same one.
void requireDifferentFiles(const InputChoice& input, const OutputChoice& output);

} // namespace quordsp::cli
