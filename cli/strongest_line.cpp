#include "strongest_line.h"

#include <algorithm>
#include <limits>

namespace quordsp::cli {

double roundingLevel(double offsetLevel, std::size_t count, bool squared)
{
    const double relative = static_cast<double>(count) * std::numeric_limits<double>::epsilon();
    return offsetLevel * (squared ? relative * relative : relative);
}

std::optional<StrongestLine> findStrongestLine(std::span<const double> samples, double rate,
                                               std::span<const double> levels, double floor)
{
    if (levels.size() < 2)
        return std::nullopt;
    const auto highest = std::max_element(levels.begin() + 1, levels.end());
    if (!(*highest > floor))
        return std::nullopt;
    const auto bin = static_cast<std::size_t>(highest - levels.begin());
    const double frequency = static_cast<double>(bin) * rate / static_cast<double>(samples.size());
    return StrongestLine{bin, frequency, fitSine(samples, rate, frequency)};
}

} // namespace quordsp::cli
