// quordsp detrend: a signal without its polynomial trend, which may bend at breakpoints.
#include <algorithm>
#include <cmath>
#include <iostream>
#include <limits>
#include <memory>
#include <new>
#include <string>
#include <vector>

#include "commands/commands.h"
#include "failure.h"
#include "input.h"
#include "number.h"
#include "options.h"
#include "progress.h"
#include "series_plot.h"
#include "status.h"

namespace quordsp::cli::command {
namespace {

struct Options {
    InputChoice input;
    OutputChoice output;
    Span span;
    int order = 1;
    std::vector<double> breakpoints;       // s
    std::vector<double> breakpointSamples; // from 1
};

struct Result {
    std::vector<double> trend;
    std::vector<double> detrended;
};

// Counted from 1, as the library counts them, ascending.
std::vector<double> places(const Series& series, const Options& options)
{
    std::vector<double> found = options.breakpointSamples;
    for (const double time : options.breakpoints)
        found.push_back((time - series.start) * series.rate + 1);
    std::ranges::sort(found);
    return found;
}

[[noreturn]] void badBreakpoint(const std::string& what, const std::string& advice)
{
    throw Failure(ExitCode::Usage, what, advice);
}

void requireUsable(const std::vector<double>& breakpoints, const Series& series, const Options& options)
{
    const std::size_t count = series.samples.size();
    if (!breakpoints.empty() && (breakpoints.front() <= 1 || breakpoints.back() >= static_cast<double>(count)))
        badBreakpoint("a breakpoint does not lie inside the signal", "that is between " + rounded(series.start) +
                                                                         " s and " + rounded(series.time(count - 1)) +
                                                                         " s, samples 1 and " + std::to_string(count));
    if (std::ranges::adjacent_find(breakpoints) != breakpoints.end())
        badBreakpoint("two breakpoints are the same", "leave one of them out");
    if (options.order == 0 && breakpoints.size() > 1)
        badBreakpoint("order 0 takes one breakpoint at most", "it removes the mean of what lies before it");
}

std::size_t unknowns(const std::vector<double>& breakpoints, const Options& options)
{
    return (breakpoints.size() + 1) * static_cast<std::size_t>(options.order) + 1;
}

void requireFit(const Series& series, const std::vector<double>& breakpoints, const Options& options)
{
    const std::size_t columns = unknowns(breakpoints, options);
    if (columns > series.samples.size())
        throw Failure(ExitCode::Usage,
                      "a trend with " + std::to_string(columns) + " coefficients needs as many samples, not " +
                          std::to_string(series.samples.size()),
                      "take a lower --order or fewer breakpoints");
}

// Of samples, over as many places from -1 to 1. In long double, since squares leave the range of double.
struct Moments {
    double mean = 0;
    double rms = 0;
    double slope = 0; // mean of the products of sample and place
};

Moments momentsOf(const std::vector<double>& samples)
{
    const auto count = static_cast<long double>(samples.size());
    long double sum = 0;
    long double squares = 0;
    long double products = 0;
    long double place = -1;
    for (const long double sample : samples) {
        sum += sample;
        squares += sample * sample;
        products += sample * place;
        place += 2 / count;
    }
    return {static_cast<double>(sum / count), static_cast<double>(std::sqrt(squares / count)),
            static_cast<double>(products / count)};
}

// What a least-squares fit leaves has no more power than the signal, and no straight line in it. A fit with next to
// equal columns leaves something else, not always beyond the range of numbers.
bool isResidual(const Moments& after, const Moments& before)
{
    const double rounding = std::numeric_limits<double>::min();
    const double line = 1e-6 * before.rms + rounding;
    return after.rms <= (1 + 1e-9) * before.rms + rounding && std::abs(after.mean) <= line &&
           std::abs(after.slope) <= line;
}

void requireResidual(const std::vector<double>& rest, const std::vector<double>& samples, int order)
{
    const Moments after = momentsOf(rest);
    if (order == 0 ? std::isfinite(after.rms) : isResidual(after, momentsOf(samples)))
        return;
    if (rest == samples) // the library has no other sign of it
        throw std::bad_alloc();
    throw Failure(ExitCode::Usage, "there is no single trend that fits best",
                  "take a lower --order, or breakpoints that lie further apart");
}

Result detrended(const Series& series, std::vector<double> breakpoints, const Options& options)
{
    Result result{series.samples, series.samples};
    const Progress progress("fitting the trend");
    requireSuccess(QuorDSP_detrend(result.detrended.data(), static_cast<int>(result.detrended.size()), options.order,
                                   breakpoints.data(), static_cast<int>(breakpoints.size())),
                   "detrending");
    for (std::size_t i = 0; i < result.trend.size(); ++i)
        result.trend[i] -= result.detrended[i];
    requireResidual(result.detrended, series.samples, options.order);
    return result;
}

std::string describe(const Options& options, std::size_t breakpoints)
{
    std::string text = "trend of order " + std::to_string(options.order);
    if (breakpoints > 0)
        text += " with " + counted(breakpoints, "breakpoint");
    return text;
}

std::string meanAndRms(const std::vector<double>& samples, const std::string& unit)
{
    const Moments moments = momentsOf(samples);
    return "mean " + withUnit(rounded(moments.mean, 5), unit) + ", rms " + withUnit(rounded(moments.rms, 5), unit);
}

void print(const Series& series, const Result& result, const std::string& description)
{
    const std::string unit = printable(series.label.unit);
    const auto [low, high] = std::ranges::minmax(result.trend);
    std::cout << counted(series.samples.size(), "sample") << " of " << printable(series.label.axis()) << " at "
              << rounded(series.rate) << " Hz: " << description << " removed\n"
              << "trend:  " << withUnit(rounded(low, 5), unit) << " to " << withUnit(rounded(high, 5), unit) << '\n'
              << "before: " << meanAndRms(series.samples, unit) << '\n'
              << "after:  " << meanAndRms(result.detrended, unit) << '\n';
}

Plot plotOf(const Series& series, const Result& result, const Options& options, const std::string& description)
{
    Plot plot = timePlot(series);
    plot.title = series.label.quantity + ", " + description;
    plot.subtitle = display(options.input.path.filename()) + ", " + rounded(series.rate) + " Hz";
    plot.panels = {{.yLabel = series.label.axis(), .curves = {{"input", series.samples}, {"trend", result.trend}}},
                   {.yLabel = Label{"detrended", series.label.unit}.axis(), .curves = {{"", result.detrended}}}};
    return plot;
}

void run(const Options& options)
{
    requireDifferentFiles(options.input, options.output);
    const Series series = cut(readSeries(options.input), options.span);
    const std::vector<double> breakpoints = places(series, options);
    requireUsable(breakpoints, series, options);
    requireFit(series, breakpoints, options);
    const Result result = detrended(series, breakpoints, options);
    const std::string description = describe(options, breakpoints.size());
    const std::string& unit = series.label.unit;
    writeResult(options.output,
                {{"time_s", [&](std::size_t i) { return series.time(i); }},
                 {columnName("input", unit), [&](std::size_t i) { return series.samples[i]; }},
                 {columnName("trend", unit), [&](std::size_t i) { return result.trend[i]; }},
                 {columnName("detrended", unit), [&](std::size_t i) { return result.detrended[i]; }}},
                series.samples.size(), [&] { return plotOf(series, result, options, description); });
    print(series, result, description);
    printWritten(options.output);
}

} // namespace

void detrend(Command& command)
{
    const auto options = std::make_shared<Options>();
    addInput(command, options->input);
    addOutput(command, options->output);
    addSpan(command, options->span);
    command.option("--order", options->order, "Of the polynomial: 0 the mean, 1 a straight line")
        .whole()
        .within(0, 100)
        .showDefault();
    command
        .option("--breakpoints", options->breakpoints,
                "Times at which the trend may bend, with commas between them.\n"
                "With order 0: remove the mean of what lies before")
        .list()
        .number()
        .placeholder("S,...");
    command.option("--breakpoint-samples", options->breakpointSamples, "The same as samples, counted from 1")
        .list()
        .number()
        .excludes("--breakpoints")
        .placeholder("N,...");
    command.run([options] { run(*options); });
}

} // namespace quordsp::cli::command
