// quordsp vibration: acceleration to velocity and displacement, and what each shows of the strongest line.
#include <algorithm>
#include <cmath>
#include <iostream>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "commands/commands.h"
#include "failure.h"
#include "input.h"
#include "number.h"
#include "options.h"
#include "progress.h"
#include "series_plot.h"
#include "spectrum_kinds.h"
#include "status.h"
#include "strongest_line.h"
#include "vibration.h"

namespace quordsp::cli::command {
namespace {

constexpr double kDefaultBlock = 1; // s

struct Options {
    InputChoice input;
    OutputChoice output;
    Span span;
    std::optional<double> sensitivity;
    double offset = 0;
    std::optional<double> block;
    std::vector<double> velocityBounds;
    std::vector<double> displacementBounds;
    std::vector<double> view;
};

// The three records and what stands in front of each, in the order of the panels.
struct Quantity {
    const char* name;
    const char* unit;
    std::vector<double> VibrationRecord::* samples;
};

constexpr Quantity kQuantities[] = {
    {"acceleration", "m/s2", &VibrationRecord::acceleration},
    {"velocity", "mm/s", &VibrationRecord::velocity},
    {"displacement", "mm", &VibrationRecord::displacement},
};

struct Line {
    double frequency;                                        // Hz
    std::optional<double> amplitude[std::size(kQuantities)]; // peak
};

[[noreturn]] void wrongUnit(const Series& series, const std::string& what, const std::string& advice)
{
    throw Failure(ExitCode::Usage,
                  "column '" + series.label.quantity + "' is in " + series.label.unit + ", no unit of " + what, advice);
}

// What a sample is multiplied by to be in volts, or in g without a sensitivity.
double scaleOf(const Series& series, const Options& options)
{
    const std::string& unit = series.label.unit;
    if (!options.sensitivity) {
        const double g = gPerUnit(unit);
        if (g == 0)
            wrongUnit(series, "acceleration", "give the --sensitivity for volts, or choose another --column");
        return g;
    }
    const double volts = unit.empty() || unit == "FS" ? 1 : voltsPerUnit(unit);
    if (volts == 0)
        wrongUnit(series, "voltage", "leave out --sensitivity for an acceleration, or choose another --column");
    return volts;
}

Bounds boundsOf(const std::vector<double>& values, const std::string& option)
{
    if (values.empty())
        return {};
    if (values[0] >= values[1])
        throw Failure(ExitCode::Usage, option + " must ascend", "give the lower bound first");
    return {values[0], values[1]};
}

VibrationSettings settingsOf(const Series& series, const Options& options)
{
    return {.rate = series.rate,
            .sensitivity = options.sensitivity.value_or(1000),
            .offset = options.offset,
            .velocity = boundsOf(options.velocityBounds, "--velocity-bounds"),
            .displacement = boundsOf(options.displacementBounds, "--displacement-bounds")};
}

std::string secondsOf(std::size_t samples, const Series& series)
{
    return rounded(static_cast<double>(samples) / series.rate) + " s";
}

void requireBlock(double samples, const Series& series)
{
    if (samples < kFewestBlockSamples)
        throw Failure(ExitCode::Usage,
                      "a --block needs " + std::to_string(kFewestBlockSamples) + " samples, that is " +
                          secondsOf(kFewestBlockSamples, series),
                      "take a longer one");
    if (samples > kMostBlockSamples && series.samples.size() > kMostBlockSamples)
        throw Failure(ExitCode::Usage,
                      "a --block has " + std::to_string(kMostBlockSamples) + " samples at most, that is " +
                          secondsOf(kMostBlockSamples, series),
                      "take a shorter one");
}

SampleRange viewOf(const Series& series, const Options& options)
{
    if (options.view.empty())
        return {0, series.samples.size()};
    return samplesWithin(series, {options.view[0], options.view[1]}, "the two times of --view");
}

std::size_t blockOf(const Series& series, const Options& options)
{
    const std::size_t count = series.samples.size();
    if (count < kFewestBlockSamples)
        throw Failure(ExitCode::Input, "the signal has " + counted(count, "sample") + ", too few to integrate",
                      "at least " + std::to_string(kFewestBlockSamples) + " are needed");
    double wanted = options.block.value_or(kDefaultBlock) * series.rate;
    if (options.block)
        requireBlock(wanted, series);
    wanted = std::clamp(wanted, static_cast<double>(kFewestBlockSamples), static_cast<double>(kMostBlockSamples));
    return std::min(static_cast<std::size_t>(wanted), count);
}

VibrationRecord recordOf(const Series& series, const Options& options, std::size_t block)
{
    std::vector<double> raw = series.samples;
    const double scale = scaleOf(series, options);
    for (double& sample : raw)
        sample *= scale;
    VibrationRecord record = integrateVibration(raw, settingsOf(series, options), block);
    for (const Quantity& quantity : kQuantities)
        if (!std::ranges::all_of(record.*quantity.samples, [](double value) { return std::isfinite(value); }))
            throw Failure(ExitCode::Input, std::string("the ") + quantity.name + " is beyond the range of numbers",
                          "check the samples, the --sensitivity and the --offset");
    return record;
}

// The integration needs no backend, so that it is no error when there is none for the spectrum.
std::optional<Line> strongestLine(const Series& series, const VibrationRecord& record)
{
    const std::vector<double>& acceleration = record.acceleration;
    std::vector<double> levels(binCount(acceleration.size()));
    const Progress progress("looking for the strongest line");
    const int status = spectrumKind("peak").run(acceleration, 1 / series.rate, levels.data());
    if (status < 0) {
        std::cerr << "quordsp: warning: no strongest line: " << statusText(status) << '\n';
        return std::nullopt;
    }
    const auto found =
        findStrongestLine(acceleration, series.rate, levels, roundingLevel(levels[0], acceleration.size(), false));
    if (!found || !found->sine)
        return std::nullopt;
    Line line{found->sine->frequency, {}};
    for (std::size_t i = 0; i < std::size(kQuantities); ++i)
        line.amplitude[i] = amplitudeAt(record.*kQuantities[i].samples, series.rate, line.frequency);
    return line;
}

std::string amplitudeText(const Line& line, std::size_t quantity)
{
    const auto amplitude = line.amplitude[quantity];
    return amplitude ? withUnit(rounded(*amplitude, 4), kQuantities[quantity].unit) + " peak" : "none";
}

void printLine(const std::optional<Line>& line)
{
    if (!line) {
        std::cout << "strongest line: none\n";
        return;
    }
    for (std::size_t i = 0; i < std::size(kQuantities); ++i) {
        std::cout << kQuantities[i].name << " at " << rounded(line->frequency) << " Hz: " << amplitudeText(*line, i);
        if (i == 0 && line->amplitude[0])
            std::cout << ", " << rounded(*line->amplitude[0] / kLibraryG, 4) << " g of 9.78 m/s2";
        std::cout << '\n';
    }
}

constexpr double kEnoughPeriods = 12; // in a block

void warnOfSlowLine(const std::optional<Line>& line, double block)
{
    if (line && line->frequency * block < kEnoughPeriods)
        std::cerr << "quordsp: warning: " << rounded(line->frequency) << " Hz is too slow for blocks of "
                  << rounded(block)
                  << " s: much of its velocity and displacement is lost as trend\n  take a longer --block\n";
}

Plot plotOf(const Series& series, const VibrationRecord& record, const std::optional<Line>& line,
            const Options& options, const SampleRange& view, const std::string& block)
{
    Plot plot = timePlot(series);
    plot.title = series.label.quantity + ", acceleration, velocity and displacement";
    plot.subtitle = display(options.input.path.filename()) + ", " + rounded(series.rate) + " Hz, " + block;
    for (std::size_t i = 0; i < std::size(kQuantities); ++i) {
        const Quantity& quantity = kQuantities[i];
        const std::string name = line ? amplitudeText(*line, i) + " at " + rounded(line->frequency, 4) + " Hz" : "";
        plot.panels.push_back(
            {.yLabel = Label{quantity.name, quantity.unit}.axis(), .curves = {{name, record.*quantity.samples}}});
    }
    show(plot, view);
    return plot;
}

std::string describeBlock(std::size_t block, const Series& series)
{
    const bool isWhole = block == series.samples.size();
    return isWhole ? "one block" : "blocks of " + secondsOf(block, series) + " that overlap by half";
}

void run(const Options& options)
{
    requireDifferentFiles(options.input, options.output);
    const Series series = cut(readSeries(options.input), options.span);
    const std::size_t block = blockOf(series, options);
    const SampleRange view = viewOf(series, options);
    const VibrationRecord record = recordOf(series, options, block);
    const std::optional<Line> line = strongestLine(series, record);
    std::vector<OutputColumn> columns{{"time_s", [&](std::size_t i) { return series.time(i); }}};
    for (const Quantity& quantity : kQuantities)
        columns.push_back({columnName(quantity.name, quantity.unit),
                           [&samples = record.*quantity.samples](std::size_t i) { return samples[i]; }});
    writeResult(options.output, columns, series.samples.size(),
                [&] { return plotOf(series, record, line, options, view, describeBlock(block, series)); });
    std::cout << counted(series.samples.size(), "sample") << " of " << printable(series.label.axis()) << " at "
              << rounded(series.rate) << " Hz, integrated in " << describeBlock(block, series) << '\n';
    printLine(line);
    warnOfSlowLine(line, static_cast<double>(block) / series.rate);
    printWritten(options.output);
}

Option addBounds(Command& command, const std::string& name, std::vector<double>& bounds, const std::string& unit,
                 const std::string& help)
{
    return command.option(name, bounds, help).values(2, 2).number().placeholder(unit + " " + unit);
}

} // namespace

void vibration(Command& command)
{
    const auto options = std::make_shared<Options>();
    addInput(command, options->input);
    addOutput(command, options->output);
    addSpan(command, options->span);
    command
        .option("--sensitivity", options->sensitivity,
                "Of the accelerometer, for a column in volts.\n"
                "Without it the column is an acceleration, in g when its name tells no unit")
        .positive()
        .placeholder("MV/G");
    command.option("--offset", options->offset, "Added to the acceleration").number().placeholder("G").showDefault();
    command
        .option("--block", options->block,
                "Length of the blocks, each of which loses its trends: a polynomial of order 5\n"
                "from the velocity, of order 15 from the displacement. A longer block keeps\n"
                "slower motion and more drift: 12 periods in a block keep 95 % of their\n"
                "displacement, 5 lose most. Default: 1 s, within 32 to 46341 samples")
        .positive()
        .placeholder("S");
    addBounds(command, "--velocity-bounds", options->velocityBounds, "MM/S",
              "What the velocity may reach before it loses its trend");
    addBounds(command, "--displacement-bounds", options->displacementBounds, "MM",
              "What the displacement may reach before it loses its trend");
    addBounds(command, "--view", options->view, "S", "Draw only what lies between these times").needs("--plot");
    command.run([options] { run(*options); });
}

} // namespace quordsp::cli::command
