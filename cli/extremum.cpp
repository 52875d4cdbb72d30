#include "extremum.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace quordsp::cli {
namespace {

constexpr int kRounds = 50;
constexpr double kGoldenShare = 1 / std::numbers::phi;

} // namespace

double peakBetween(double from, double to, const Function& function)
{
    double best = std::max(function(from), function(to));
    for (int i = 0; i < kRounds; ++i) {
        const double left = to - (to - from) * kGoldenShare;
        const double right = from + (to - from) * kGoldenShare;
        const double atLeft = function(left);
        const double atRight = function(right);
        best = std::max({best, atLeft, atRight});
        (atLeft < atRight ? from : to) = atLeft < atRight ? left : right;
    }
    return best;
}

double greatestBetween(double from, double to, std::size_t points, const Function& function)
{
    std::size_t best = 0;
    double greatest = function(from);
    for (std::size_t i = 1; i <= points; ++i)
        if (const double value = function(crowded(from, to, i, points)); value > greatest) {
            best = i;
            greatest = value;
        }
    const double left = crowded(from, to, std::max<std::size_t>(best, 1) - 1, points);
    const double right = crowded(from, to, std::min(best + 1, points), points);
    return std::max(greatest, peakBetween(left, right, function));
}

double crowded(double from, double to, std::size_t step, std::size_t steps)
{
    if (step == steps)
        return to;
    const double share = (1 - std::cos(std::numbers::pi * static_cast<double>(step) / static_cast<double>(steps))) / 2;
    return from + (to - from) * share;
}

} // namespace quordsp::cli
