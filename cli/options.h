// Options that several commands share.
#pragma once
#include <CLI/CLI.hpp>

#include "input.h"
#include "result.h"

namespace quordsp::cli {

// Checks of an option's value: a finite number, and one above zero.
extern const CLI::Validator kNumber;
extern const CLI::Validator kPositive;

// INPUT, --column and --rate.
void addInput(CLI::App& app, InputChoice& input);

// -o and --plot.
void addOutput(CLI::App& app, OutputChoice& output);

// Throws a Failure when two of the files are the same one.
void requireDifferentFiles(const InputChoice& input, const OutputChoice& output);

} // namespace quordsp::cli
