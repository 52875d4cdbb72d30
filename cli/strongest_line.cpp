#include "strongest_line.h"

#include <limits>

namespace quordsp::cli {

double roundingLevel(double offsetLevel, std::size_t count, bool squared)
{
    const double relative = static_cast<double>(count) * std::numeric_limits<double>::epsilon();
    return offsetLevel * (squared ? relative * relative : relative);
}

std::optional<std::size_t> highestBin(std::span<const double> levels, std::size_t zero, double floor)
{
    std::optional<std::size_t> highest;
    for (std::size_t bin = 0; bin < levels.size(); ++bin)
        if (bin != zero && levels[bin] > (highest ? levels[*highest] : floor))
            highest = bin;
    return highest;
}

std::optional<StrongestLine> findStrongestLine(std::span<const double> samples, double rate,
                                               std::span<const double> levels, double floor)
{
    const auto bin = highestBin(levels, 0, floor);
    if (!bin)
        return std::nullopt;
    const double frequency = static_cast<double>(*bin) * rate / static_cast<double>(samples.size());
    return StrongestLine{*bin, frequency, fitSine(samples, rate, frequency)};
}

} // namespace quordsp::cli
