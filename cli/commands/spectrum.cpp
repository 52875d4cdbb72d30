// quordsp spectrum: the single-sided spectrum of one column, and the sine behind its strongest line.
#include <algorithm>
#include <cmath>
#include <iostream>
#include <memory>
#include <numbers>
#include <optional>
#include <string>
#include <vector>

#include "commands/commands.h"
#include "failure.h"
#include "input.h"
#include "number.h"
#include "options.h"
#include "progress.h"
#include "spectrum_kinds.h"
#include "status.h"
#include "strongest_line.h"

namespace quordsp::cli::command {
namespace {

struct Options {
    InputChoice input;
    OutputChoice output;
    Span span;
    std::string amplitude = "rms";
    bool power = false;

    [[nodiscard]] const SpectrumKind& kind() const { return spectrumKind(power ? "power" : amplitude); }
};

struct Spectrum {
    const SpectrumKind& kind;
    std::vector<double> levels;
    double spacing; // Hz between two bins
    std::optional<StrongestLine> line;
};

Spectrum spectrumOf(const Series& series, const SpectrumKind& kind)
{
    const std::size_t count = series.samples.size();
    std::vector<double> levels(binCount(count));
    const auto status = [&] {
        const Progress progress("transforming");
        return kind.run(series.samples, 1 / series.rate, levels.data());
    }();
    check(status, std::string(kind.name) + " spectrum");
    const Progress progress("fitting a sine");
    auto line = findStrongestLine(series.samples, series.rate, levels, roundingLevel(levels[0], count, kind.squared));
    return {kind, std::move(levels), series.rate / static_cast<double>(count), line};
}

std::string levelUnit(const Series& series, const SpectrumKind& kind)
{
    return kind.squared ? squared(series.label.unit) : series.label.unit;
}

// "amplitude, rms (g)"
Label levelLabel(const Series& series, const SpectrumKind& kind)
{
    const std::string quantity = kind.squared ? "power" : "amplitude, " + std::string(kind.name);
    return {quantity, levelUnit(series, kind)};
}

std::string amplitudeText(double peak, const std::string& unit)
{
    return withUnit(rounded(peak, 5), unit) + " peak, " + withUnit(rounded(peak / std::numbers::sqrt2, 5), unit) +
           " rms";
}

const char* whyNoLine(const std::vector<double>& levels)
{
    if (levels.size() < 2)
        return "the signal is too short";
    const bool finite = std::ranges::all_of(levels, [](double level) { return std::isfinite(level); });
    return finite ? "the signal is constant" : "the levels are not finite";
}

void printLine(const Spectrum& spectrum, const std::string& unit)
{
    if (!spectrum.line) {
        std::cout << "strongest line: none, " << whyNoLine(spectrum.levels) << '\n';
        return;
    }
    const StrongestLine& line = *spectrum.line;
    if (line.sine)
        std::cout << "strongest line: " << rounded(line.sine->frequency, 8) << " Hz, "
                  << amplitudeText(line.sine->amplitude, unit) << '\n'
                  << "  by a least-squares fit of a sine (Hann weights), which leaves "
                  << rounded(100 * (1 - line.sine->share), 3) << " % of the variance\n";
    else
        std::cout << "strongest line: no single sine fits around the highest bin; its reading is all there is\n";
    std::cout << "highest bin:    " << rounded(line.frequency, 8) << " Hz, "
              << amplitudeText(spectrum.kind.peakOf(spectrum.levels[line.bin]), unit) << '\n';
}

std::optional<Callout> calloutOf(const Spectrum& spectrum, const std::string& unit)
{
    if (!spectrum.line || !spectrum.line->sine)
        return std::nullopt;
    const auto& [bin, frequency, sine] = *spectrum.line;
    return Callout{frequency, spectrum.levels[bin],
                   rounded(sine->frequency, 5) + " Hz, " + withUnit(rounded(sine->amplitude, 4), unit) + " peak"};
}

Plot plotOf(const Series& series, const Spectrum& spectrum, const Options& options)
{
    return {.title = series.label.quantity + ", " + (spectrum.kind.squared ? "power" : "amplitude") + " spectrum",
            .subtitle = display(options.input.path.filename()) + ", " + rounded(series.start) + " s to " +
                        rounded(series.time(series.samples.size())) + " s, " +
                        counted(series.samples.size(), "sample") + ", bins " + rounded(spectrum.spacing, 4) +
                        " Hz apart",
            .xLabel = "frequency (Hz)",
            .xStep = spectrum.spacing,
            .panels = {{.yLabel = levelLabel(series, spectrum.kind).axis(),
                        .logarithmic = true,
                        .curves = {{series.label.quantity, spectrum.levels}},
                        .callout = calloutOf(spectrum, series.label.unit)}}};
}

void run(const Options& options)
{
    requireDifferentFiles(options.input, options.output);
    const Series series = cut(readSeries(options.input), options.span);
    const Spectrum spectrum = spectrumOf(series, options.kind());
    const auto count = static_cast<double>(series.samples.size());
    const std::string name = columnName(spectrum.kind.quantity, levelUnit(series, spectrum.kind));
    writeResult(options.output,
                {{"frequency_Hz", [&](std::size_t i) { return static_cast<double>(i) * series.rate / count; }},
                 {name, [&](std::size_t i) { return spectrum.levels[i]; }}},
                spectrum.levels.size(), [&] { return plotOf(series, spectrum, options); });
    std::cout << counted(series.samples.size(), "sample") << " of " << printable(series.label.axis()) << " at "
              << rounded(series.rate) << " Hz\n";
    printLine(spectrum, printable(series.label.unit));
    std::cout << "bin spacing:    " << rounded(spectrum.spacing) << " Hz\n";
    printWritten(options.output);
}

} // namespace

void spectrum(Command& command)
{
    const auto options = std::make_shared<Options>();
    addInput(command, options->input);
    addOutput(command, options->output);
    command.option("--amplitude", options->amplitude, "What a line shows of its sine; DC is its value")
        .oneOf({"rms", "peak"})
        .showDefault();
    command.option("--power", options->power, "Power, the square of the rms amplitude").excludes("--amplitude");
    addSpan(command, options->span);
    command.run([options] { run(*options); });
}

} // namespace quordsp::cli::command
