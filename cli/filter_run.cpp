#include "filter_run.h"

#include <algorithm>
#include <cmath>
#include <string>
#include <utility>

#include "failure.h"
#include "number.h"
#include "progress.h"
#include "status.h"

namespace quordsp::cli {
namespace {

void requireFrame(const ChosenFilter& filter, const Series& series)
{
    if ((filter.family.takes & kSide) != 0 && std::ssize(series.samples) < filter.request.frame())
        throw Failure(ExitCode::Usage,
                      "the signal has " + counted(series.samples.size(), "sample") + ", less than the frame of " +
                          std::to_string(filter.request.frame()),
                      "take a smaller --side");
}

FilterRequest requestAt(const ChosenFilter& filter, double rate)
{
    FilterRequest request = filter.request;
    request.rate = rate;
    return request;
}

// What the signal itself has that is not finite may come out of the filter.
void requireFinite(const ChosenFilter& filter, const Series& series, const Filtered& result)
{
    const auto isFinite = [](double value) { return std::isfinite(value); };
    if (!std::ranges::all_of(series.samples, isFinite) || !std::ranges::all_of(series.imaginary, isFinite))
        return;
    const auto firstOf = [&](const std::vector<double>& part) {
        return static_cast<std::size_t>(std::ranges::find_if_not(part, isFinite) - part.begin());
    };
    std::size_t first = firstOf(result.real);
    if (!result.imaginary.empty())
        first = std::min(first, firstOf(result.imaginary));
    if (first < result.real.size())
        throw Failure(ExitCode::BackendError,
                      filter.describe() + ": the result at " + rounded(series.time(first)) + " s, sample " +
                          std::to_string(first + 1) + ", is not finite",
                      "the values are too large for this filter, or it is not stable: 'quordsp response' tells");
}

std::vector<double> reversed(std::vector<double> samples)
{
    std::ranges::reverse(samples);
    return samples;
}

Filtered throughFilter(const ChosenFilter& filter, const Series& series)
{
    requireFrame(filter, series);
    Filtered result{std::vector<double>(series.samples.size()), std::vector<double>(series.imaginary.size()), {}};
    FilterSignal signal{series.samples, result.real.data()};
    if (series.isComplex()) {
        signal.inImaginary = series.imaginary.data();
        signal.outImaginary = result.imaginary.data();
    }
    const auto status = [&] {
        const Progress progress("filtering");
        return filter.family.run(requestAt(filter, series.rate), signal);
    }();
    check(status, filter.describe() + " at " + rounded(series.rate) + " Hz");
    result.delay = signal.delay;
    return result;
}

} // namespace

Filtered runOnce(const ChosenFilter& filter, const Series& series)
{
    Filtered result = throughFilter(filter, series);
    requireFinite(filter, series, result);
    return result;
}

// Through the sections: the direct form, which the library has an export for, is far from the design when the order is
// high or the band narrow.
Filtered runBothWays(const ChosenFilter& filter, const Series& series)
{
    const Filtered forwards = runOnce(filter, series);
    Filtered result = throughFilter(
        filter, {.rate = series.rate, .samples = reversed(forwards.real), .imaginary = reversed(forwards.imaginary)});
    result = {reversed(std::move(result.real)), reversed(std::move(result.imaginary)), {}};
    requireFinite(filter, series, result);
    return result;
}

void requireIirForZeroPhase(const std::vector<ChosenFilter>& filters)
{
    for (const ChosenFilter& filter : filters)
        if (filter.family.impulse)
            throw Failure(ExitCode::Usage, "--zero-phase is not for " + std::string(filter.family.name),
                          (filter.family.takes & kSide) != 0
                              ? "it has no delay"
                              : "a FIR filter delays every frequency alike: shift its output by the delay that it "
                                "tells");
}

} // namespace quordsp::cli
