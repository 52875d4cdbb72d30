#include "spectrum_kinds.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <vector>

namespace quordsp::cli {
namespace {

int count(std::span<const double> in)
{
    return static_cast<int>(in.size());
}

AnalysisLibErrType power(std::span<const double> in, double interval, double* level)
{
    double spacing = 0;
    return QuorDSP_AutoPowerSpectrum(in.data(), count(in), interval, level, &spacing);
}

AnalysisLibErrType rms(std::span<const double> in, double interval, double* level)
{
    std::vector<double> phase(binCount(in.size()));
    double spacing = 0;
    return QuorDSP_AmpPhaseSpectrum(in.data(), count(in), 0, interval, level, phase.data(), &spacing);
}

// DC has no peak other than its value.
AnalysisLibErrType peak(std::span<const double> in, double interval, double* level)
{
    const AnalysisLibErrType status = rms(in, interval, level);
    if (status >= 0)
        for (std::size_t bin = 1; bin < binCount(in.size()); ++bin)
            level[bin] *= std::numbers::sqrt2;
    return status;
}

constexpr SpectrumKind kKinds[] = {
    {"rms", "amplitude_rms", false, [](double level) { return level * std::numbers::sqrt2; }, rms},
    {"peak", "amplitude_peak", false, [](double level) { return level; }, peak},
    {"power", "power", true, [](double level) { return std::sqrt(2 * level); }, power},
};

} // namespace

std::span<const SpectrumKind> spectrumKinds()
{
    return kKinds;
}

const SpectrumKind& spectrumKind(std::string_view name)
{
    return *std::ranges::find(kKinds, name, &SpectrumKind::name);
}

AnalysisLibErrType phaseSpectrum(std::span<const double> in, bool unwrap, double interval, double* phase)
{
    std::vector<double> level(binCount(in.size()));
    double spacing = 0;
    return QuorDSP_AmpPhaseSpectrum(in.data(), count(in), unwrap ? 1 : 0, interval, level.data(), phase, &spacing);
}

std::size_t binCount(std::size_t samples)
{
    return std::max<std::size_t>(samples / 2, 1);
}

} // namespace quordsp::cli
