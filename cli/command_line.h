// The options of the commands and what each command runs. The parser behind them shows in command_line.cpp alone: its
// headers cost the compiler more than any file of the tool.
#pragma once
#include <functional>
#include <initializer_list>
#include <span>
#include <string>
#include <vector>

namespace CLI {
class App;
class Option;
} // namespace CLI

namespace quordsp::cli {

class Option {
public:
    explicit Option(CLI::Option& option) : option_(option) {}

    Option& required();
    // Options that were added before, by name. Excluding goes both ways.
    Option& excludes(const std::string& other);
    Option& needs(const std::string& other);

    // What --help shows: a word in place of the value, and as the default what is in the variable now.
    Option& placeholder(const std::string& text);
    Option& showDefault();

    // How a vector is given: so many values with blanks or commas between them, or any number with commas.
    Option& values(int fewest, int most);
    Option& list();

    // What each value must be.
    Option& number();   // and finite
    Option& positive(); // a number above 0
    Option& whole();    // and in the range of int
    Option& within(int lowest, int highest);
    Option& oneOf(std::initializer_list<int> choices);
    Option& oneOf(const std::vector<std::string>& choices);

private:
    CLI::Option& option_;
};

class Command {
public:
    explicit Command(CLI::App& app) : app_(app) {}

    // An option, by names like "-o,--output"; a name without dashes is that of an argument which needs none. Its value
    // goes to the variable, which must live as long as what run() is given: a bool is a flag, a path a file name in
    // UTF-8. The types there are stand in command_line.cpp.
    template <class T>
    Option option(const std::string& names, T& variable, const std::string& help);

    // What the command does when all of its options are in their variables.
    void run(std::function<void()> work);

private:
    CLI::App& app_;
};

struct CommandEntry {
    const char* name;
    const char* summary;
    void (*addTo)(Command& command);
};

// Runs the command that the arguments name, or prints the help or the version. Throws a Failure about the arguments,
// and what the command throws.
void parseAndRun(int argc, const char* const* argv, std::span<const CommandEntry> commands);

} // namespace quordsp::cli
