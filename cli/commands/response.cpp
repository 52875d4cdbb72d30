// quordsp response: magnitude, phase and group delay of filter designs, and how they meet what was asked of them.
#include <cmath>
#include <iostream>
#include <memory>
#include <numbers>
#include <optional>
#include <string>
#include <vector>

#include "commands/commands.h"
#include "failure.h"
#include "file.h"
#include "filter_choice.h"
#include "frequency_response.h"
#include "label.h"
#include "number.h"
#include "options.h"
#include "progress.h"
#include "response_figures.h"
#include "response_report.h"
#include "transfer_function.h"

namespace quordsp::cli::command {
namespace {

constexpr int kDefaultPoints = 2001;
constexpr double kPlottedRange = 120; // dB below the top, unless the stop band goes deeper

struct Options {
    OutputChoice output;
    FilterChoice filter;
    double rate = 0;
    std::optional<double> from;
    std::optional<double> to;
    int points = kDefaultPoints;
    std::string delay = "samples";
    std::string form = "cascade";

    [[nodiscard]] double lowest() const { return from.value_or(0); }
    [[nodiscard]] double highest() const { return to.value_or(rate / 2); }
    [[nodiscard]] double step() const { return (highest() - lowest()) / (points - 1); }
    [[nodiscard]] double frequency(std::size_t i) const
    {
        return i + 1 < static_cast<std::size_t>(points) ? lowest() + static_cast<double>(i) * step() : highest();
    }
};

struct Curves {
    std::vector<double> magnitude; // dB
    std::vector<double> phase;     // degrees
    std::vector<double> delay;     // in the unit of the options
};

struct Response {
    const ChosenFilter& filter;
    TransferFunction function;
    ResponseFigures figures;
    Curves curves;
};

// The three curves, in the order of the panels.
struct Quantity {
    const char* name;
    const char* unit;
    std::vector<double> Curves::* samples;
};

std::vector<Quantity> quantities(const Options& options)
{
    return {{"magnitude", "dB", &Curves::magnitude},
            {"phase", "deg", &Curves::phase},
            {"group_delay", options.delay.c_str(), &Curves::delay}};
}

void requireRange(const Options& options)
{
    const bool isRange = options.lowest() < options.highest();
    if (!isRange || options.lowest() < 0 || options.highest() > options.rate / 2)
        throw Failure(ExitCode::Usage, "--from and --to must ascend, from 0 to half the --rate",
                      "half the rate is " + rounded(options.rate / 2) + " Hz");
}

void requireIirForDirect(const std::vector<ChosenFilter>& filters)
{
    for (const ChosenFilter& filter : filters)
        if (filter.family.direct)
            return;
    throw Failure(ExitCode::Usage, "--form direct is not for " + std::string(filters.front().family.name),
                  "a FIR filter has one form, its coefficients");
}

Curves curvesOf(const FrequencyResponse& response, const Options& options)
{
    const Progress progress("evaluating the response");
    const double delayUnit = options.delay == "ms" ? 1000 / options.rate : 1;
    Curves curves;
    for (std::size_t i = 0; i < static_cast<std::size_t>(options.points); ++i) {
        const ResponsePoint point = response.at(options.frequency(i) / options.rate);
        curves.magnitude.push_back(point.decibels);
        curves.phase.push_back(point.phase * 180 / std::numbers::pi);
        curves.delay.push_back(point.delay * delayUnit);
    }
    return curves;
}

Response responseOf(const ChosenFilter& filter, const Options& options)
{
    TransferFunction function = designFilter(filter, options.rate, options.form == "direct");
    const FrequencyResponse response(function);
    ResponseFigures figures = measureResponse(filter, options.rate, function, response);
    Curves curves = curvesOf(response, options);
    return {filter, std::move(function), std::move(figures), std::move(curves)};
}

// A zero of the response has no depth: what is far below the stop band is drawn at the lower end.
std::vector<double> forPlot(const std::vector<double>& magnitude, double range)
{
    double top = -HUGE_VAL;
    for (const double level : magnitude)
        top = std::max(top, level);
    std::vector<double> drawn = magnitude;
    for (double& level : drawn)
        level = std::max(level, top - range);
    return drawn;
}

Plot plotOf(std::vector<Response>& responses, const std::vector<ChosenFilter>& filters, const Options& options)
{
    Plot plot{.title = "response, " + describeBand(filters),
              .subtitle = (filters.size() > 1 ? "" : filters.front().design + ", ") + rounded(options.rate) + " Hz",
              .xLabel = "frequency (Hz)",
              .xStart = options.lowest(),
              .xStep = options.step(),
              .panels = {{.yLabel = "magnitude (dB)"},
                         {.yLabel = "phase (deg)"},
                         {.yLabel = "group delay (" + options.delay + ")"}}};
    for (Panel& panel : plot.panels)
        panel.compared = true;
    const std::vector<Quantity> rows = quantities(options);
    for (Response& response : responses) {
        response.curves.magnitude =
            forPlot(response.curves.magnitude, std::max(kPlottedRange, 1.25 * response.filter.request.attenuation));
        for (std::size_t i = 0; i < rows.size(); ++i)
            plot.panels[i].curves.push_back(
                {i == 0 ? std::string(response.filter.family.name) : "", response.curves.*rows[i].samples});
    }
    return plot;
}

std::vector<OutputColumn> columnsOf(const std::vector<Response>& responses, const Options& options)
{
    std::vector<OutputColumn> columns{{"frequency_Hz", [&](std::size_t i) { return options.frequency(i); }}};
    for (const Response& response : responses) {
        const std::string prefix = responses.size() > 1 ? std::string(response.filter.family.name) + "_" : "";
        for (const auto& [name, unit, samples] : quantities(options))
            columns.push_back({columnName(prefix + name, unit),
                               [&values = response.curves.*samples](std::size_t i) { return values[i]; }});
    }
    return columns;
}

void run(const Options& options)
{
    if (sameFile(options.output.table, options.output.plot))
        throw Failure(ExitCode::Usage, "the CSV and the plot must be different files", "give each a name of its own");
    requireRange(options);
    const std::vector<ChosenFilter> filters = chosenFilters(options.filter);
    if (options.form == "direct")
        requireIirForDirect(filters);
    std::vector<Response> responses;
    responses.reserve(filters.size());
    for (const ChosenFilter& filter : filters)
        responses.push_back(responseOf(filter, options));
    writeResult(options.output, columnsOf(responses, options), static_cast<std::size_t>(options.points),
                [&] { return plotOf(responses, filters, options); });
    for (const Response& response : responses)
        printReport(response.filter, options.rate, response.function, response.figures);
    printWritten(options.output);
}

} // namespace

void response(Command& command)
{
    const auto options = std::make_shared<Options>();
    addOutput(command, options->output);
    command.option("--rate", options->rate, "Sampling rate of the signals to filter")
        .required()
        .positive()
        .placeholder("HZ");
    addFilter(command, options->filter);
    command.option("--from", options->from, "Lowest frequency of the table. Default: 0").number().placeholder("HZ");
    command.option("--to", options->to, "Highest one. Default: half the rate").number().placeholder("HZ");
    command.option("--points", options->points, "Rows of the table").whole().within(2, 10000000).showDefault();
    command.option("--delay", options->delay, "Unit of the group delay").oneOf({"samples", "ms"}).showDefault();
    command
        .option("--form", options->form,
                "Of an IIR filter: the sections of its cascade coefficients, which round more than those\n"
                "that filter works with; or the direct form. A design too sharp for such sections is\n"
                "shown as the design, by its low-pass")
        .oneOf({"cascade", "direct"})
        .showDefault();
    command.run([options] { run(*options); });
}

} // namespace quordsp::cli::command
