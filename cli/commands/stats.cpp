// quordsp stats: mean, rms, extremes, median and percentiles of one column.
#include <algorithm>
#include <iostream>
#include <memory>
#include <span>
#include <string>
#include <vector>

#include "commands/commands.h"
#include "failure.h"
#include "input.h"
#include "number.h"
#include "options.h"
#include "statistics.h"

namespace quordsp::cli::command {
namespace {

struct Options {
    InputChoice input;
    OutputChoice output;
    Span span;
    std::vector<double> percents{5, 25, 75, 95};
};

struct Figure {
    std::string name;
    std::string unit;
    double value;
};

// In the order of the table's columns.
std::vector<Figure> figuresOf(const Series& series, const Options& options)
{
    const std::string& unit = series.label.unit;
    const Moments moments = statisticalMoments(series.samples);
    const auto [minimum, maximum] = extremesOf(series.samples);
    const std::vector<double> samples = sorted(series.samples);
    std::vector<Figure> figures{{"samples", "", static_cast<double>(samples.size())},
                                {"mean", unit, moments.mean},
                                {"rms", unit, moments.rms},
                                {"standard_deviation", unit, moments.deviation},
                                {"minimum", unit, minimum.value},
                                {"minimum_time", "s", series.time(minimum.index)},
                                {"maximum", unit, maximum.value},
                                {"maximum_time", "s", series.time(maximum.index)},
                                {"median", unit, percentile(samples, 50)}};
    for (const double percent : options.percents)
        figures.push_back({"percentile_" + shortest(percent), unit, percentile(samples, percent)});
    return figures;
}

// "minimum_time" as "minimum time:      "
std::string heading(std::string name)
{
    constexpr std::size_t kWidth = 20;
    for (char& c : name)
        c = c == '_' ? ' ' : c;
    name += ':';
    name.resize(std::max(kWidth, name.size() + 1), ' ');
    return name;
}

void print(const Series& series, const std::vector<Figure>& figures)
{
    std::cout << counted(series.samples.size(), "sample") << " of " << printable(series.label.axis()) << " at "
              << rounded(series.rate) << " Hz\n";
    for (const Figure& figure : std::span(figures).subspan(1))
        std::cout << heading(figure.name) << withUnit(rounded(figure.value), printable(figure.unit)) << '\n';
}

void requirePercents(const std::vector<double>& percents)
{
    for (const double percent : percents)
        if (percent < 0 || percent > 100)
            throw Failure(ExitCode::Usage, "there are no " + shortest(percent) + " percent of the samples",
                          "--percentiles lie between 0 and 100");
}

void run(const Options& options)
{
    requirePercents(options.percents);
    requireDifferentFiles(options.input, options.output);
    const Series series = cut(readSeries(options.input), options.span);
    const std::vector<Figure> figures = figuresOf(series, options);
    std::vector<OutputColumn> columns;
    columns.reserve(figures.size());
    for (const Figure& figure : figures)
        columns.push_back({columnName(figure.name, figure.unit), [&figure](std::size_t) { return figure.value; }});
    if (!options.output.table.empty())
        writeResult(options.output, columns, 1, {});
    print(series, figures);
    printWritten(options.output);
}

} // namespace

void stats(Command& command)
{
    const auto options = std::make_shared<Options>();
    addInput(command, options->input);
    command.option("-o,--output", options->output.table, "CSV file to write: one row, a column for each number")
        .placeholder("OUT.csv");
    addSpan(command, options->span);
    command
        .option("--percentiles", options->percents,
                "Values below which so many percent of the samples lie, with commas\nbetween them")
        .list()
        .number()
        .placeholder("P,...")
        .showDefault();
    command.run([options] { run(*options); });
}

} // namespace quordsp::cli::command
