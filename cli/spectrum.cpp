#include "spectrum.h"

#include <cmath>
#include <numbers>
#include <utility>

#include "complex_spectrum.h"
#include "progress.h"
#include "spectrum_kinds.h"
#include "status.h"

namespace quordsp::cli {
namespace {

std::string unitOf(const Series& series, bool isSquared)
{
    return isSquared ? squared(series.label.unit) : series.label.unit;
}

std::vector<double> inDegrees(std::vector<double> phases)
{
    for (double& phase : phases)
        phase *= 180 / std::numbers::pi;
    return phases;
}

std::vector<double> levelsOf(const Series& series, const SpectrumKind& kind)
{
    std::vector<double> levels(binCount(series.samples.size()));
    const Progress progress("transforming");
    check(kind.run(series.samples, 1 / series.rate, levels.data()), std::string(kind.name) + " spectrum");
    return levels;
}

std::vector<double> phasesOf(const Series& series, bool unwrap)
{
    std::vector<double> phases(binCount(series.samples.size()));
    const Progress progress("transforming");
    check(phaseSpectrum(series.samples, unwrap, 1 / series.rate, phases.data()), "phase spectrum");
    return phases;
}

std::optional<StrongestLine> highestLine(const Spectrum& spectrum, double rate)
{
    const std::size_t count = spectrum.levels.size();
    const double floor = roundingLevel(spectrum.levels[spectrum.zero], count, spectrum.squared);
    const auto bin = highestBin(spectrum.levels, spectrum.zero, floor);
    if (!bin)
        return std::nullopt;
    const double bins = static_cast<double>(*bin) - static_cast<double>(spectrum.zero);
    return StrongestLine{*bin, bins * rate / static_cast<double>(count), std::nullopt};
}

} // namespace

Spectrum oneSidedSpectrum(const Series& series, const SpectrumChoice& choice)
{
    const SpectrumKind& kind = spectrumKind(choice.power ? "power" : choice.amplitude);
    const std::string name = kind.squared ? "power" : "amplitude, " + std::string(kind.name);
    Spectrum spectrum{.quantity = std::string(kind.quantity),
                      .level = {name, unitOf(series, kind.squared)},
                      .squared = kind.squared,
                      .levels = levelsOf(series, kind),
                      .peakOf = kind.peakOf,
                      .zero = 0};
    if (choice.phase)
        spectrum.phases = inDegrees(phasesOf(series, choice.unwrap));
    const Progress progress("fitting a sine");
    spectrum.line = findStrongestLine(series.samples, series.rate, spectrum.levels,
                                      roundingLevel(spectrum.levels[0], series.samples.size(), kind.squared));
    return spectrum;
}

Spectrum twoSidedSpectrum(const Series& series, const std::vector<double>& imaginary, const SpectrumChoice& choice)
{
    const ComplexSignal signal{series.samples, imaginary};
    Exponentials found;
    if (!choice.power || choice.phase)
        found = twoSidedAmplitude(signal);
    const std::string name = choice.power ? "power" : "amplitude";
    Spectrum spectrum{.quantity = name,
                      .level = {name, unitOf(series, choice.power)},
                      .squared = choice.power,
                      .levels = choice.power ? twoSidedPower(signal) : std::move(found.amplitudes),
                      .peakOf = [](double level) { return level; },
                      .zero = zeroBin(series.samples.size())};
    if (choice.power)
        spectrum.peakOf = [](double level) { return std::sqrt(level); };
    if (choice.phase && choice.unwrap)
        unwrapFromZero(found.phases);
    if (choice.phase)
        spectrum.phases = inDegrees(std::move(found.phases));
    spectrum.line = highestLine(spectrum, series.rate);
    return spectrum;
}

} // namespace quordsp::cli
