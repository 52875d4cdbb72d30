// quordsp spectrum: the spectrum of one column, single-sided, or of two as a complex signal, two-sided; and what stands
// behind its strongest line.
#include <algorithm>
#include <cmath>
#include <iostream>
#include <memory>
#include <numbers>
#include <optional>
#include <string>
#include <vector>

#include "commands/commands.h"
#include "input.h"
#include "number.h"
#include "options.h"
#include "spectrum.h"

namespace quordsp::cli::command {
namespace {

struct Options {
    InputChoice input;
    OutputChoice output;
    Span span;
    SpectrumChoice choice;
};

Spectrum spectrumOf(const Series& series, const SpectrumChoice& choice)
{
    return series.isComplex() ? twoSidedSpectrum(series, series.imaginary, choice) : oneSidedSpectrum(series, choice);
}

double spacingOf(const Series& series)
{
    return series.rate / static_cast<double>(series.samples.size());
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

void printSine(const StrongestLine& line, const std::string& unit)
{
    if (line.sine)
        std::cout << "strongest line: " << rounded(line.sine->frequency, 8) << " Hz, "
                  << amplitudeText(line.sine->amplitude, unit) << '\n'
                  << "  by a least-squares fit of a sine (Hann weights), which leaves "
                  << rounded(100 * (1 - line.sine->share), 3) << " % of the variance\n";
    else
        std::cout << "strongest line: no single sine fits around the highest bin; its reading is all there is\n";
}

void printLine(const Spectrum& spectrum, const std::string& unit, bool isComplex)
{
    if (!spectrum.line) {
        std::cout << "strongest line: none, " << whyNoLine(spectrum.levels) << '\n';
        return;
    }
    if (!isComplex)
        printSine(*spectrum.line, unit);
    const double amplitude = spectrum.peakOf(spectrum.levels[spectrum.line->bin]);
    std::cout << "highest bin:    " << rounded(spectrum.line->frequency, 8) << " Hz, "
              << (isComplex ? withUnit(rounded(amplitude, 5), unit) : amplitudeText(amplitude, unit)) << '\n';
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
    const double spacing = spacingOf(series);
    Plot plot{.title = series.label.quantity + ", " + (spectrum.squared ? "power" : "amplitude") + " spectrum",
              .subtitle = display(options.input.path.filename()) + ", " + rounded(series.start) + " s to " +
                          rounded(series.time(series.samples.size())) + " s, " +
                          counted(series.samples.size(), "sample") + ", bins " + rounded(spacing, 4) + " Hz apart",
              .xLabel = "frequency (Hz)",
              .xStart = -static_cast<double>(spectrum.zero) * spacing,
              .xStep = spacing,
              .panels = {{.yLabel = spectrum.level.axis(),
                          .logarithmic = true,
                          .curves = {{series.label.quantity, spectrum.levels}},
                          .callout = calloutOf(spectrum, series.label.unit)}}};
    if (!spectrum.phases.empty())
        plot.panels.push_back({.yLabel = "phase (deg)", .curves = {{"", spectrum.phases}}});
    return plot;
}

// The columns look into the spectrum, which must outlive them.
std::vector<OutputColumn> columnsOf(const Series& series, const Spectrum& spectrum)
{
    const auto frequency = [zero = static_cast<double>(spectrum.zero), rate = series.rate,
                            count = static_cast<double>(series.samples.size())](std::size_t bin) {
        return (static_cast<double>(bin) - zero) * rate / count;
    };
    std::vector<OutputColumn> columns{
        {"frequency_Hz", frequency},
        {columnName(spectrum.quantity, spectrum.level.unit), [&](std::size_t bin) { return spectrum.levels[bin]; }}};
    if (!spectrum.phases.empty())
        columns.push_back({"phase_deg", [&](std::size_t bin) { return spectrum.phases[bin]; }});
    return columns;
}

void run(const Options& options)
{
    requireDifferentFiles(options.input, options.output);
    const Series series = cut(readSeries(options.input), options.span);
    const Spectrum spectrum = spectrumOf(series, options.choice);
    writeResult(options.output, columnsOf(series, spectrum), spectrum.levels.size(),
                [&] { return plotOf(series, spectrum, options); });
    std::cout << counted(series.samples.size(), "sample") << " of " << printable(series.label.axis()) << " at "
              << rounded(series.rate) << " Hz\n";
    printLine(spectrum, printable(series.label.unit), series.isComplex());
    std::cout << "bin spacing:    " << rounded(spacingOf(series)) << " Hz\n";
    printWritten(options.output);
}

} // namespace

void spectrum(Command& command)
{
    const auto options = std::make_shared<Options>();
    addInput(command, options->input);
    addOutput(command, options->output);
    addImaginary(command, options->input,
                 "spectrum two-sided: as many bins as samples, from negative frequencies to\n"
                 "positive ones, with the amplitude of the exponential in each");
    command.option("--amplitude", options->choice.amplitude, "What a line shows of its sine; DC is its value")
        .oneOf({"rms", "peak"})
        .showDefault()
        .excludes("--imaginary");
    command.option("--power", options->choice.power, "Power, the square of the rms amplitude").excludes("--amplitude");
    command.option("--phase", options->choice.phase,
                   "Also the phase, of a cosine at the time of the first sample, in degrees");
    command.option("--unwrap", options->choice.unwrap, "Without jumps of whole turns from bin to bin").needs("--phase");
    addSpan(command, options->span);
    command.run([options] { run(*options); });
}

} // namespace quordsp::cli::command
