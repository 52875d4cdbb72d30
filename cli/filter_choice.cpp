#include "filter_choice.h"

#include <algorithm>
#include <cstdint>
#include <limits>
#include <ranges>
#include <set>
#include <string_view>
#include <utility>

#include "failure.h"
#include "filter_window.h"
#include "gain_bands.h"
#include "number.h"

namespace quordsp::cli {
namespace {

// Coefficients of 8 MB: the transition of such a filter is a few millionths of the sampling rate.
constexpr int kMostTaps = 1 << 20;
// The library gives derivatives with a square of frame by frame numbers, 800 MB here.
constexpr int kMostSideOfDerivative = 5000;

struct ParameterOption {
    Parameters bit;
    std::string_view name;
    bool (*isGiven)(const FilterChoice& choice);
    bool isOptional = false;
};

constexpr ParameterOption kOptions[] = {
    {kResponse, "--response", [](const FilterChoice& choice) { return !choice.response.empty(); }},
    {kOrder, "--order", [](const FilterChoice& choice) { return choice.order.has_value(); }},
    {kTaps, "--taps", [](const FilterChoice& choice) { return choice.taps.has_value(); }},
    {kCutoff, "--cutoff", [](const FilterChoice& choice) { return !choice.cutoff.empty(); }},
    {kEdges, "--edges", [](const FilterChoice& choice) { return !choice.edges.empty(); }},
    {kRipple, "--ripple", [](const FilterChoice& choice) { return choice.ripple.has_value(); }},
    {kAttenuation, "--attenuation", [](const FilterChoice& choice) { return choice.attenuation.has_value(); }},
    {kWindow, "--window", [](const FilterChoice& choice) { return !choice.window.empty(); }},
    {kBeta, "--beta", [](const FilterChoice& choice) { return choice.beta.has_value(); }},
    {kBands, "--bands", [](const FilterChoice& choice) { return !choice.bands.empty(); }},
    {kSide, "--side", [](const FilterChoice& choice) { return choice.side.has_value(); }},
    {kWeights, "--weights", [](const FilterChoice& choice) { return !choice.weights.empty(); }, true},
    {kDerivative, "--derivative", [](const FilterChoice& choice) { return choice.derivative.has_value(); }, true},
};

std::string joined(std::string list, std::string_view name)
{
    return std::move(list.append(list.empty() ? "" : ", ").append(name));
}

std::string familiesThatTake(Parameters bit)
{
    std::string list;
    for (const FilterFamily& family : filterFamilies())
        if ((family.takes & bit) != 0)
            list = joined(list, family.name);
    return list;
}

std::string optionsOf(const FilterFamily& family)
{
    std::string list;
    for (const ParameterOption& option : kOptions)
        if ((family.takes & option.bit) != 0)
            list = joined(list, option.name);
    return list;
}

void requireWhatItTakes(const FilterFamily& family, const FilterChoice& choice)
{
    for (const ParameterOption& option : kOptions)
        if ((family.takes & option.bit) != 0 && !option.isOptional && !option.isGiven(choice))
            throw Failure(ExitCode::Usage, std::string(family.name) + " needs " + std::string(option.name),
                          std::string(family.name) + " takes " + optionsOf(family));
}

// An option counts as superfluous when none of the families takes it: what one of them does not, is for another one.
void refuseWhatNoneTakes(const FilterChoice& choice)
{
    Parameters taken = 0;
    std::string families;
    for (const std::string& name : choice.families) {
        taken |= filterFamily(name).takes;
        families = joined(families, name);
    }
    for (const ParameterOption& option : kOptions)
        if ((taken & option.bit) == 0 && option.isGiven(choice))
            throw Failure(ExitCode::Usage, std::string(option.name) + " is not for " + families,
                          "it is for " + familiesThatTake(option.bit));
}

void requireWindowOfParameter(const FilterChoice& choice)
{
    if (!choice.parameter || (!choice.window.empty() && filterWindow(choice.window).hasParameter))
        return;
    throw Failure(ExitCode::Usage,
                  "--param is not for " + (choice.window.empty() ? "a filter without a --window" : choice.window),
                  "it is for the windows kaiser, dolph-chebyshev and gaussian");
}

void requireDifferentFamilies(const FilterChoice& choice)
{
    if (std::set(choice.families.begin(), choice.families.end()).size() != choice.families.size())
        throw Failure(ExitCode::Usage, "--family names a design twice", "name each one once");
}

void requireAtMost(const std::optional<int>& value, int most, const std::string& option, const std::string& why)
{
    if (value && *value > most)
        throw Failure(ExitCode::Usage, option + " must be at most " + std::to_string(most), why);
}

// What memory is taken for before the library is asked.
void requireSizes(const FilterChoice& choice)
{
    requireAtMost(choice.taps, kMostTaps, "--taps", "use fewer, or narrow-band, which needs fewer for the same");
    if (choice.derivative.value_or(0) > 0)
        requireAtMost(choice.side, kMostSideOfDerivative, "--side with --derivative",
                      "the memory grows with its square");
}

void requireFit(const FilterFamily& family, const FilterChoice& choice)
{
    if ((family.takes & kSide) == 0)
        return;
    const auto frame = 2 * std::int64_t{*choice.side} + 1;
    if (!choice.weights.empty() && std::ssize(choice.weights) != frame)
        throw Failure(ExitCode::Usage, "there are " + std::to_string(choice.weights.size()) + " --weights",
                      "give " + std::to_string(frame) + ", one a sample of the frame: twice the --side and one");
    if (const int derivative = choice.derivative.value_or(0); derivative < 0 || derivative > std::max(*choice.order, 0))
        throw Failure(ExitCode::Usage, "--derivative must be from 0 to the --order",
                      "a polynomial has no more derivatives than its order");
}

void requireResponse(const FilterFamily& family, int type, const std::string& response)
{
    if (type >= family.responses && family.responses > 0)
        throw Failure(ExitCode::Usage, std::string(family.name) + " has no response " + response,
                      "take narrow-band, or another family");
}

const std::vector<double>& frequenciesFor(const FilterFamily& family, const FilterChoice& choice)
{
    return (family.takes & kEdges) != 0 ? choice.edges : choice.cutoff;
}

const char* edgeAdvice(int edges, bool isBandEnds)
{
    if (isBandEnds)
        return "give the two ends of each transition, ascending";
    return edges == 2 ? "give the lower and the upper edge" : "give one frequency";
}

void requireEdges(const FilterFamily& family, int type, const FilterChoice& choice)
{
    const int wanted = edgeCount(family, type);
    if (wanted == 0)
        return;
    const auto given = std::ssize(frequenciesFor(family, choice));
    const bool isBandEnds = (family.takes & kEdges) != 0;
    if (given != wanted)
        throw Failure(ExitCode::Usage,
                      choice.response + " takes " + std::to_string(wanted) + (isBandEnds ? " --edges" : " --cutoff") +
                          " frequencies, not " + std::to_string(given),
                      edgeAdvice(wanted, isBandEnds));
}

FilterRequest requestOf(const FilterFamily& family, int type, const FilterChoice& choice)
{
    FilterRequest request{.type = type,
                          .order = choice.order.value_or(0),
                          .taps = choice.taps.value_or(0),
                          .ripple = choice.ripple.value_or(0),
                          .attenuation = choice.attenuation.value_or(0),
                          .window = choice.window.empty() ? 0 : filterWindow(choice.window).code,
                          .parameter = choice.parameter.value_or(std::numeric_limits<double>::quiet_NaN()),
                          .beta = choice.beta.value_or(0),
                          .side = choice.side.value_or(0),
                          .weights = choice.weights,
                          .derivative = family.derivative};
    if ((family.takes & kBands) != 0)
        request.bands = parseGainBands(choice.bands);
    if ((family.takes & kDerivative) != 0)
        request.derivative = choice.derivative.value_or(0);
    if (edgeCount(family, type) > 0)
        std::ranges::copy(frequenciesFor(family, choice), request.edges);
    return request;
}

// "smoothing", "derivative 2", "Hilbert transform 50 to 450 Hz"
std::string purposeOf(const FilterFamily& family, const FilterRequest& request)
{
    std::string text(request.derivative > 0 ? "derivative" : family.purpose);
    if (request.derivative > 1)
        text += " " + std::to_string(request.derivative);
    return (family.takes & kBands) != 0 ? text + " " + describe(request.bands) : text;
}

// "bandpass 90 to 110 Hz", and with the ends of transitions "bandpass 80/90 to 110/120 Hz"
std::string bandOf(const FilterFamily& family, const FilterChoice& choice)
{
    const std::size_t group = (family.takes & kEdges) != 0 ? 2 : 1;
    std::string text = choice.response;
    const std::vector<double>& edges = frequenciesFor(family, choice);
    for (std::size_t i = 0; i < edges.size(); ++i) {
        const char* const between = i == 0 ? " " : " to ";
        text += (i % group == 0 ? between : "/") + rounded(edges[i], kFrequencyDigits);
    }
    return text + " Hz";
}

std::string designOf(const FilterFamily& family, const FilterChoice& choice)
{
    std::string text(family.name);
    const auto add = [&](Parameters bit, const std::string& what) { text += (family.takes & bit) != 0 ? what : ""; };
    add(kOrder, " of order " + std::to_string(choice.order.value_or(0)));
    add(kTaps, " with " + std::to_string(choice.taps.value_or(0)) + (choice.taps == 1 ? " tap" : " taps"));
    add(kRipple, ", ripple " + rounded(choice.ripple.value_or(0)) + " dB");
    add(kAttenuation, ", attenuation " + rounded(choice.attenuation.value_or(0)) + " dB");
    add(kWindow, ", window " + choice.window + (choice.parameter ? " " + rounded(*choice.parameter) : ""));
    add(kBeta, ", beta " + rounded(choice.beta.value_or(0)));
    add(kSide, " over " + counted(static_cast<std::size_t>(std::max(2 * choice.side.value_or(0) + 1, 0)), "sample"));
    add(kWeights, choice.weights.empty() ? "" : ", weighted");
    return text;
}

} // namespace

std::vector<ChosenFilter> chosenFilters(const FilterChoice& choice)
{
    requireDifferentFamilies(choice);
    refuseWhatNoneTakes(choice);
    requireWindowOfParameter(choice);
    requireSizes(choice);
    const auto type = choice.response.empty()
                          ? 0
                          : static_cast<int>(std::ranges::find(kResponses, choice.response) - kResponses.begin());
    std::vector<ChosenFilter> filters;
    for (const std::string& name : choice.families) {
        const FilterFamily& family = filterFamily(name);
        requireWhatItTakes(family, choice);
        requireResponse(family, type, choice.response);
        requireEdges(family, type, choice);
        requireFit(family, choice);
        FilterRequest request = requestOf(family, type, choice);
        std::string band = family.responses > 0 ? bandOf(family, choice) : purposeOf(family, request);
        filters.push_back({family, std::move(request), std::move(band), designOf(family, choice)});
    }
    return filters;
}

std::string describeBand(const std::vector<ChosenFilter>& filters)
{
    const std::string& band = filters.front().band;
    const bool isCommon = std::ranges::all_of(filters, [&](const ChosenFilter& one) { return one.band == band; });
    if (isCommon)
        return band;
    const bool haveResponse =
        std::ranges::all_of(filters, [](const ChosenFilter& one) { return one.family.responses > 0; });
    return haveResponse ? std::string(kResponses[static_cast<std::size_t>(filters.front().request.type)])
                        : counted(filters.size(), "filter");
}

} // namespace quordsp::cli
