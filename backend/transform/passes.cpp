// A pass sees x as [radix][groups][stride] and writes y as [groups][radix][stride]: butterflies over the first index,
// then root (group * output) of unity of order radix * groups on every output (Stockham's order: sorted at the end, no
// bit-reversal). The innermost loop runs over lanes, neighbours in memory that are computed alike: the stride index, or
// in the first pass, whose stride is 1, the groups.
#include "transform/passes.h"

#include "transform/butterflies.h"
#include "transform/row.h"

#include <algorithm>

namespace quordsp::backend {

namespace {

// Lanes of one pass that share their group, or one lane of each group.
struct Lanes {
    std::size_t count;
    ConstSplit x;
    std::size_t xStep; // between the inputs of a butterfly
    Split y;
    std::size_t yStep; // between its outputs
    ConstSplit twiddles;
    std::size_t twiddleStep; // between the twiddles of its outputs
};

enum class Twiddling { None, Shared, PerLane };

template <Twiddling kTwiddling>
constexpr std::size_t kTwiddleLane = kTwiddling == Twiddling::PerLane ? 1 : 0;

template <std::size_t R, Twiddling kTwiddling>
void runLanes(const Lanes& lanes)
{
    const double* __restrict xRe = lanes.x.re;
    const double* __restrict xIm = lanes.x.im;
    double* __restrict yRe = lanes.y.re;
    double* __restrict yIm = lanes.y.im;
    const std::size_t xStep = lanes.xStep, yStep = lanes.yStep;
    constexpr std::size_t yLane = kTwiddling == Twiddling::PerLane ? R : 1;

    for (std::size_t i = 0; i < lanes.count; ++i) {
        Points<double, R> a;
        for (std::size_t j = 0; j < R; ++j)
            a[j] = {xRe[j * xStep + i], xIm[j * xStep + i]};
        Butterfly<R>::apply(a);
        for (std::size_t j = 0; j < R; ++j) {
            if (kTwiddling != Twiddling::None && j > 0)
                a[j] = a[j] * lanes.twiddles[(j - 1) * lanes.twiddleStep + i * kTwiddleLane<kTwiddling>];
            yRe[j * yStep + i * yLane] = a[j].re;
            yIm[j * yStep + i * yLane] = a[j].im;
        }
    }
}

Point<Row> load(ConstSplit x, std::size_t count)
{
    Point<Row> row = {};
    std::copy_n(x.re, count, row.re.lane);
    std::copy_n(x.im, count, row.im.lane);
    return row;
}

// As Butterfly does it for odd primes, with the radix at run time and a row of lanes at once.
template <Twiddling kTwiddling>
void runRow(std::size_t radix, ConstSplit circle, const Lanes& lanes, std::size_t start)
{
    const std::size_t half = radix / 2;
    const std::size_t count = std::min(Row::size, lanes.count - start);
    const auto input = [&](std::size_t j) { return load(lanes.x + (j * lanes.xStep + start), count); };
    const auto output = [&](std::size_t j, const Point<Row>& row) {
        for (std::size_t i = 0; i < count; ++i) {
            const std::size_t lane = start + i;
            Point<double> value = {row.re.lane[i], row.im.lane[i]};
            if (kTwiddling != Twiddling::None && j > 0)
                value = value * lanes.twiddles[(j - 1) * lanes.twiddleStep + lane * kTwiddleLane<kTwiddling>];
            lanes.y.set(j * lanes.yStep + lane * (kTwiddling == Twiddling::PerLane ? radix : 1), value);
        }
    };

    Point<Row> sums[kLargestPrimeRadix / 2], differences[kLargestPrimeRadix / 2];
    const Point<Row> first = input(0);
    Point<Row> total = first;
    for (std::size_t j = 1; j <= half; ++j) {
        const Point<Row> a = input(j), b = input(radix - j);
        sums[j - 1] = a + b;
        differences[j - 1] = a - b;
        total = total + sums[j - 1];
    }
    output(0, total);
    for (std::size_t k = 1; k <= half; ++k) {
        Point<Row> even = first, odd = {};
        for (std::size_t j = 0, m = k; j < half; ++j, m = m + k < radix ? m + k : m + k - radix) {
            even = even + circle.re[m] * sums[j];
            odd = odd - circle.im[m] * differences[j];
        }
        output(k, even + quarterTurn(odd));
        output(radix - k, even - quarterTurn(odd));
    }
}

template <Twiddling kTwiddling>
void runLanes(const Pass& pass, const Lanes& lanes)
{
    switch (pass.radix) {
    case 2:
        return runLanes<2, kTwiddling>(lanes);
    case 3:
        return runLanes<3, kTwiddling>(lanes);
    case 4:
        return runLanes<4, kTwiddling>(lanes);
    case 5:
        return runLanes<5, kTwiddling>(lanes);
    case 7:
        return runLanes<7, kTwiddling>(lanes);
    case 8:
        return runLanes<8, kTwiddling>(lanes);
    default:
        for (std::size_t start = 0; start < lanes.count; start += Row::size)
            runRow<kTwiddling>(pass.radix, pass.circle, lanes, start);
    }
}

} // namespace

void run(const Pass& pass, ConstSplit x, Split y)
{
    const auto [radix, stride, groups, twiddles, circle] = pass;
    if (stride == 1 && groups > 1)
        return runLanes<Twiddling::PerLane>(pass, {groups, x, groups, y, 1, twiddles, groups});
    runLanes<Twiddling::None>(pass, {stride, x, groups * stride, y, stride, twiddles, groups});
    for (std::size_t group = 1; group < groups; ++group)
        runLanes<Twiddling::Shared>(pass, {stride, x + group * stride, groups * stride, y + group * radix * stride,
                                           stride, twiddles + group, groups});
}

} // namespace quordsp::backend
