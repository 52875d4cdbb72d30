#include "filter_run.h"

#include <algorithm>
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

std::vector<double> reversed(std::vector<double> samples)
{
    std::ranges::reverse(samples);
    return samples;
}

} // namespace

Filtered runOnce(const ChosenFilter& filter, const Series& series)
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

// Through the sections: the direct form, which the library has an export for, is far from the design when the order is
// high or the band narrow.
Filtered runBothWays(const ChosenFilter& filter, const Series& series)
{
    const Filtered forwards = runOnce(filter, series);
    Filtered result = runOnce(
        filter, {.rate = series.rate, .samples = reversed(forwards.real), .imaginary = reversed(forwards.imaginary)});
    return {reversed(std::move(result.real)), reversed(std::move(result.imaginary)), {}};
}

void requireIirForZeroPhase(const std::vector<ChosenFilter>& filters)
{
    for (const ChosenFilter& filter : filters)
        if (filter.family.impulse)
            throw Failure(ExitCode::Usage, "--zero-phase is not for " + std::string(filter.family.name),
                          "a FIR filter delays every frequency alike: shift its output by the delay that it tells");
}

} // namespace quordsp::cli
