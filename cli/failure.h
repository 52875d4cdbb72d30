// How a command ends when it cannot do its work: the exit code, what happened and where, and what the user can do about
// it.
#pragma once
#include <cstdint>
#include <stdexcept>
#include <string>

namespace quordsp::cli {

enum class ExitCode : std::uint8_t {
    Success = 0,
    Usage = 1,
    Input = 2,
    BackendMissing = 3,
    BackendError = 4,
    Output = 5,
    Internal = 6,
};

// The table of exit codes as --help prints it.
inline constexpr const char* kExitCodesHelp = "Exit codes:\n"
                                              "  0  done\n"
                                              "  1  usage: an option is missing, unknown or contradicts another one\n"
                                              "  2  input: the file cannot be read or is not what it should be\n"
                                              "  3  the analysis backend is missing or lacks an entry\n"
                                              "  4  the analysis backend reported an error\n"
                                              "  5  output: a file cannot be written\n"
                                              "  6  out of memory, or another failure inside the program\n";

class Failure : public std::runtime_error {
public:
    Failure(ExitCode code, const std::string& message, std::string advice = {})
        : std::runtime_error(message), code_(code), advice_(std::move(advice))
    {}

    [[nodiscard]] ExitCode code() const noexcept { return code_; }
    // What the user can do; may be empty.
    [[nodiscard]] const std::string& advice() const noexcept { return advice_; }

private:
    ExitCode code_;
    std::string advice_;
};

} // namespace quordsp::cli
