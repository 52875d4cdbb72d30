#include "gain_grid.h"

#include <algorithm>
#include <bit>
#include <cmath>

#include "QuorDSP_DAQ.h"
#include "status.h"

namespace quordsp::cli {
namespace {

constexpr std::size_t kPointsPerLobe = 16; // at the least; lobes are as broad as the sampling rate over the taps

} // namespace

GainGrid::GainGrid(std::span<const double> taps)
{
    if (taps.empty())
        return;
    std::vector<double> re(taps.begin(), taps.end());
    re.resize(std::bit_ceil(kPointsPerLobe * taps.size()));
    std::vector<double> im(re.size());
    check(QuorDSP_ReFFT(re.data(), im.data(), static_cast<int>(re.size())), "response at many frequencies");
    decibels_.resize(re.size() / 2 + 1);
    for (std::size_t i = 0; i < decibels_.size(); ++i)
        decibels_[i] = 20 * std::log10(std::hypot(re[i], im[i]));
}

GainGrid::Points GainGrid::between(double from, double to) const
{
    if (decibels_.empty())
        return {0, 0};
    const double perUnit = 2 * static_cast<double>(decibels_.size() - 1);
    const auto first = static_cast<std::size_t>(std::floor(from * perUnit)) + 1;
    return {first, std::max(first, static_cast<std::size_t>(std::ceil(to * perUnit)))};
}

double GainGrid::frequency(std::size_t point) const
{
    return static_cast<double>(point) / (2 * static_cast<double>(decibels_.size() - 1));
}

} // namespace quordsp::cli
