#include "one_call.h"

#include <algorithm>

namespace quordsp::fuzz {
namespace {

Samples oneAfterTheOther(const Signal& signal)
{
    Samples all = signal.re;
    all.insert(all.end(), signal.im.begin(), signal.im.end());
    return all;
}

bool isModerate(const Samples& x)
{
    return std::all_of(x.begin(), x.end(), [](double value) { return std::abs(value) < 1e9; });
}

// What is filtered in place; and of a refused call what was there before.
void requireInPlace(const Filter& filter, const Samples& x, std::int64_t n, int status, const Samples& y)
{
    Samples inPlace = x;
    require(filter(inPlace.data(), n, inPlace.data()) == status, "the same status in place");
    require(areSame(inPlace, status == 0 ? y : x), "the same in place, or nothing written");
}

void requireOutput(const Samples& x, int status, const Samples& y)
{
    if (status != 0)
        require(y == Samples(y.size(), kBefore), "nothing is written on failure");
    else if (isModerate(x))
        require(areFinite(y), "finite samples stay finite");
}

int run(const Filter& filter, const Samples& x, std::int64_t n, Samples& y)
{
    const Samples in = x;
    y.assign(x.size(), kBefore);
    const int status = filter(in.data(), n, y.data());
    require(areSame(in, x), "the input is only read");
    return status;
}

int runBackend(const Filter& filter, const Samples& x, std::int64_t n, Samples& y)
{
    const int status = run(filter, x, n, y);
    requireOutput(x, status, y);
    requireInPlace(filter, x, n, status, y);
    return status;
}

void requireRefusals(const Filter& filter, std::int64_t n)
{
    double sample = kBefore;
    require(filter(&sample, -n, &sample) == -20003, "a count that is not positive");
    require(filter(&sample, std::numeric_limits<std::int64_t>::min(), &sample) == -20003, "the least count");
    require(filter(nullptr, 1, &sample) == -20008, "no input");
    require(filter(nullptr, std::numeric_limits<std::int64_t>::max(), &sample) == -20008, "no input for the count");
    require(sample == kBefore, "nothing is written on failure");
}

void requireExports(const OneCallFilter& filter, const Signal& x, const Outcome& outcome)
{
    const std::int64_t n = sizeOf(x.re);
    const Samples both = oneAfterTheOther(x);
    Samples y;
    require(run(filter.exported, x.re, n, y) == outcome.status, "the export's status is the entry's");
    require(areSame(y, outcome.y.re), "the export's result is the entry's");
    require(run(filter.exportedComplex, both, n, y) == outcome.status, "the complex export's status");
    if (outcome.status == 0)
        require(areSame(y, oneAfterTheOther(outcome.y)), "the complex export's result");
    else if (filter.exportedOutput == AfterFailure::TheInput)
        require(areSame(y, both), "a copy of the input after a failure");
}

} // namespace

Outcome requireOneOutcome(const OneCallFilter& filter, const Signal& x)
{
    const std::int64_t n = sizeOf(x.re);
    Outcome outcome{};
    outcome.status = runBackend(filter.real, x.re, n, outcome.y.re);
    require(runBackend(filter.real, x.im, n, outcome.y.im) == outcome.status, "the same status for other samples");
    Samples pairs;
    require(runBackend(filter.complex, interleaved(x), n, pairs) == outcome.status, "the same for complex samples");
    require(areSame(pairs, interleaved(outcome.y)), "real and imaginary parts are filtered alike");
    requireExports(filter, x, outcome);
    requireRefusals(filter.real, n);
    requireRefusals(filter.complex, n);
    return outcome;
}

} // namespace quordsp::fuzz
