// quordsp filter: one column through one of the filter designs, or through several to compare them.
#include <algorithm>
#include <iostream>
#include <memory>
#include <string>
#include <vector>

#include "commands/commands.h"
#include "csv_writer.h"
#include "failure.h"
#include "filter_choice.h"
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
    FilterChoice filter;
    bool zeroPhase = false;
    std::vector<double> view;
};

struct Filtered {
    std::string name; // of the column and the curve
    std::vector<double> samples;
};

void requireIirForZeroPhase(const std::vector<ChosenFilter>& filters)
{
    for (const ChosenFilter& filter : filters)
        if (filter.family.coefficients)
            throw Failure(ExitCode::Usage, "--zero-phase is not for " + std::string(filter.family.name),
                          "a FIR filter delays every frequency by (taps - 1)/2 samples: shift its output");
}

std::vector<double> runOnce(const ChosenFilter& filter, const FilterRequest& request, const std::vector<double>& in)
{
    std::vector<double> out(in.size());
    const auto status = [&] {
        const Progress progress("filtering");
        return filter.family.run(request, in, out.data());
    }();
    check(status, filter.describe() + " at " + rounded(request.rate) + " Hz");
    return out;
}

// Forwards and backwards through the sections: the direct form, which the library has an export for, is far from the
// design when the order is high or the band narrow.
std::vector<double> runBothWays(const ChosenFilter& filter, const FilterRequest& request, const std::vector<double>& in)
{
    std::vector<double> out = runOnce(filter, request, in);
    std::ranges::reverse(out);
    out = runOnce(filter, request, out);
    std::ranges::reverse(out);
    return out;
}

std::vector<Filtered> filtered(const Series& series, const std::vector<ChosenFilter>& filters, bool zeroPhase)
{
    std::vector<Filtered> results;
    for (const ChosenFilter& filter : filters) {
        FilterRequest request = filter.request;
        request.rate = series.rate;
        results.push_back({filters.size() > 1 ? std::string(filter.family.name) : "filtered",
                           (zeroPhase ? runBothWays : runOnce)(filter, request, series.samples)});
    }
    return results;
}

Plot plotOf(const Series& series, const std::vector<Filtered>& results, const std::vector<ChosenFilter>& filters,
            const Options& options, const SampleRange& view)
{
    Plot plot = timePlot(series);
    plot.title = series.label.quantity + ", " + describeBand(filters);
    plot.subtitle = display(options.input.path.filename()) + ", " +
                    (filters.size() > 1 ? "" : filters.front().design + ", ") + rounded(series.rate) + " Hz";
    plot.panels = {{.yLabel = series.label.axis(), .curves = {{"input", series.samples}}}};
    if (results.size() > 1)
        plot.panels.push_back(
            {.yLabel = "filtered" + series.label.axis().substr(series.label.quantity.size()), .compared = true});
    for (const Filtered& result : results)
        plot.panels.back().curves.push_back({result.name, result.samples});
    show(plot, view);
    return plot;
}

SampleRange viewOf(const Series& series, const Options& options)
{
    if (options.view.empty())
        return {0, series.samples.size()};
    return samplesWithin(series, {options.view[0], options.view[1]}, "the two times of --view");
}

void print(const Series& series, const std::vector<ChosenFilter>& filters)
{
    std::cout << counted(series.samples.size(), "sample") << " of " << printable(series.label.axis()) << " at "
              << rounded(series.rate) << " Hz:";
    for (const ChosenFilter& filter : filters)
        std::cout << (filters.size() > 1 ? "\n  " : " ") << filter.describe();
    std::cout << '\n';
    for (const ChosenFilter& filter : filters)
        if (filter.family.coefficients)
            std::cout << "delay of " << filter.family.name << ": " << rounded((filter.request.taps - 1) / 2.0)
                      << " samples, " << rounded((filter.request.taps - 1) / 2.0 / series.rate) << " s\n";
}

void run(const Options& options)
{
    requireDifferentFiles(options.input, options.output);
    const std::vector<ChosenFilter> filters = chosenFilters(options.filter);
    if (options.zeroPhase)
        requireIirForZeroPhase(filters);
    const Series series = readSeries(options.input);
    const SampleRange view = viewOf(series, options);
    const std::vector<Filtered> results = filtered(series, filters, options.zeroPhase);
    const std::string& unit = series.label.unit;
    std::vector<OutputColumn> columns{{"time_s", [&](std::size_t i) { return series.time(i); }},
                                      {columnName("input", unit), [&](std::size_t i) { return series.samples[i]; }}};
    for (const Filtered& result : results)
        columns.push_back({columnName(result.name, unit), [&](std::size_t i) { return result.samples[i]; }});
    writeResult(options.output, columns, series.samples.size(),
                [&] { return plotOf(series, results, filters, options, view); });
    print(series, filters);
    printWritten(options.output);
}

} // namespace

void filter(Command& command)
{
    const auto options = std::make_shared<Options>();
    addInput(command, options->input);
    addOutput(command, options->output);
    addFilter(command, options->filter);
    command.option("--zero-phase", options->zeroPhase,
                   "Run an IIR filter forwards and backwards: no delay, twice the attenuation,\n"
                   "transients at both ends");
    command.option("--view", options->view, "Draw only what lies between these times")
        .values(2, 2)
        .number()
        .placeholder("S S")
        .needs("--plot");
    command.run([options] { run(*options); });
}

} // namespace quordsp::cli::command
