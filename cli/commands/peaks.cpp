// quordsp peaks: where a signal has its peaks or valleys, how high and how sharp they are, and how often they come.
#include <cmath>
#include <iostream>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "commands/commands.h"
#include "input.h"
#include "number.h"
#include "options.h"
#include "peaks.h"
#include "series_plot.h"

namespace quordsp::cli::command {
namespace {

struct Options {
    InputChoice input;
    OutputChoice output;
    Span span;
    PeakSearch search;

    [[nodiscard]] std::string one() const { return search.valleys ? "valley" : "peak"; }
};

double timeOf(const Series& series, const Peak& peak)
{
    return series.start + peak.place / series.rate;
}

// Without a unit the name must still tell that it is per s^2.
std::string secondDerivativeUnit(const Series& series)
{
    return (series.label.unit.empty() ? "1" : series.label.unit) + "/s^2";
}

std::string describe(const Series& series, const Options& options)
{
    std::string text = counted(static_cast<std::size_t>(options.search.width), "sample") + " a fit";
    if (options.search.threshold)
        text += std::string(options.search.valleys ? ", up to " : ", from ") +
                withUnit(rounded(*options.search.threshold), series.label.unit);
    return text;
}

Plot plotOf(const Series& series, const std::vector<Peak>& peaks, const Options& options)
{
    Plot plot = timePlot(series);
    plot.title = series.label.quantity + ", " + counted(peaks.size(), options.one());
    plot.subtitle =
        display(options.input.path.filename()) + ", " + rounded(series.rate) + " Hz, " + describe(series, options);
    Panel panel{.yLabel = series.label.axis(), .curves = {{"", series.samples}}};
    for (const Peak& peak : peaks)
        panel.marks.push_back({plot.xStart + peak.place * plot.xStep, peak.amplitude});
    plot.panels = {panel};
    return plot;
}

void printIntervals(const Series& series, const Intervals& intervals)
{
    const auto seconds = [&](double samples) { return rounded(samples / series.rate, 5) + " s"; };
    std::cout << "interval: " << seconds(intervals.mean) << " on average, " << seconds(intervals.shortest) << " to "
              << seconds(intervals.longest) << '\n'
              << "rate:     " << rounded(60 * series.rate / intervals.mean, 5) << " per minute\n";
}

void print(const Series& series, const std::vector<Peak>& peaks, const Options& options)
{
    std::cout << counted(series.samples.size(), "sample") << " of " << printable(series.label.axis()) << " at "
              << rounded(series.rate) << " Hz: " << counted(peaks.size(), options.one()) << " by "
              << printable(describe(series, options)) << '\n';
    if (const auto intervals = intervalsOf(peaks))
        printIntervals(series, *intervals);
}

void run(const Options& options)
{
    requireDifferentFiles(options.input, options.output);
    Series series = readSeries(options.input);
    const double start = series.start;
    series = cut(std::move(series), options.span);
    const double before = std::round((series.start - start) * series.rate); // samples left out
    const std::vector<Peak> peaks = findPeaks(series.samples, options.search);
    const double perSecond2 = series.rate * series.rate;
    writeResult(options.output,
                {{"time_s", [&](std::size_t i) { return timeOf(series, peaks[i]); }},
                 {"sample", [&](std::size_t i) { return before + peaks[i].place; }},
                 {columnName("amplitude", series.label.unit), [&](std::size_t i) { return peaks[i].amplitude; }},
                 {columnName("second_derivative", secondDerivativeUnit(series)),
                  [&](std::size_t i) { return peaks[i].secondDerivative * perSecond2; }}},
                peaks.size(), [&] { return plotOf(series, peaks, options); });
    print(series, peaks, options);
    printWritten(options.output);
}

} // namespace

void peaks(Command& command)
{
    const auto options = std::make_shared<Options>();
    addInput(command, options->input);
    addOutput(command, options->output);
    addSpan(command, options->span);
    command
        .option("--threshold", options->search.threshold,
                "Leave out lower peaks; with --valleys, higher valleys. Without it all count")
        .number()
        .placeholder("LEVEL");
    command
        .option("--width", options->search.width,
                "Samples of each fit of a parabola: 3 for clean data, more for noise,\n"
                "up to about half of what a peak is wide")
        .whole()
        .within(3, 1000000000)
        .placeholder("N")
        .showDefault();
    command.option("--valleys", options->search.valleys, "Look for valleys instead");
    command.run([options] { run(*options); });
}

} // namespace quordsp::cli::command
