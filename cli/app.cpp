#include "app.h"

#include <algorithm>
#include <exception>
#include <iostream>
#include <new>
#include <string>
#include <vector>

#include <CLI/CLI.hpp>

#include "commands/commands.h"
#include "failure.h"
#include "label.h"

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
    std::cerr << "quordsp: " << printable(message) << '\n';
    if (!advice.empty())
        std::cerr << "  " << printable(advice) << '\n';
    return static_cast<int>(code);
}

std::string commandList(const CLI::App& app)
{
    std::string list;
    for (const CLI::App* const command : app.get_subcommands({}))
        list += (list.empty() ? "the commands are " : ", ") + command->get_name();
    return list;
}

// The first argument that is no option stands where a command should.
int reportNoCommand(const CLI::App& app)
{
    const std::vector<std::string> words = app.remaining();
    const auto word = std::ranges::find_if(words, [](const std::string& text) { return !text.starts_with('-'); });
    if (word != words.end())
        return report(ExitCode::Usage, "there is no command '" + *word + "'", commandList(app));
    if (!words.empty())
        return report(ExitCode::Usage, "there is no option '" + words[0] + "' before a command", commandList(app));
    return report(ExitCode::Usage, "a command is missing", commandList(app) + "; see 'quordsp --help'");
}

// Help and version end the parsing too; they are no errors.
int reportParse(const CLI::App& app, const CLI::ParseError& error)
{
    if (error.get_exit_code() == 0)
        return app.exit(error);
    const auto chosen = app.get_subcommands();
    if (chosen.empty())
        return reportNoCommand(app);
    return report(ExitCode::Usage, error.what(),
                  "'quordsp " + chosen.front()->get_name() + " --help' lists the options");
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
    app.get_formatter()->label("SUBCOMMAND", "COMMAND");
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
