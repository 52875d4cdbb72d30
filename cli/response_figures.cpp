#include "response_figures.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <limits>
#include <numbers>
#include <numeric>
#include <span>

#include "extremum.h"
#include "gain_grid.h"
#include "number.h"
#include "progress.h"

namespace quordsp::cli {
namespace {

const double kHalfPower = -10 * std::log10(2.0); // dB
constexpr std::size_t kFewestPoints = 4000;      // of a segment
constexpr double kNearestToEdge = 1e-3;          // of an edge's frequency
constexpr double kGrowth = 1.05;
constexpr std::size_t kFewestBandPoints = 100; // of a band of the request
constexpr std::size_t kPointsPerTap = 8;
constexpr int kHalvings = 100;
constexpr double kRippleTolerance = 0.01;      // of the ripple
constexpr double kAttenuationTolerance = 0.01; // dB
constexpr double kLowestLevel = -0.5;          // dB, of a pass band
constexpr double kLevelRounding = 1e-9;        // dB, between neighbours where the gain is flat
constexpr double kRadiusTolerance = 1e-3;      // of a pole's distance from the circle
constexpr double kDeviationTolerance = 0.01;   // of the deviation, and
constexpr double kDeviationFloor = 1e-12;      // of the gain 1

enum class Role : std::uint8_t { Pass, Transition, Stop };

// What lies between two neighbours of 0, the frequencies of the request, and half the sampling rate. Frequencies are
// shares of the sampling rate.
struct Segment {
    Role role;
    std::vector<double> frequencies;
    std::vector<double> gains; // dB
};

using Gain = Function; // dB

// Pass and stop band alternate, with a transition between them when the request has the ends of both.
Role roleOf(const ChosenFilter& filter, std::size_t segment)
{
    const bool passesFirst = filter.request.type == 0 || filter.request.type == 3;
    if ((filter.family.takes & kEdges) == 0)
        return passesFirst == (segment % 2 == 0) ? Role::Pass : Role::Stop;
    if (segment % 2 == 1)
        return Role::Transition;
    return passesFirst == (segment % 4 == 0) ? Role::Pass : Role::Stop;
}

void add(Segment& segment, double frequency, double gain)
{
    segment.frequencies.push_back(frequency);
    segment.gains.push_back(gain);
}

// Points that crowd at both ends, as the extrema of IIR designs do, and behind a very low edge by its octaves; those of
// the grid where there are more.
Segment sample(Role role, double from, double to, const GainGrid& grid, const Gain& gain)
{
    Segment segment{role, {}, {}};
    add(segment, from, gain(from));
    const auto [first, last] = grid.between(from, to);
    if (last - first > kFewestPoints)
        for (std::size_t point = first; point < last; ++point)
            add(segment, grid.frequency(point), grid.decibels(point));
    else {
        const auto addAt = [&](double frequency) { add(segment, frequency, gain(frequency)); };
        const double step = crowded(from, to, 1, kFewestPoints) - from;
        for (double distance = kNearestToEdge * from; std::isnormal(distance) && distance < step; distance *= kGrowth)
            addAt(from + distance);
        for (std::size_t i = 1; i < kFewestPoints; ++i)
            addAt(crowded(from, to, i, kFewestPoints));
    }
    add(segment, to, gain(to));
    return segment;
}

std::vector<Segment> survey(const ChosenFilter& filter, double rate, const GainGrid& grid, const Gain& gain)
{
    std::vector<Segment> segments;
    double from = 0;
    const auto edges = static_cast<std::size_t>(edgeCount(filter.family, filter.request.type));
    for (std::size_t i = 0; i <= edges; ++i) {
        const double to = i < edges ? filter.request.edges[i] / rate : 0.5;
        segments.push_back(sample(roleOf(filter, i), from, to, grid, gain));
        from = to;
    }
    return segments;
}

// Where the gain goes through a level, between two frequencies on either side of it.
double crossing(double from, double to, double level, const Gain& gain)
{
    const bool isAbove = gain(from) >= level;
    for (int i = 0; i < kHalvings; ++i) {
        const double middle = std::midpoint(from, to);
        ((gain(middle) >= level) == isAbove ? from : to) = middle;
    }
    return std::midpoint(from, to);
}

std::vector<double> halfPowerPoints(const std::vector<Segment>& segments, double rate, const Gain& gain)
{
    std::vector<double> points;
    for (const auto& [role, x, gains] : segments)
        for (std::size_t i = 1; i < x.size(); ++i)
            if ((gains[i - 1] >= kHalfPower) != (gains[i] >= kHalfPower))
                points.push_back(rate * crossing(x[i - 1], x[i], kHalfPower, gain));
    return points;
}

// The greatest value of sign * gain among points first to last of a segment, and between them.
double greatest(const Segment& segment, std::size_t first, std::size_t last, double sign, const Gain& gain)
{
    std::size_t best = first;
    for (std::size_t i = first; i <= last; ++i)
        if (sign * segment.gains[i] > sign * segment.gains[best])
            best = i;
    const double from = segment.frequencies[std::max(best, first + 1) - 1];
    const double to = segment.frequencies[std::min(best + 1, last)];
    const double between = peakBetween(from, to, [&](double frequency) { return sign * gain(frequency); });
    return std::max(between, sign * segment.gains[best]);
}

// Whether a walk into the band, from the point to the next one, has not come to where the band begins.
bool isBefore(BandEnd end, const Segment& segment, double reached, std::size_t point, std::size_t next)
{
    const double rise = segment.gains[next] - segment.gains[point];
    if (end == BandEnd::Lobe)
        return segment.role == Role::Pass ? rise > -kLevelRounding : rise < kLevelRounding;
    return end == BandEnd::Reached && segment.gains[point] > reached;
}

struct Part {
    std::size_t first;
    std::size_t last;
};

// The points of a segment that belong to its band. Ends at 0 and at half the sampling rate are no ends of a band.
Part bandWithin(const Segment& segment, BandEnd end, double reached)
{
    Part part{0, segment.gains.size() - 1};
    if (segment.frequencies.front() > 0)
        while (part.first < part.last && isBefore(end, segment, reached, part.first, part.first + 1))
            ++part.first;
    if (segment.frequencies.back() < 0.5)
        while (part.last > part.first && isBefore(end, segment, reached, part.last, part.last - 1))
            --part.last;
    return part;
}

std::optional<BandFigures> measureBands(const std::vector<Segment>& segments, Role role, BandEnd end, double reached,
                                        double rate, const Gain& gain)
{
    if (end == BandEnd::None)
        return std::nullopt;
    constexpr double kInfinity = std::numeric_limits<double>::infinity();
    BandFigures figures{{}, kInfinity, -kInfinity};
    for (const Segment& segment : segments)
        if (segment.role == role) {
            const auto [first, last] = bandWithin(segment, end, reached);
            if (end == BandEnd::Lobe && first == last)
                continue;
            figures.bands.push_back({rate * segment.frequencies[first], rate * segment.frequencies[last]});
            figures.highest = std::max(figures.highest, greatest(segment, first, last, 1, gain));
            figures.lowest = std::min(figures.lowest, -greatest(segment, first, last, -1, gain));
        }
    if (figures.bands.empty())
        return std::nullopt;
    return figures;
}

double highestOfPass(const std::vector<Segment>& segments, const Gain& gain)
{
    double highest = -std::numeric_limits<double>::infinity();
    for (const Segment& segment : segments)
        if (segment.role == Role::Pass)
            highest = std::max(highest, greatest(segment, 0, segment.gains.size() - 1, 1, gain));
    return highest;
}

bool isNothing(const Impulse& impulse)
{
    return !impulse.taps.empty() && std::ranges::all_of(impulse.taps, [](double tap) { return tap == 0; });
}

// What gain 1 is at a frequency in Hz. The error of a differentiator's stop band is not by its frequency.
double unitGain(const ChosenFilter& filter, const GainBand& band, double rate, double frequency)
{
    if (filter.request.derivative == 0)
        return 1;
    return 2 * std::numbers::pi * (band.gain != 0 ? frequency : rate);
}

// From 0 to half the sampling rate each tap makes a lobe at the most.
std::size_t pointsFor(const TransferFunction& function, const GainBand& band, double rate)
{
    const auto all = static_cast<double>(std::max(kFewestPoints, kPointsPerTap * function.impulse.taps.size()));
    return std::max(kFewestBandPoints, static_cast<std::size_t>(all * 2 * (band.to - band.from) / rate));
}

std::vector<BandDeviation> measureDeviations(const ChosenFilter& filter, double rate, const TransferFunction& function,
                                             const Gain& gain)
{
    std::vector<BandDeviation> deviations;
    for (const GainBand& band : filter.request.bands) {
        const auto deviation = [&](double frequency) {
            const double unit = unitGain(filter, band, rate, frequency * rate);
            return unit > 0 ? std::abs(std::pow(10, gain(frequency) / 20) / unit - std::abs(band.gain)) : 0;
        };
        deviations.push_back(
            {band, greatestBetween(band.from / rate, band.to / rate, pointsFor(function, band, rate), deviation)});
    }
    return deviations;
}

std::string decibels(double value)
{
    return rounded(value + 0.0) + " dB"; // 0.0 takes the sign of 0
}

void doubtPoles(const Poles& poles, std::vector<std::string>& doubts)
{
    if (poles.greatestRadius >= 1)
        doubts.push_back("the filter is not stable: a pole has the radius " + rounded(poles.greatestRadius, 17));
    else if (poles.shift > kRadiusTolerance)
        doubts.push_back("a pole at " + rounded(1 - poles.greatestRadius, 2) +
                         " from the unit circle is too near for double: the rounding of the coefficients moves a pole"
                         " by up to " +
                         rounded(100 * poles.shift, 2) + " % of its distance from the circle");
}

void doubtEdges(const ChosenFilter& filter, const ResponseFigures& figures, std::vector<std::string>& doubts)
{
    if (!filter.family.cutoffLoss)
        return;
    const double wanted = filter.family.cutoffLoss(filter.request);
    const double tolerance = std::min(kRippleTolerance * wanted, kAttenuationTolerance);
    for (std::size_t i = 0; i < figures.edgeGains.size(); ++i)
        if (!(std::abs(figures.edgeGains[i] + wanted) <= tolerance))
            doubts.push_back("the gain at " + rounded(filter.request.edges[i], kFrequencyDigits) + " Hz is " +
                             decibels(figures.edgeGains[i]) + " instead of " + decibels(-wanted));
}

void doubtBands(const ChosenFilter& filter, const ResponseFigures& figures, std::vector<std::string>& doubts)
{
    const auto& [family, request, band, design] = filter;
    if (figures.pass && (family.takes & kRipple) != 0 &&
        !(figures.pass->highest - figures.pass->lowest <= request.ripple * (1 + kRippleTolerance)))
        doubts.push_back("the ripple of the pass band is " + decibels(figures.pass->highest - figures.pass->lowest) +
                         " instead of " + decibels(request.ripple));
    if (figures.stop && (family.takes & kAttenuation) != 0 &&
        !(-figures.stop->highest >= request.attenuation - kAttenuationTolerance))
        doubts.push_back("the attenuation of the stop band is " + decibels(-figures.stop->highest) + " instead of " +
                         decibels(request.attenuation));
}

// The library scales no window.
void doubtLevel(const ResponseFigures& figures, std::vector<std::string>& doubts)
{
    if (figures.isNothing)
        doubts.emplace_back("all coefficients are 0");
    else if (figures.level && !(*figures.level >= kLowestLevel))
        doubts.push_back("the gain of the pass band is at most " + decibels(*figures.level));
}

void doubtDeviations(const ResponseFigures& figures, std::vector<std::string>& doubts)
{
    for (const auto& [band, deviation] : figures.deviations)
        if (!(deviation * band.weight <= figures.ripple * (1 + kDeviationTolerance) + kDeviationFloor * band.weight))
            doubts.push_back("the weighted deviation from " + rounded(band.from, kFrequencyDigits) + " to " +
                             rounded(band.to, kFrequencyDigits) + " Hz is " + rounded(deviation * band.weight) +
                             " instead of " + rounded(figures.ripple));
}

} // namespace

ResponseFigures measureResponse(const ChosenFilter& filter, double rate, const TransferFunction& function,
                                const FrequencyResponse& response)
{
    const Progress progress("measuring the response");
    const Gain gain = [&](double frequency) { return response.decibels(frequency); };
    const std::vector<Segment> segments = survey(filter, rate, GainGrid(function.impulse.taps), gain);
    ResponseFigures figures;
    for (std::size_t i = 0; i + 1 < segments.size(); ++i)
        figures.edgeGains.push_back(segments[i].gains.back());
    figures.halfPower = halfPowerPoints(segments, rate, gain);
    const double reached = -filter.request.attenuation;
    figures.isNothing = isNothing(function.impulse);
    if (!figures.isNothing) {
        figures.pass = measureBands(segments, Role::Pass, filter.family.passEnd, reached, rate, gain);
        figures.stop = measureBands(segments, Role::Stop, filter.family.stopEnd, reached, rate, gain);
    }
    if (filter.family.passEnd == BandEnd::Lobe)
        figures.level = highestOfPass(segments, gain);
    figures.deviations = measureDeviations(filter, rate, function, gain);
    figures.ripple = function.impulse.ripple;
    figures.poles = polesOf(function);
    return figures;
}

std::vector<std::string> doubtsAbout(const ChosenFilter& filter, const ResponseFigures& figures)
{
    std::vector<std::string> doubts;
    doubtPoles(figures.poles, doubts);
    doubtEdges(filter, figures, doubts);
    doubtBands(filter, figures, doubts);
    doubtLevel(figures, doubts);
    doubtDeviations(figures, doubts);
    return doubts;
}

} // namespace quordsp::cli
