#include "app.h"

#include <exception>
#include <iostream>
#include <new>
#include <string>

#include "commands/commands.h"
#include "failure.h"
#include "interrupt.h"
#include "label.h"

namespace quordsp::cli {
namespace {

constexpr CommandEntry kCommands[] = {
#define QUORDSP_ENTRY(name, summary) {#name, summary, command::name},
    QUORDSP_COMMANDS(QUORDSP_ENTRY)
#undef QUORDSP_ENTRY
};

int report(ExitCode code, const std::string& message, const std::string& advice)
{
    std::cerr << "quordsp: " << printable(message) << '\n';
    if (!advice.empty())
        std::cerr << "  " << printable(advice) << '\n';
    return static_cast<int>(code);
}

} // namespace

int run(int argc, const char* const* argv)
{
    try {
        parseAndRun(argc, argv, kCommands);
    } catch (const Failure& failure) {
        return report(failure.code(), failure.what(), failure.advice());
    } catch (const Interrupted& interruption) {
        std::cerr << "quordsp: interrupted, nothing is written\n";
        return kInterruptedCode + interruption.signal;
    } catch (const std::bad_alloc&) {
        return report(ExitCode::Internal, "not enough memory", "cut the file into parts");
    } catch (const std::exception& error) {
        return report(ExitCode::Internal, error.what(), "");
    }
    // A result that could not be printed is not a success.
    if (!std::cout.flush())
        return report(ExitCode::Output, "the standard output cannot be written", "");
    return static_cast<int>(ExitCode::Success);
}

} // namespace quordsp::cli
