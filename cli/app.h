// The whole tool behind main().
#pragma once

namespace quordsp::cli {

// Runs the command that the arguments name; returns the exit code, or kInterruptedCode and a signal. Results go to the
// standard output, errors to the error stream.
int run(int argc, const char* const* argv);

} // namespace quordsp::cli
