#include "options.h"

#include "failure.h"
#include "file.h"
#include "number.h"

namespace quordsp::cli {
namespace fs = std::filesystem;
namespace {

CLI::Validator numberAbove(double limit, const std::string& kind)
{
    return {[limit, kind](const std::string& text) {
                const auto value = parseNumber(text);
                return value && *value > limit ? std::string{} : "'" + text + "' is not a " + kind;
            },
            "", kind};
}

} // namespace

const CLI::Validator kNumber = numberAbove(-std::numeric_limits<double>::infinity(), "number");
const CLI::Validator kPositive = numberAbove(0, "number above 0");
const CLI::Validator kWhole(
    [](const std::string& text) {
        int value = 0;
        return CLI::detail::lexical_cast(text, value) ? std::string{} : "'" + text + "' is not a whole number";
    },
    "");

CLI::Option* addPath(CLI::App& app, const std::string& name, fs::path& path, const std::string& help)
{
    const auto set = [&path](const std::string& text) { path = pathFromUtf8(text); };
    return app.add_option_function<std::string>(name, set, help)
        ->check(CLI::Validator(
            [](const std::string& text) { return text.empty() ? "the file name is empty" : std::string{}; }, ""));
}

void addInput(CLI::App& app, InputChoice& input)
{
    addPath(app, "INPUT", input.path, "CSV file with one sample a line, or WAV file")->required()->type_name("");
    app.add_option("--column", input.column,
                   "Column by name or by number from 1; of a WAV file the channel.\n"
                   "Without it: the first column that is not time")
        ->type_name("NAME|INDEX");
    app.add_option("--rate", input.rate,
                   "Sampling rate. Not needed for a WAV file, nor for a CSV file with a\n"
                   "column of equally spaced times (time, time_s, time_ms, t, ...)")
        ->check(kPositive)
        ->type_name("HZ");
}

void addSpan(CLI::App& app, Span& span)
{
    app.add_option("--from", span.from, "Leave out what comes before")->check(kNumber)->type_name("S");
    app.add_option("--to", span.to, "Leave out this time and what comes after")->check(kNumber)->type_name("S");
}

void addOutput(CLI::App& app, OutputChoice& output)
{
    addPath(app, "-o,--output", output.table, "CSV file to write")->required()->type_name("OUT.csv");
    addPath(app, "--plot", output.plot, "Also draw the result")->type_name("FILE.svg");
}

void requireDifferentFiles(const InputChoice& input, const OutputChoice& output)
{
    if (sameFile(input.path, output.table) || sameFile(output.plot, input.path) || sameFile(output.plot, output.table))
        throw Failure(ExitCode::Usage, "the input, the CSV and the plot must be different files",
                      "give each a name of its own");
}

} // namespace quordsp::cli
