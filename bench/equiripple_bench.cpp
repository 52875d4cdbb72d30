// Equiripple designs, whose time grows with the square of the taps, and narrow-band designs. Argument: taps.
#include <vector>

#include <benchmark/benchmark.h>

#include "nianlys.h"

namespace {

using namespace quordsp::backend;

// A transition band of 3 / taps: the ripple is the same for all of them.
void lowPass(benchmark::State& state)
{
    const auto taps = static_cast<std::int32_t>(state.range(0));
    std::vector<double> h(static_cast<std::size_t>(taps));
    double ripple = 0;
    for (auto _ : state)
        if (AALFunc69(1, 0.2, 0.2 + 3.0 / taps, taps, h.data(), &ripple) != Status::Success)
            state.SkipWithError("no design");
    state.counters["ripple"] = ripple;
}
BENCHMARK(lowPass)->Arg(24)->Arg(101)->Arg(301)->Arg(1001)->Arg(4095)->Unit(benchmark::kMillisecond);

// The best filter of so many taps has a ripple that double cannot hold.
void lowPassAtTheFloor(benchmark::State& state)
{
    const auto taps = static_cast<std::int32_t>(state.range(0));
    std::vector<double> h(static_cast<std::size_t>(taps));
    double ripple = 0;
    for (auto _ : state)
        AALFunc69(1, 0.2, 0.25, taps, h.data(), &ripple);
    state.counters["ripple"] = ripple;
}
BENCHMARK(lowPassAtTheFloor)->Arg(1001)->Unit(benchmark::kMillisecond);

// Argument: the pass band, in thousandths of the sampling frequency; the stop band is half as wide again.
void narrowBand(benchmark::State& state)
{
    const double pass = static_cast<double>(state.range(0)) * 1e-3;
    FirFilter* const filter = AALFunc491();
    for (auto _ : state)
        if (AALFunc409(1, pass, 1.5 * pass, 0, 0.01, 60, 0, filter) != Status::Success)
            state.SkipWithError("no design");
    state.counters["model"] = static_cast<double>(filter->modelCount);
    state.counters["suppressor"] = static_cast<double>(filter->imageCount);
    AALFunc492(filter);
}
BENCHMARK(narrowBand)->Arg(2)->Arg(10)->Arg(50)->Unit(benchmark::kMillisecond);

} // namespace
