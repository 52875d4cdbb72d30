// Options that several commands share.
#pragma once
#include <string>

#include "command_line.h"
#include "input.h"
#include "result.h"

namespace quordsp::cli {

// INPUT, --column and --rate.
void addInput(Command& command, InputChoice& input);

// --imaginary, with what it does to the result.
void addImaginary(Command& command, InputChoice& input, const std::string& effect);

// --from and --to.
void addSpan(Command& command, Span& span);

// -o and --plot.
void addOutput(Command& command, OutputChoice& output);

// Throws a Failure when two of the files are the same one.
void requireDifferentFiles(const InputChoice& input, const OutputChoice& output);

} // namespace quordsp::cli
