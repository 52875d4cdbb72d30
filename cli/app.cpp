#include "app.h"

#include <exception>
#include <iostream>
#include <new>
#include <string>

#include <CLI/CLI.hpp>

#include "commands/commands.h"
#include "failure.h"

namespace quordsp::cli {
namespace {

void addCommands(CLI::App& app)
{
#define QUORDSP_ADD(name, summary) command::name(*app.add_subcommand(#name, summary)->footer(kExitCodesHelp));
    QUORDSP_COMMANDS(QUORDSP_ADD)
#undef QUORDSP_ADD
}

int report(ExitCode code, const std::string& message, const std::string& advice)
{
    std::cerr << "quordsp: " << message << '\n';
    if (!advice.empty())
        std::cerr << "  " << advice << '\n';
    return static_cast<int>(code);
}

// Help and version end the parsing too; they are no errors.
int reportParse(const CLI::App& app, const CLI::ParseError& error)
{
    if (error.get_exit_code() == 0)
        return app.exit(error);
    const auto chosen = app.get_subcommands();
    const std::string command = chosen.empty() ? "" : chosen.front()->get_name() + ' ';
    return report(ExitCode::Usage, error.what(), "'quordsp " + command + "--help' lists the options");
}

int parseAndRun(CLI::App& app, int argc, const char* const* argv)
{
    try {
        app.parse(argc, argv);
        return static_cast<int>(ExitCode::Success);
    } catch (const CLI::ParseError& error) {
        return reportParse(app, error);
    } catch (const Failure& failure) {
        return report(failure.code(), failure.what(), failure.advice());
    } catch (const std::bad_alloc&) {
        return report(ExitCode::Internal, "not enough memory", "cut the file into parts");
    } catch (const std::exception& error) {
        return report(ExitCode::Internal, error.what(), "");
    }
}

} // namespace

int run(int argc, const char* const* argv)
{
    CLI::App app("Signal processing for data acquisition, on files", "quordsp");
    app.allow_windows_style_options(false); // "/data/x.csv" is a path, also on Windows
    app.require_subcommand(1);
    app.set_version_flag("--version", "quordsp " QUORDSP_VERSION);
    app.footer(std::string("'quordsp COMMAND --help' lists the options of a command.\n\n") + kExitCodesHelp);
    addCommands(app);
    const int code = parseAndRun(app, argc, argv);
    // A result that could not be printed is not a success.
    if (code == 0 && !std::cout.flush())
        return report(ExitCode::Output, "the standard output cannot be written", "");
    return code;
}

} // namespace quordsp::cli
