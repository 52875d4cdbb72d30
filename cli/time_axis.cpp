#include "time_axis.h"

#include <algorithm>
#include <cmath>
#include <string_view>

#include "label.h"

namespace quordsp::cli {
namespace {

constexpr double kGridTolerance = 0.05;
constexpr std::string_view kTimeNames[] = {"t", "time", "timestamp", "seconds", "elapsed"};

struct TimeUnit {
    std::string_view name;
    double seconds;
};

constexpr TimeUnit kTimeUnits[] = {{"", 1}, {"s", 1}, {"ms", 1e-3}, {"us", 1e-6}, {"min", 60}, {"h", 3600}};

std::string lowerCase(std::string text)
{
    std::ranges::transform(text, text.begin(),
                           [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c + 32) : c; });
    return text;
}

std::optional<double> secondsOfName(const std::string& name)
{
    const Label label = parseLabel(name);
    const auto* unit = std::ranges::find(kTimeUnits, std::string_view(label.unit), &TimeUnit::name);
    // A capital T is a temperature or a flux density.
    const bool isTime =
        label.quantity != "T" && std::ranges::find(kTimeNames, lowerCase(label.quantity)) != std::end(kTimeNames);
    if (!isTime || unit == std::end(kTimeUnits))
        return std::nullopt;
    return unit->seconds;
}

// Times written in decimals give a rate that is off in the last digits; a rate next to a whole number is that number.
double tidied(double rate)
{
    const double whole = std::round(rate);
    return std::abs(rate - whole) <= 1e-12 * rate ? whole : rate;
}

} // namespace

std::optional<TimeColumn> findTimeColumn(const std::vector<std::string>& names)
{
    for (std::size_t i = 0; i < names.size(); ++i)
        if (const auto seconds = secondsOfName(names[i]))
            return TimeColumn{i, *seconds};
    return std::nullopt;
}

std::optional<double> samplingRate(std::span<const double> times)
{
    if (times.size() < 2)
        return std::nullopt;
    const double interval = (times.back() - times.front()) / static_cast<double>(times.size() - 1);
    if (!(interval > 0) || !std::isfinite(interval))
        return std::nullopt;
    for (std::size_t i = 0; i < times.size(); ++i)
        if (std::abs(times[i] - times.front() - interval * static_cast<double>(i)) > kGridTolerance * interval)
            return std::nullopt;
    return tidied(1 / interval);
}

} // namespace quordsp::cli
