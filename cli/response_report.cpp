#include "response_report.h"

#include <algorithm>
#include <cmath>
#include <iostream>
#include <string>
#include <string_view>
#include <vector>

#include "number.h"

namespace quordsp::cli {
namespace {

constexpr std::size_t kMostHalfPower = 8; // points to name

std::string structureOf(const Impulse& impulse, const FilterRequest& request)
{
    if (!request.weights.empty())
        return counted(impulse.taps.size(), "tap");
    const std::string delay = "delay " + rounded(impulse.delay()) + " samples";
    if (impulse.model == 0)
        return delay;
    return "model of " + std::to_string(impulse.model) + " taps " + counted(impulse.interpolation, "sample") +
           " apart, image suppressor of " + counted(impulse.image, "tap") + ", " + delay;
}

std::string structureOf(const TransferFunction& function, const FilterRequest& request)
{
    switch (function.form) {
    case Form::Taps:
        return structureOf(function.impulse, request);
    case Form::Cascade:
        return counted(function.sections.size(), "section");
    case Form::Direct:
        return "direct form of degree " + std::to_string(function.sections.front().forward.size() - 1);
    case Form::Mapped:
        return "no sections, the design by its low-pass";
    }
    return {};
}

std::string bandsText(const BandFigures& figures)
{
    std::string text;
    for (const auto& [from, to] : figures.bands)
        text += (text.empty() ? "" : " and ") + rounded(from, kFrequencyDigits) + " to " +
                rounded(to, kFrequencyDigits) + " Hz";
    return text;
}

std::string halfPowerText(const std::vector<double>& points)
{
    std::string text;
    for (std::size_t i = 0; i < std::min(points.size(), kMostHalfPower); ++i)
        text += (i == 0 ? "" : ", ") + rounded(points[i], kFrequencyDigits) + " Hz";
    if (points.size() > kMostHalfPower)
        text += " and " + std::to_string(points.size() - kMostHalfPower) + " more";
    return text.empty() ? "none" : text;
}

// Without the digits that are rounding, and the sign of 0.
std::string decibels(double value)
{
    return rounded(std::round(value * 1e9) / 1e9 + 0.0) + " dB";
}

// "within 0.01 of 1", "within 1e-05 of 0.5 times 2 pi f"
std::string deviationText(const BandDeviation& deviation, bool isDerivative)
{
    const double gain = deviation.band.gain;
    const std::string slope = gain == 1 ? "2 pi f" : rounded(gain) + " times 2 pi f";
    return "within " + rounded(deviation.deviation) + " of " + (isDerivative && gain != 0 ? slope : rounded(gain)) +
           (isDerivative ? ", relative to 2 pi f" : "");
}

void printDeviations(const ResponseFigures& figures, const FilterRequest& request)
{
    for (const BandDeviation& deviation : figures.deviations)
        std::cout << "gain from " << rounded(deviation.band.from, kFrequencyDigits) << " to "
                  << rounded(deviation.band.to, kFrequencyDigits)
                  << " Hz: " << deviationText(deviation, request.derivative > 0) << '\n';
    if (figures.ripple > 0)
        std::cout << "ripple reached, by the design: " << rounded(figures.ripple)
                  << (request.bands.empty() ? "\n" : ", weighted\n");
}

void printFigures(const ResponseFigures& figures, const FilterRequest& request)
{
    for (std::size_t i = 0; i < figures.edgeGains.size(); ++i)
        std::cout << "gain at " << rounded(request.edges[i], kFrequencyDigits)
                  << " Hz: " << decibels(figures.edgeGains[i]) << '\n';
    if (request.derivative == 0 && request.bands.empty())
        std::cout << "-3.01 dB at: " << halfPowerText(figures.halfPower) << '\n';
    printDeviations(figures, request);
    if (figures.pass)
        std::cout << "pass-band ripple: " << decibels(figures.pass->highest - figures.pass->lowest) << ", from "
                  << decibels(figures.pass->lowest) << " to " << decibels(figures.pass->highest) << ", "
                  << bandsText(*figures.pass) << '\n';
    if (figures.stop)
        std::cout << "stop-band attenuation: " << decibels(-figures.stop->highest) << ", " << bandsText(*figures.stop)
                  << '\n';
    if (figures.poles.greatestRadius > 0)
        std::cout << "greatest pole radius: " << rounded(figures.poles.greatestRadius, 8) << ", "
                  << rounded(1 - figures.poles.greatestRadius, 3) << " from the unit circle\n";
}

// The form is not the one that was asked for.
void warnOfForm(const std::string_view family, const TransferFunction& function)
{
    const char* const instead = function.form == Form::Mapped
                                    ? "; filter works with more exact ones. This is the response of the design before"
                                      " its coefficients are rounded, by its low-pass"
                                    : "; this is the response of the direct form, which is less exact";
    if (!function.refusal.empty())
        std::cerr << "quordsp: warning: the backend gives no sections of " << family << ": " << function.refusal
                  << instead << '\n';
}

} // namespace

void printReport(const ChosenFilter& filter, double rate, const TransferFunction& function,
                 const ResponseFigures& figures)
{
    std::cout << filter.describe() << " at " << rounded(rate) << " Hz: " << structureOf(function, filter.request)
              << '\n';
    printFigures(figures, filter.request);
    warnOfForm(filter.family.name, function);
    for (const std::string& doubt : doubtsAbout(filter, figures))
        std::cerr << "quordsp: warning: " << filter.design << ": " << doubt << '\n';
}

} // namespace quordsp::cli
