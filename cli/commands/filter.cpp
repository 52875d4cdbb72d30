// quordsp filter: one column through one of the filter designs, or through several to compare them; or two columns as a
// complex signal.
#include <algorithm>
#include <iostream>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "commands/commands.h"
#include "csv_writer.h"
#include "failure.h"
#include "filter_choice.h"
#include "filter_run.h"
#include "input.h"
#include "number.h"
#include "options.h"
#include "series_plot.h"

namespace quordsp::cli::command {
namespace {

struct Options {
    InputChoice input;
    OutputChoice output;
    FilterChoice filter;
    bool zeroPhase = false;
    std::vector<double> view;
};

// A signal with the words for it.
struct Named {
    std::string name; // of the column and the curve
    std::string unit;
    const Filtered& parts;

    [[nodiscard]] std::string axis() const { return Label{name, unit}.axis(); }
};

std::vector<Named> namedResults(const Series& series, const std::vector<ChosenFilter>& filters,
                                const std::vector<Filtered>& results)
{
    std::vector<Named> named;
    for (std::size_t i = 0; i < filters.size(); ++i)
        named.push_back({filters.size() > 1 ? std::string(filters[i].family.name) : "filtered",
                         perSeconds(series.label.unit, filters[i].request.derivative), results[i]});
    return named;
}

std::vector<Curve> curvesOf(const std::string& name, const std::vector<double>& real,
                            const std::vector<double>& imaginary)
{
    if (imaginary.empty())
        return {{name, real}};
    return {{name + ", real part", real}, {name + ", imaginary part", imaginary}};
}

// Curves of one unit in a panel; parts of a complex signal with those of no other one.
void addPanels(Plot& plot, const std::vector<Named>& results)
{
    for (const Named& result : results) {
        const bool isComplex = !result.parts.imaginary.empty();
        const std::string label = Label{"filtered", result.unit}.axis();
        if (isComplex || plot.panels.size() < 2 || plot.panels.back().yLabel != label)
            plot.panels.push_back({.yLabel = label, .compared = true});
        for (Curve& curve : curvesOf(result.name, result.parts.real, result.parts.imaginary))
            plot.panels.back().curves.push_back(std::move(curve));
    }
}

Plot plotOf(const Series& series, const std::vector<Named>& results, const std::vector<ChosenFilter>& filters,
            const Options& options, const SampleRange& view)
{
    Plot plot = timePlot(series);
    plot.title = series.label.quantity + ", " + describeBand(filters);
    plot.subtitle = display(options.input.path.filename()) + ", " +
                    (filters.size() > 1 ? "" : filters.front().design + ", ") + rounded(series.rate) + " Hz";
    plot.panels = {{.yLabel = series.label.axis(),
                    .curves = curvesOf("input", series.samples, series.imaginary),
                    .compared = series.isComplex()}};
    if (results.size() == 1 && !series.isComplex() && results.front().unit == series.label.unit)
        plot.panels.back().curves.push_back({results.front().name, results.front().parts.real});
    else
        addPanels(plot, results);
    show(plot, view);
    return plot;
}

SampleRange viewOf(const Series& series, const Options& options)
{
    if (options.view.empty())
        return {0, series.samples.size()};
    return samplesWithin(series, {options.view[0], options.view[1]}, "the two times of --view");
}

void addColumns(std::vector<OutputColumn>& columns, const std::string& name, const std::string& unit,
                const std::vector<double>& real, const std::vector<double>& imaginary)
{
    const bool isComplex = !imaginary.empty();
    columns.push_back({columnName(isComplex ? name + "_real" : name, unit), [&](std::size_t i) { return real[i]; }});
    if (isComplex)
        columns.push_back({columnName(name + "_imaginary", unit), [&](std::size_t i) { return imaginary[i]; }});
}

std::vector<OutputColumn> columnsOf(const Series& series, const std::vector<Named>& results)
{
    std::vector<OutputColumn> columns{{"time_s", [&](std::size_t i) { return series.time(i); }}};
    addColumns(columns, "input", series.label.unit, series.samples, series.imaginary);
    for (const Named& result : results)
        addColumns(columns, result.name, result.unit, result.parts.real, result.parts.imaginary);
    return columns;
}

void print(const Series& series, const std::vector<ChosenFilter>& filters, const std::vector<Filtered>& results)
{
    std::cout << counted(series.samples.size(), "sample") << " of " << printable(series.label.axis()) << " at "
              << rounded(series.rate) << " Hz:";
    for (const ChosenFilter& filter : filters)
        std::cout << (filters.size() > 1 ? "\n  " : " ") << filter.describe();
    std::cout << '\n';
    for (std::size_t i = 0; i < filters.size(); ++i)
        if (results[i].delay)
            std::cout << "delay of " << filters[i].family.name << ": " << rounded(*results[i].delay) << " samples, "
                      << rounded(*results[i].delay / series.rate) << " s\n";
}

void run(const Options& options)
{
    requireDifferentFiles(options.input, options.output);
    const std::vector<ChosenFilter> filters = chosenFilters(options.filter);
    if (options.zeroPhase)
        requireIirForZeroPhase(filters);
    const Series series = readSeries(options.input);
    const SampleRange view = viewOf(series, options);
    std::vector<Filtered> results;
    for (const ChosenFilter& filter : filters)
        results.push_back(options.zeroPhase ? runBothWays(filter, series) : runOnce(filter, series));
    const std::vector<Named> named = namedResults(series, filters, results);
    writeResult(options.output, columnsOf(series, named), series.samples.size(),
                [&] { return plotOf(series, named, filters, options, view); });
    print(series, filters, results);
    printWritten(options.output);
}

} // namespace

void filter(Command& command)
{
    const auto options = std::make_shared<Options>();
    addInput(command, options->input);
    addImaginary(command, options->input, "result has two columns");
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
