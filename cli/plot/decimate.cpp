#include "plot/decimate.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numeric>

namespace quordsp::cli {
namespace {

constexpr std::size_t kPointsPerColumn = 4;

struct Extremes {
    std::size_t lowest;
    std::size_t highest;
};

Extremes extremesOf(std::span<const double> samples, std::size_t first, std::size_t last)
{
    Extremes found{first, first};
    for (std::size_t i = first; i <= last; ++i) {
        if (samples[i] < samples[found.lowest] || std::isnan(samples[found.lowest]))
            found.lowest = i;
        if (samples[i] > samples[found.highest] || std::isnan(samples[found.highest]))
            found.highest = i;
    }
    return found;
}

void appendColumn(std::span<const double> samples, std::size_t first, std::size_t last, std::vector<std::size_t>& kept)
{
    const auto [lowest, highest] = extremesOf(samples, first, last);
    std::array points{first, lowest, highest, last};
    std::ranges::sort(points);
    for (const std::size_t point : points)
        if (kept.empty() || kept.back() != point)
            kept.push_back(point);
}

} // namespace

std::vector<std::size_t> decimate(std::span<const double> samples, std::size_t columns)
{
    std::vector<std::size_t> kept;
    if (samples.size() <= kPointsPerColumn * columns) {
        kept.resize(samples.size());
        std::iota(kept.begin(), kept.end(), std::size_t{0});
        return kept;
    }
    for (std::size_t column = 0; column < columns; ++column)
        appendColumn(samples, samples.size() * column / columns, samples.size() * (column + 1) / columns - 1, kept);
    return kept;
}

} // namespace quordsp::cli
