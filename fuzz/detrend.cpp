#include <algorithm>
#include <set>

#include "QuorDSP_DAQ.h"
#include "targets.h"

namespace quordsp::fuzz {
namespace {

using Samples = std::vector<double>;

Samples without(Samples signal, int order, Samples breakpoints)
{
    const Samples before = breakpoints;
    require(QuorDSP_detrend(signal.data(), sizeOf(signal), order, breakpoints.data(), sizeOf(breakpoints)) == 0,
            "status 0");
    require(areSame(breakpoints, before), "breakpoints are only read");
    return signal;
}

// Order 0: the mean up to the sample nearest to the first breakpoint within the block, the earlier of two.
Samples withoutMean(Samples signal, const Samples& breakpoints)
{
    std::size_t length = signal.size();
    for (const double place : breakpoints)
        if (place > 1 && place < static_cast<double>(signal.size())) {
            std::size_t nearest = 0;
            for (std::size_t i = 1; i < signal.size(); ++i)
                if (std::abs(static_cast<double>(i) - (place - 1)) <
                    std::abs(static_cast<double>(nearest) - (place - 1)))
                    nearest = i;
            length = nearest + 1;
            break;
        }
    double sum = 0;
    for (std::size_t i = 0; i < length; ++i)
        sum += signal[i];
    const double mean = sum / static_cast<double>(length);
    for (double& sample : signal)
        sample -= mean;
    return signal;
}

// Arbitrary arguments: nothing but the documented returns, and a block of one.
void anyArguments(Bytes bytes)
{
    const Samples signal = bytes.numbers(bytes.between(0, 64));
    const Samples breakpoints = bytes.numbers(bytes.between(0, 6));
    const int order = bytes.between(-3, 20);
    Samples data = signal;
    Samples copy = breakpoints;
    QuorDSP_detrend(data.data(), -bytes.byte(), order, copy.data(), sizeOf(copy));
    QuorDSP_detrend(data.data(), sizeOf(data), -1 - bytes.byte(), copy.data(), sizeOf(copy));
    require(areSame(data, signal), "no count below 1 and no order below 0 touches anything");
    require(areSame(without(signal, order, breakpoints), without(signal, order, breakpoints)), "the same bits again");
    if (order < 0)
        return;
    if (signal.size() == 1)
        require(isSame(without(signal, order, breakpoints)[0], signal[0] * 0.0), "a single sample leaves 0 or NaN");
    else if (order == 0)
        require(areSame(without(signal, 0, breakpoints), withoutMean(signal, breakpoints)), "the mean, bit by bit");
}

double ramp(std::size_t i, double start, std::size_t count)
{
    return std::max((static_cast<double>(i) - start) / static_cast<double>(count - 1), 0.0);
}

void requireOrthogonal(const Samples& residual, const Samples& signal, double start, int power)
{
    double product = 0;
    double scale = 0;
    for (std::size_t i = 0; i < residual.size(); ++i) {
        const double column = std::pow(ramp(i, start, residual.size()), power);
        product += column * residual[i];
        scale += std::abs(signal[i]);
    }
    require(std::abs(product) <= 1e-10 * (1 + scale), "the residual is orthogonal to every column");
}

// A fit that has one solution: few different breakpoints with samples enough between them.
void wellPosedFit(Bytes bytes)
{
    const int order = bytes.between(1, 3);
    const Samples signal = bytes.niceNumbers(bytes.between(30, 60));
    std::set<int> different;
    for (int left = bytes.between(0, 2); left > 0; --left)
        different.insert(10 * bytes.between(1, 2));
    const Samples breakpoints(different.rbegin(), different.rend());
    const Samples residual = without(signal, order, breakpoints);
    for (const double sample : residual)
        require(std::isfinite(sample), "the residual is finite");
    for (int power = 0; power <= order; ++power)
        requireOrthogonal(residual, signal, 0, power);
    for (const double place : breakpoints)
        for (int power = 1; power <= order; ++power)
            requireOrthogonal(residual, signal, place - 1, power);

    Samples twice = signal;
    Samples twiceResidual = residual;
    for (std::size_t i = 0; i < signal.size(); ++i) {
        twice[i] *= 2;
        twiceResidual[i] *= 2;
    }
    require(areSame(without(twice, order, breakpoints), twiceResidual), "twice the signal leaves twice the residual");
}

} // namespace

void detrend(Bytes bytes)
{
    if (bytes.byte() % 2)
        wellPosedFit(bytes);
    else
        anyArguments(bytes);
}

} // namespace quordsp::fuzz
