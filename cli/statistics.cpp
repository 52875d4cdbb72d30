#include "statistics.h"

#include <algorithm>
#include <cmath>
#include <cstdint>

#include "QuorDSP_DAQ.h"
#include "progress.h"
#include "status.h"

namespace quordsp::cli {

// In long double, since squares leave the range of double. The second pass keeps a small deviation from a large mean.
Moments statisticalMoments(std::span<const double> samples)
{
    const auto count = static_cast<long double>(samples.size());
    long double sum = 0;
    long double squares = 0;
    for (const long double sample : samples) {
        sum += sample;
        squares += sample * sample;
    }
    const long double mean = sum / count;
    long double deviations = 0;
    for (const long double sample : samples)
        deviations += (sample - mean) * (sample - mean);
    return {static_cast<double>(mean), static_cast<double>(std::sqrt(squares / count)),
            static_cast<double>(std::sqrt(deviations / count))};
}

Extremes extremesOf(std::span<const double> samples)
{
    Extremes extremes{};
    std::int64_t first = 0;
    std::int64_t last = 0;
    check(QuorDSP_MaxMin1D(samples.data(), static_cast<std::int64_t>(samples.size()), &extremes.maximum.value, &last,
                           &extremes.minimum.value, &first),
          "search for the extremes");
    extremes.minimum.index = static_cast<std::size_t>(first);
    extremes.maximum.index = static_cast<std::size_t>(last);
    return extremes;
}

std::vector<double> sorted(std::span<const double> samples)
{
    std::vector<double> result(samples.size());
    const Progress progress("sorting");
    check(QuorDSP_Sort(samples.data(), static_cast<int>(samples.size()), 0, result.data()), "sorting");
    return result;
}

double percentile(std::span<const double> sortedSamples, double percent)
{
    const std::size_t last = sortedSamples.size() - 1;
    const double place = percent / 100 * static_cast<double>(last);
    const std::size_t below = std::min(static_cast<std::size_t>(place), last);
    return std::lerp(sortedSamples[below], sortedSamples[std::min(below + 1, last)],
                     place - static_cast<double>(below));
}

} // namespace quordsp::cli
