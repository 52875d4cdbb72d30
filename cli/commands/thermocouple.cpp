// quordsp thermocouple: a log of voltages to temperatures.
#include <algorithm>
#include <cmath>
#include <iostream>
#include <memory>
#include <string>
#include <vector>

#include "commands/commands.h"
#include "failure.h"
#include "file.h"
#include "number.h"
#include "options.h"
#include "series_plot.h"
#include "thermocouple.h"
#include "thermocouple_log.h"

namespace quordsp::cli::command {
namespace {

constexpr const char* kTypeWithGaps = "K"; // the only one whose range the library checks

constexpr double kNothing = 1e-3; // mV; so close to 0 mV every type that departs has 0 degC all the same

struct Options {
    LogChoice log;
    OutputChoice output;
    std::string type;
    std::string unit = "C";
    bool gaps = false;
};

template <class Row>
std::vector<std::string> letters(std::span<const Row> rows)
{
    std::vector<std::string> found;
    for (const Row& row : rows)
        found.emplace_back(row.letter);
    return found;
}

// The options let no other letter through.
template <class Row>
const Row& rowOf(std::span<const Row> rows, const std::string& letter)
{
    return *std::ranges::find(rows, std::string_view(letter), &Row::letter);
}

struct Result {
    Temperatures temperatures;
    double lowest;
    double mean;
    double highest;
};

void requireGapsToBePossible(const Options& options)
{
    if (options.gaps && options.type != kTypeWithGaps)
        throw Failure(ExitCode::Usage,
                      "--gaps is for type K: the library has a result for any voltage of type " + options.type,
                      "leave out --gaps");
}

void requireColdJunction(const Options& options)
{
    if (!options.log.coldJunction && options.log.coldJunctionColumn.empty())
        throw Failure(ExitCode::Usage, "the temperature of the cold junction is missing",
                      "give it with --cold-junction or --cold-junction-column; 0 for compensated voltages");
}

double coldJunctionAt(const ThermocoupleLog& log, std::size_t row)
{
    return log.coldJunction.size() == 1 ? log.coldJunction[0] : log.coldJunction[row];
}

std::string describeVoltage(const ThermocoupleLog& log, std::size_t row)
{
    return rounded(log.emf[row]) + " mV with the cold junction at " + rounded(coldJunctionAt(log, row)) + " degC";
}

std::string describeRow(const ThermocoupleLog& log, std::size_t row)
{
    return "data row " + std::to_string(row + 1) + ": " + describeVoltage(log, row);
}

void requireInRange(const ThermocoupleLog& log, const Temperatures& temperatures, const Options& options)
{
    const auto& outOfRange = temperatures.outOfRange;
    if (outOfRange.empty() || (options.gaps && outOfRange.size() < log.emf.size()))
        return;
    const std::string others = outOfRange.size() > 1 ? "; it is the first of " + std::to_string(outOfRange.size()) : "";
    const bool mayLeaveGaps = options.type == kTypeWithGaps;
    throw Failure(ExitCode::Input,
                  display(options.log.input.path) + ": " + describeRow(log, outOfRange.front()) +
                      " is out of the range of type " + options.type + others +
                      (mayLeaveGaps ? " (status -20322)" : ""),
                  mayLeaveGaps ? "correct the file, choose another --type, or write nan for such rows with --gaps"
                               : "correct the file, or choose another --type");
}

Result resultOf(Temperatures temperatures)
{
    Result result{std::move(temperatures), INFINITY, 0, -INFINITY};
    std::size_t count = 0;
    for (const double value : result.temperatures.values) {
        if (std::isnan(value))
            continue;
        ++count;
        result.lowest = std::min(result.lowest, value);
        result.highest = std::max(result.highest, value);
        result.mean += (value - result.mean) / static_cast<double>(count);
    }
    return result;
}

void warn(const std::string& text)
{
    std::cerr << "quordsp: warning: " << text << '\n';
}

// The rows with a temperature whose compensated voltage is one of those.
struct Affected {
    std::size_t count = 0;
    std::size_t first = 0;
};

template <class Predicate>
Affected affected(const std::vector<double>& voltages, const Temperatures& temperatures, Predicate isOne)
{
    Affected found;
    for (std::size_t row = 0; row < voltages.size(); ++row)
        if (std::isfinite(temperatures.values[row]) && isOne(voltages[row]) && ++found.count == 1)
            found.first = row;
    return found;
}

void warnOfRows(const Affected& rows, const std::string& what, const VoltageRange& range, const ThermocoupleLog& log,
                const std::string& then)
{
    if (rows.count > 0)
        warn(counted(rows.count, "row") + what + rounded(range.low) + " to " + rounded(range.high) +
             " mV; the first is " + describeRow(log, rows.first) + "\n  " + then);
}

// What the library does and a user would not expect.
void warnOfDepartures(const ThermocoupleLog& log, const Temperatures& temperatures, const ThermocoupleType& type)
{
    const std::string name = "type " + std::string(type.letter);
    if (type.letter != "K" && std::ranges::any_of(log.coldJunction, [](double value) { return value != 0; }))
        warn("the cold junction adds the voltage of type K, not that of " + name +
             "\n  compensate the voltages before, and give --cold-junction 0");
    const std::vector<double> voltages = compensated(log.emf, log.coldJunction);
    const auto departs = [&](double emf) { return std::abs(emf) > kNothing && type.departs.contains(emf); };
    const auto isOutside = [&](double emf) { return !type.published.contains(emf); };
    warnOfRows(affected(voltages, temperatures, departs),
               " where the library departs from the published function of " + name + ", from ", type.departs, log,
               "the description of QuorDSP_Thermocouple tells how");
    warnOfRows(affected(voltages, temperatures, isOutside), " outside the published range of " + name + ", ",
               type.published, log, "the temperatures there cannot be trusted");
}

std::string describeColdJunction(const ThermocoupleLog& log)
{
    const auto [low, high] = std::ranges::minmax(log.coldJunction);
    return "cold junction at " + rounded(low, 4) + (low < high ? " to " + rounded(high, 4) : "") + " degC";
}

// Rows count from 1, and timestamps from the first one.
TimeOrigin originOf(const ThermocoupleLog& log)
{
    if (log.placeName != "time_s" || !log.timestamps.empty())
        return {0, log.placeLabel};
    const auto [low, high] = std::ranges::minmax(log.places);
    return timeOrigin(log.places.front(), high - low);
}

Plot plotOf(const ThermocoupleLog& log, const Result& result, const Options& options, const TemperatureUnit& unit)
{
    const TimeOrigin origin = originOf(log);
    return {.title = "temperature by a thermocouple of type " + options.type,
            .subtitle = display(options.log.input.path.filename()) + ", " + describeColdJunction(log),
            .xLabel = origin.label,
            .xStart = -origin.time,
            .x = log.places,
            .panels = {{.yLabel = Label{"temperature", std::string(unit.name)}.axis(),
                        .curves = {{"temperature", result.temperatures.values}}}}};
}

std::vector<OutputColumn> columnsOf(const ThermocoupleLog& log, const Result& result, const TemperatureUnit& unit)
{
    std::vector<OutputColumn> columns;
    if (!log.timestamps.empty())
        columns.push_back({.name = "timestamp", .value = {}, .text = [&](std::size_t i) -> const std::string& {
                               return log.timestamps[i];
                           }});
    columns.push_back({log.placeName, [&](std::size_t i) { return log.places[i]; }});
    columns.push_back({"emf_mV", [&](std::size_t i) { return log.emf[i]; }});
    columns.push_back({"cold_junction_degC", [&](std::size_t i) { return coldJunctionAt(log, i); }});
    columns.push_back(
        {columnName("temperature", unit.name), [&](std::size_t i) { return result.temperatures.values[i]; }});
    return columns;
}

void print(const ThermocoupleLog& log, const Result& result, const Options& options, const TemperatureUnit& unit)
{
    std::cout << counted(log.emf.size(), "row") << " of " << printable(log.quantity) << ", type " << options.type
              << ", " << describeColdJunction(log) << '\n'
              << "minimum: " << rounded(result.lowest) << ' ' << unit.name << '\n'
              << "mean:    " << rounded(result.mean) << ' ' << unit.name << '\n'
              << "maximum: " << rounded(result.highest) << ' ' << unit.name << '\n';
    if (const auto& outOfRange = result.temperatures.outOfRange; !outOfRange.empty())
        std::cout << "out of range: " << counted(outOfRange.size(), "row") << ", the first is "
                  << describeRow(log, outOfRange.front()) << '\n';
}

void run(const Options& options)
{
    requireDifferentFiles(options.log.input, options.output);
    requireColdJunction(options);
    requireGapsToBePossible(options);
    const ThermocoupleType& type = rowOf(thermocoupleTypes(), options.type);
    const TemperatureUnit& unit = rowOf(temperatureUnits(), options.unit);
    const ThermocoupleLog log = readThermocoupleLog(options.log);
    Temperatures temperatures = convertThermocouple(log.emf, log.coldJunction, type, unit);
    requireInRange(log, temperatures, options);
    warnOfDepartures(log, temperatures, type);
    const Result result = resultOf(std::move(temperatures));
    writeResult(options.output, columnsOf(log, result, unit), log.emf.size(),
                [&] { return plotOf(log, result, options, unit); });
    print(log, result, options, unit);
    printWritten(options.output);
}

} // namespace

void thermocouple(Command& command)
{
    const auto options = std::make_shared<Options>();
    InputChoice& input = options->log.input;
    command.option("INPUT", input.path, "CSV file with one voltage a line").required().placeholder("");
    addOutput(command, options->output);
    command
        .option("--column", input.column,
                "Column of the voltage by name or by number from 1.\n"
                "Without it: the first in mV, V or uV, else the first that is not time")
        .placeholder("NAME|INDEX");
    command.option("--type", options->type, "Of the thermocouple").required().oneOf(letters(thermocoupleTypes()));
    command
        .option("--cold-junction", options->log.coldJunction,
                "Temperature of the cold junction. The library adds the voltage that type K\n"
                "has there, whatever the --type; 0 for voltages that are compensated")
        .number()
        .placeholder("DEGC");
    command.option("--cold-junction-column", options->log.coldJunctionColumn, "The same, row by row, in degC")
        .excludes("--cold-junction")
        .placeholder("NAME|INDEX");
    command.option("--unit", options->unit, "Of the temperature: degC, degF, kelvin or degR")
        .oneOf(letters(temperatureUnits()))
        .showDefault();
    command
        .option("--rate", input.rate,
                "Rows a second. Without it: the times of the time column, which may be numbers\n"
                "or like 2026-05-26 09:04:27.367; without such a column the rows are counted")
        .positive()
        .placeholder("HZ");
    command.option("--gaps", options->gaps,
                   "Write nan for rows that are out of the range of type K, instead of no file at all");
    command.run([options] { run(*options); });
}

} // namespace quordsp::cli::command
