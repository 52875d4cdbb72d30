// What an IIR design costs, by family: the cascade of a band-pass filter; and Bessel filters of high order, whose time
// grows with the cube of the order.
#include <cstdlib>
#include <memory>

#include <benchmark/benchmark.h>

#include "nianlys.h"

namespace {

using namespace quordsp::backend;

struct FreeFilter {
    void operator()(IirFilter* filter) const { FreeIIRFilterPtr(filter); }
};

template <class Design>
void repeat(benchmark::State& state, const Design& design)
{
    const std::unique_ptr<IirFilter, FreeFilter> filter{AllocIIRFilterPtr(2, static_cast<int>(state.range(0)))};
    for (auto _ : state)
        if (design(filter.get()) != Status::Success)
            std::abort();
}

void butterworth(benchmark::State& state)
{
    repeat(state, [](IirFilter* filter) { return AALFunc18(1, 0.1, 0.2, filter); });
}

void bessel(benchmark::State& state)
{
    repeat(state, [](IirFilter* filter) { return AALFunc12(1, 0.1, 0.2, filter); });
}

void chebyshev(benchmark::State& state)
{
    repeat(state, [](IirFilter* filter) { return AALFunc24(1, 0.1, 0.2, 0.1, filter); });
}

void inverseChebyshev(benchmark::State& state)
{
    repeat(state, [](IirFilter* filter) { return AALFunc98(1, 0.1, 0.2, 60, filter); });
}

void elliptic(benchmark::State& state)
{
    repeat(state, [](IirFilter* filter) { return AALFunc61(1, 0.1, 0.2, 0.1, 60, filter); });
}

// The filter in one call, on a single sample.
void butterworthOneCall(benchmark::State& state)
{
    double x = 1, y = 0;
    for (auto _ : state)
        if (AALFunc16(&x, 1, 1, 0.1, 0.2, static_cast<int>(state.range(0)), &y) != Status::Success)
            std::abort();
}

BENCHMARK(butterworth)->ArgName("order")->Arg(8);
BENCHMARK(butterworthOneCall)->ArgName("order")->Arg(8);
BENCHMARK(bessel)->ArgName("order")->Arg(8)->Arg(20)->Arg(100)->Arg(300);
BENCHMARK(chebyshev)->ArgName("order")->Arg(8);
BENCHMARK(inverseChebyshev)->ArgName("order")->Arg(8);
BENCHMARK(elliptic)->ArgName("order")->Arg(8);

} // namespace
