#include "command_line.h"

#include <algorithm>
#include <filesystem>
#include <limits>
#include <optional>
#include <utility>

#include <CLI/CLI.hpp>

#include "failure.h"
#include "file.h"
#include "number.h"

namespace quordsp::cli {
namespace fs = std::filesystem;
namespace {

template <class T>
CLI::Option& add(CLI::App& app, const std::string& names, T& variable, const std::string& help)
{
    return *app.add_option(names, variable, help);
}

CLI::Option& add(CLI::App& app, const std::string& names, bool& variable, const std::string& help)
{
    return *app.add_flag(names, variable, help);
}

CLI::Option& add(CLI::App& app, const std::string& names, fs::path& variable, const std::string& help)
{
    const auto set = [&variable](const std::string& text) { variable = pathFromUtf8(text); };
    const auto problem = [](const std::string& text) {
        return text.empty() ? "the file name is empty" : std::string{};
    };
    return *app.add_option_function<std::string>(names, set, help)->check(CLI::Validator(problem, ""));
}

CLI::Validator numberAbove(double limit, const std::string& kind)
{
    return {[limit, kind](const std::string& text) {
                const auto value = parseNumber(text);
                return value && *value > limit ? std::string{} : "'" + text + "' is not a " + kind;
            },
            "", kind};
}

std::string commandList(const CLI::App& app)
{
    std::string list;
    for (const CLI::App* const command : app.get_subcommands({}))
        list += (list.empty() ? "the commands are " : ", ") + command->get_name();
    return list;
}

// The first argument that is no option stands where a command should.
Failure noCommand(const CLI::App& app)
{
    const std::vector<std::string> words = app.remaining();
    const auto word = std::ranges::find_if(words, [](const std::string& text) { return !text.starts_with('-'); });
    if (word != words.end())
        return {ExitCode::Usage, "there is no command '" + *word + "'", commandList(app)};
    if (!words.empty())
        return {ExitCode::Usage, "there is no option '" + words[0] + "' before a command", commandList(app)};
    return {ExitCode::Usage, "a command is missing", commandList(app) + "; see 'quordsp --help'"};
}

bool isList(const CLI::Option* option)
{
    return option != nullptr && option->get_delimiter() == ',' && !option->get_allow_extra_args();
}

// The parser passes over an empty item of a list: "a,,b" and "a," would be as good as "a,b" and "a".
void refuseEmptyItems(const CLI::App& app, std::span<const char* const> arguments)
{
    const auto commands = app.get_subcommands({});
    const auto command = std::ranges::find_if(
        commands, [&](const CLI::App* one) { return arguments.size() > 1 && one->get_name() == arguments[1]; });
    for (std::size_t i = 2; command != commands.end() && i < arguments.size(); ++i) {
        const std::string argument = arguments[i];
        const std::size_t equals = std::min(argument.find('='), argument.size());
        const std::string name = argument.substr(0, equals);
        if (!isList((*command)->get_option_no_throw(name)))
            continue;
        std::string items;
        if (equals < argument.size())
            items = argument.substr(equals + 1);
        else if (i + 1 < arguments.size())
            items = arguments[i + 1];
        if (items.starts_with(',') || items.ends_with(',') || items.find(",,") != std::string::npos)
            throw Failure(ExitCode::Usage, name + ": an item of '" + items + "' is empty",
                          "give one between each two commas");
    }
}

Failure wrongUse(const CLI::App& app, const CLI::ParseError& error)
{
    const auto chosen = app.get_subcommands();
    if (chosen.empty())
        return noCommand(app);
    return {ExitCode::Usage, error.what(), "'quordsp " + chosen.front()->get_name() + " --help' lists the options"};
}

} // namespace

Option& Option::required()
{
    option_.required();
    return *this;
}

Option& Option::excludes(const std::string& other)
{
    option_.excludes(other);
    return *this;
}

Option& Option::needs(const std::string& other)
{
    option_.needs(other);
    return *this;
}

Option& Option::placeholder(const std::string& text)
{
    option_.type_name(text);
    return *this;
}

Option& Option::showDefault()
{
    option_.capture_default_str();
    return *this;
}

Option& Option::values(int fewest, int most)
{
    option_.expected(fewest, most)->delimiter(',');
    return *this;
}

Option& Option::list()
{
    option_.allow_extra_args(false)->delimiter(',');
    return *this;
}

Option& Option::number()
{
    option_.check(numberAbove(-std::numeric_limits<double>::infinity(), "number"));
    return *this;
}

Option& Option::positive()
{
    option_.check(numberAbove(0, "number above 0"));
    return *this;
}

Option& Option::whole()
{
    const auto problem = [](const std::string& text) {
        int value = 0;
        return CLI::detail::lexical_cast(text, value) ? std::string{} : "'" + text + "' is not a whole number";
    };
    option_.check(CLI::Validator(problem, ""));
    return *this;
}

Option& Option::within(int lowest, int highest)
{
    option_.check(CLI::Range(lowest, highest));
    return *this;
}

Option& Option::oneOf(std::initializer_list<int> choices)
{
    option_.check(CLI::IsMember(choices));
    return *this;
}

Option& Option::oneOf(const std::vector<std::string>& choices)
{
    option_.check(CLI::IsMember(choices));
    return *this;
}

template <class T>
Option Command::option(const std::string& names, T& variable, const std::string& help)
{
    return Option(add(app_, names, variable, help));
}

template Option Command::option(const std::string&, bool&, const std::string&);
template Option Command::option(const std::string&, int&, const std::string&);
template Option Command::option(const std::string&, double&, const std::string&);
template Option Command::option(const std::string&, std::string&, const std::string&);
template Option Command::option(const std::string&, fs::path&, const std::string&);
template Option Command::option(const std::string&, std::optional<int>&, const std::string&);
template Option Command::option(const std::string&, std::optional<double>&, const std::string&);
template Option Command::option(const std::string&, std::vector<double>&, const std::string&);
template Option Command::option(const std::string&, std::vector<std::string>&, const std::string&);

void Command::run(std::function<void()> work)
{
    app_.callback(std::move(work));
}

void parseAndRun(int argc, const char* const* argv, std::span<const CommandEntry> commands)
{
    CLI::App app("Signal processing for data acquisition, on files", "quordsp");
    app.allow_windows_style_options(false); // "/data/x.csv" is a path, also on Windows
    app.require_subcommand(1);
    app.get_formatter()->label("SUBCOMMAND", "COMMAND");
    app.set_version_flag("--version", "quordsp " QUORDSP_VERSION);
    app.footer(std::string("'quordsp COMMAND --help' lists the options of a command.\n\n") + kExitCodesHelp);
    for (const auto& [name, summary, addTo] : commands) {
        Command command(*app.add_subcommand(name, summary)->footer(kExitCodesHelp));
        addTo(command);
    }
    refuseEmptyItems(app, {argv, static_cast<std::size_t>(argc)});
    try {
        app.parse(argc, argv);
    } catch (const CLI::ParseError& error) {
        if (error.get_exit_code() != 0)
            throw wrongUse(app, error);
        app.exit(error); // help and version end the parsing too
    }
}

} // namespace quordsp::cli
