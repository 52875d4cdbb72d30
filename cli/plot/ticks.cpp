#include "plot/ticks.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>

#include "number.h"

namespace quordsp::cli {
namespace {

constexpr double kSlack = 1e-9; // of a step: a tick at the very end of the range counts
constexpr double kLargestPlain = 1e6;
constexpr double kSmallestPlainStep = 1e-5;
constexpr int kPlainDecades = 4; // 0.0001 to 10000 are written out
constexpr int kLowestDecade = -307;
constexpr double kLeast = std::numeric_limits<double>::min();
constexpr double kMost = std::numeric_limits<double>::max();

std::string fixed(double value, int decimals)
{
    char buffer[64];
    const auto result = std::to_chars(buffer, buffer + sizeof buffer, value, std::chars_format::fixed, decimals);
    return {buffer, result.ptr};
}

int exponentOf(double value)
{
    return static_cast<int>(std::floor(std::log10(value) + kSlack));
}

// Read as text: not every system's pow() is exact here.
double powerOfTen(int exponent)
{
    return parseNumber("1e" + std::to_string(exponent)).value_or(exponent < 0 ? kLeast : kMost);
}

Tick plainTick(double value, double step)
{
    return {value, fixed(value, std::max(0, -exponentOf(step))), {}};
}

// With the digits that tell two ticks apart.
Tick scaledTick(double value, int exponent, double step)
{
    if (value == 0)
        return {0, "0", {}};
    return {value, rounded(value / powerOfTen(exponent), std::clamp(exponent - exponentOf(step) + 1, 1, 15)), exponent};
}

Range withFiniteEnds(Range range)
{
    return {std::max(range.low, -kMost), std::min(range.high, kMost)};
}

} // namespace

Range withExtent(Range range)
{
    const bool proper = range.low <= range.high && range.low <= kMost && range.high >= -kMost;
    if (!proper)
        return {0, 1};
    const auto [low, high] = withFiniteEnds(range);
    const double least = std::max(std::max(std::abs(low), std::abs(high)) * 1e-9, kLeast);
    if (high - low > least)
        return {low, high};
    const double margin = high == 0 ? 1 : std::max(std::abs(high) / 10, kLeast);
    return withFiniteEnds({low - margin, high + margin});
}

double roundStep(Range range, int mostIntervals)
{
    // Not the difference first: it may exceed every number.
    const double least = range.high / mostIntervals - range.low / mostIntervals;
    const bool divisible = std::isfinite(least) && least > 0;
    if (!divisible)
        return 1;
    const double decade = powerOfTen(exponentOf(least));
    for (const double factor : {1.0, 2.0, 5.0})
        if (factor * decade >= least * (1 - kSlack))
            return factor * decade;
    return 10 * decade;
}

Range widenToSteps(Range range, int mostIntervals)
{
    const Range extended = withExtent(range);
    const double step = roundStep(extended, mostIntervals);
    return withFiniteEnds(
        {std::floor(extended.low / step + kSlack) * step, std::ceil(extended.high / step - kSlack) * step});
}

std::vector<Tick> linearTicks(Range range, int mostIntervals)
{
    const double step = roundStep(range, mostIntervals);
    const double largest = std::max(std::abs(range.low), std::abs(range.high));
    const bool plain = largest < kLargestPlain && step >= kSmallestPlainStep;
    const double first = std::ceil(range.low / step - kSlack);
    std::vector<Tick> ticks;
    for (int i = 0; i <= mostIntervals; ++i) {
        const double value = first + i == 0 ? 0 : (first + i) * step; // no negative zero
        if (first + i <= range.high / step + kSlack)
            ticks.push_back(plain ? plainTick(value, step) : scaledTick(value, exponentOf(largest), step));
    }
    return ticks;
}

Range widenToDecades(Range range, int mostDecades)
{
    const bool proper = range.high > 0 && std::isfinite(range.high);
    if (!proper)
        return {0.1, 1};
    const int top = std::max(static_cast<int>(std::ceil(std::log10(range.high) - kSlack)), kLowestDecade + 1);
    const int bottom = range.low > 0 ? exponentOf(range.low) : top - mostDecades;
    const int lowest = std::max(top - mostDecades, kLowestDecade);
    return {powerOfTen(std::clamp(bottom, lowest, top - 1)), powerOfTen(top)};
}

std::vector<Tick> decadeTicks(Range range)
{
    const int first = static_cast<int>(std::ceil(std::log10(range.low) - kSlack));
    const int last = exponentOf(range.high);
    const bool plain = first >= -kPlainDecades && last <= kPlainDecades;
    std::vector<Tick> ticks;
    for (int exponent = first; exponent <= last; ++exponent) {
        const double value = powerOfTen(exponent);
        ticks.push_back(plain ? Tick{value, fixed(value, std::max(0, -exponent)), {}} : Tick{value, "", exponent});
    }
    return ticks;
}

} // namespace quordsp::cli
