// The median filter beside the running median of another library.
#include <vector>

#include <benchmark/benchmark.h>
#include <gsl/gsl_filter.h>

#include "nianlys.h"

namespace {

constexpr std::size_t kCount = 65536;

// Linear congruences: neither sorted nor periodic within the windows.
std::vector<double> noise()
{
    std::vector<double> samples(kCount);
    std::uint32_t random = 1;
    for (double& sample : samples) {
        random = random * 1664525 + 1013904223;
        sample = random * 0x1p-32 - 0.5;
    }
    return samples;
}

void countSamples(benchmark::State& state)
{
    state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(kCount));
}

void runMedianFilter(benchmark::State& state, const std::vector<double>& x)
{
    std::vector<double> y(kCount);
    for (auto _ : state) {
        quordsp::backend::AALFunc407(x.data(), kCount, state.range(0) / 2, -1, y.data());
        benchmark::ClobberMemory();
    }
    countSamples(state);
}

void medianFilter(benchmark::State& state)
{
    runMedianFilter(state, noise());
}

// Below the normal numbers.
void medianFilterTail(benchmark::State& state)
{
    std::vector<double> x = noise();
    for (double& sample : x)
        sample *= 1e-310;
    runMedianFilter(state, x);
}

void medianFilterGsl(benchmark::State& state)
{
    std::vector<double> x = noise(), y(kCount);
    gsl_filter_median_workspace* const workspace = gsl_filter_median_alloc(static_cast<std::size_t>(state.range(0)));
    const gsl_vector_const_view in = gsl_vector_const_view_array(x.data(), kCount);
    gsl_vector_view out = gsl_vector_view_array(y.data(), kCount);
    for (auto _ : state) {
        gsl_filter_median(GSL_FILTER_END_PADZERO, &in.vector, &out.vector, workspace);
        benchmark::ClobberMemory();
    }
    gsl_filter_median_free(workspace);
    countSamples(state);
}

BENCHMARK(medianFilter)->Arg(3)->Arg(5)->Arg(9)->Arg(11)->Arg(25)->Arg(101)->Arg(1001)->Arg(10001);
BENCHMARK(medianFilterTail)->Arg(3)->Arg(11)->Arg(101);
BENCHMARK(medianFilterGsl)->Arg(3)->Arg(5)->Arg(9)->Arg(11)->Arg(25)->Arg(101)->Arg(1001)->Arg(10001);

} // namespace
