// quordsp filter: one column through one of the filter designs.
#include <iostream>
#include <memory>
#include <set>
#include <string>
#include <vector>

#include "commands/commands.h"
#include "csv_writer.h"
#include "failure.h"
#include "filter_designs.h"
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
    std::string family = "butterworth";
    std::string response;
    int order = 0;
    std::vector<double> cutoff;
};

std::vector<std::string> named(std::string_view FilterDesign::* column)
{
    std::set<std::string> names;
    for (const FilterDesign& design : filterDesigns())
        names.emplace(design.*column);
    return {names.begin(), names.end()};
}

const FilterDesign& chooseDesign(const Options& options)
{
    const FilterDesign* const design = findDesign(options.family, options.response);
    if (!design)
        throw Failure(ExitCode::Usage, "there is no " + options.family + " " + options.response,
                      "choose another --family");
    if (std::ssize(options.cutoff) != design->edges)
        throw Failure(ExitCode::Usage,
                      options.response + " takes " + std::to_string(design->edges) + " --cutoff frequencies, not " +
                          std::to_string(options.cutoff.size()),
                      design->edges == 2 ? "give the lower and the upper edge" : "give one frequency");
    return *design;
}

// "bandpass 90 to 110 Hz"
std::string describeResponse(const Options& options)
{
    std::string text = options.response + " " + rounded(options.cutoff.front());
    if (options.cutoff.size() > 1)
        text += " to " + rounded(options.cutoff.back());
    return text + " Hz";
}

std::string describeDesign(const Options& options)
{
    return options.family + " of order " + std::to_string(options.order);
}

std::string describe(const Options& options)
{
    return describeResponse(options) + ", " + describeDesign(options);
}

std::vector<double> filtered(const Series& series, const Options& options, const FilterDesign& design)
{
    std::vector<double> out(series.samples.size());
    const FilterRequest request{
        series.samples, series.rate, {options.cutoff.front(), options.cutoff.back()}, options.order};
    const auto status = [&] {
        const Progress progress("filtering");
        return design.run(request, out.data());
    }();
    check(status, describe(options) + " at " + rounded(series.rate) + " Hz");
    return out;
}

Plot plotOf(const Series& series, const std::vector<double>& out, const Options& options)
{
    Plot plot = timePlot(series);
    plot.title = series.label.quantity + ", " + describeResponse(options);
    plot.subtitle =
        display(options.input.path.filename()) + ", " + describeDesign(options) + ", " + rounded(series.rate) + " Hz";
    plot.panels = {{.yLabel = series.label.axis(), .curves = {{"input", series.samples}, {"filtered", out}}}};
    return plot;
}

void run(const Options& options)
{
    requireDifferentFiles(options.input, options.output);
    const FilterDesign& design = chooseDesign(options);
    const Series series = readSeries(options.input);
    const std::vector<double> out = filtered(series, options, design);
    const std::string& unit = series.label.unit;
    writeResult(options.output,
                {{"time_s", [&](std::size_t i) { return series.time(i); }},
                 {columnName("input", unit), [&](std::size_t i) { return series.samples[i]; }},
                 {columnName("filtered", unit), [&](std::size_t i) { return out[i]; }}},
                out.size(), [&] { return plotOf(series, out, options); });
    std::cout << counted(out.size(), "sample") << " of " << printable(series.label.axis()) << " at "
              << rounded(series.rate) << " Hz: " << describe(options) << '\n';
    printWritten(options.output);
}

} // namespace

void filter(Command& command)
{
    const auto options = std::make_shared<Options>();
    addInput(command, options->input);
    addOutput(command, options->output);
    command.option("--response", options->response, "What passes").required().oneOf(named(&FilterDesign::response));
    command
        .option("--order", options->order,
                "Order of the low-pass prototype, 1 or more; a band filter has twice the poles")
        .whole()
        .required();
    command
        .option("--cutoff", options->cutoff,
                "Frequency of half power (-3 dB); two ascending ones for a band.\n"
                "INPUT goes before it")
        .required()
        .values(1, 2)
        .number()
        .placeholder("HZ [HZ]");
    command.option("--family", options->family, "Design").oneOf(named(&FilterDesign::family)).showDefault();
    command.run([options] { run(*options); });
}

} // namespace quordsp::cli::command
