#include "filter_choice.h"

#include <algorithm>
#include <limits>
#include <ranges>
#include <set>
#include <string_view>
#include <utility>

#include "failure.h"
#include "number.h"

namespace quordsp::cli {
namespace {

struct ParameterOption {
    Parameters bit;
    std::string_view name;
    bool (*isGiven)(const FilterChoice& choice);
};

constexpr ParameterOption kOptions[] = {
    {kOrder, "--order", [](const FilterChoice& choice) { return choice.order.has_value(); }},
    {kTaps, "--taps", [](const FilterChoice& choice) { return choice.taps.has_value(); }},
    {kCutoff, "--cutoff", [](const FilterChoice& choice) { return !choice.cutoff.empty(); }},
    {kEdges, "--edges", [](const FilterChoice& choice) { return !choice.edges.empty(); }},
    {kRipple, "--ripple", [](const FilterChoice& choice) { return choice.ripple.has_value(); }},
    {kAttenuation, "--attenuation", [](const FilterChoice& choice) { return choice.attenuation.has_value(); }},
    {kWindow, "--window", [](const FilterChoice& choice) { return !choice.window.empty(); }},
    {kBeta, "--beta", [](const FilterChoice& choice) { return choice.beta.has_value(); }},
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
        if ((family.takes & option.bit) != 0 && !option.isGiven(choice))
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
                          .beta = choice.beta.value_or(0)};
    std::ranges::copy(frequenciesFor(family, choice), request.edges);
    return request;
}

// "bandpass 90 to 110 Hz", and with the ends of transitions "bandpass 80/90 to 110/120 Hz"
std::string bandOf(const FilterFamily& family, const FilterChoice& choice)
{
    const std::size_t group = (family.takes & kEdges) != 0 ? 2 : 1;
    std::string text = choice.response;
    const std::vector<double>& edges = frequenciesFor(family, choice);
    for (std::size_t i = 0; i < edges.size(); ++i) {
        const char* const between = i == 0 ? " " : " to ";
        text += (i % group == 0 ? between : "/") + rounded(edges[i]);
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
    return text;
}

template <class Rows>
std::vector<std::string> namesOf(const Rows& rows)
{
    std::vector<std::string> names;
    for (const auto& row : rows)
        names.emplace_back(row.name);
    return names;
}

} // namespace

void addFilter(Command& command, FilterChoice& choice)
{
    command.option("--response", choice.response, "What passes")
        .required()
        .oneOf(std::vector<std::string>(kResponses.begin(), kResponses.end()));
    command
        .option("--order", choice.order,
                "Order of the low-pass prototype, 1 or more; a band filter has twice the poles")
        .whole();
    command
        .option("--cutoff", choice.cutoff,
                "Two ascending ones for a band. Here the gain is -3 dB for butterworth, minus\n"
                "the ripple for chebyshev and elliptic, minus the attenuation for\n"
                "inverse-chebyshev, -6 dB for windowed and kaiser. INPUT goes before it")
        .values(1, 2)
        .number()
        .placeholder("HZ [HZ]");
    command.option("--family", choice.families, "Design, or several with commas to compare them")
        .list()
        .oneOf(namesOf(filterFamilies()))
        .showDefault();
    command.option("--ripple", choice.ripple, "Of the pass band, for chebyshev and elliptic")
        .number()
        .placeholder("DB");
    command.option("--attenuation", choice.attenuation, "Of the stop band, for inverse-chebyshev and elliptic")
        .number()
        .placeholder("DB");
    command
        .option("--taps", choice.taps,
                "Number of coefficients, for windowed, kaiser and equiripple; odd for highpass\n"
                "and bandstop")
        .whole();
    command.option("--window", choice.window, "For windowed").oneOf(namesOf(filterWindows()));
    command
        .option("--param", choice.parameter, "Of the windows kaiser (beta), dolph-chebyshev (dB) and gaussian (sigma)")
        .number();
    command.option("--beta", choice.beta, "Shape of the window, for kaiser").number();
    command
        .option("--edges", choice.edges,
                "For equiripple, in place of --cutoff: the two ends of each transition,\n"
                "ascending; four for a band")
        .values(2, 4)
        .number()
        .placeholder("HZ HZ [HZ HZ]");
}

std::vector<ChosenFilter> chosenFilters(const FilterChoice& choice)
{
    requireDifferentFamilies(choice);
    refuseWhatNoneTakes(choice);
    requireWindowOfParameter(choice);
    const auto type = static_cast<int>(std::ranges::find(kResponses, choice.response) - kResponses.begin());
    std::vector<ChosenFilter> filters;
    for (const std::string& name : choice.families) {
        const FilterFamily& family = filterFamily(name);
        requireWhatItTakes(family, choice);
        requireEdges(family, type, choice);
        filters.push_back({family, requestOf(family, type, choice), bandOf(family, choice), designOf(family, choice)});
    }
    return filters;
}

std::string describeBand(const std::vector<ChosenFilter>& filters)
{
    const std::string& band = filters.front().band;
    const bool isCommon = std::ranges::all_of(filters, [&](const ChosenFilter& one) { return one.band == band; });
    return isCommon ? band : std::string(kResponses[static_cast<std::size_t>(filters.front().request.type)]);
}

} // namespace quordsp::cli
