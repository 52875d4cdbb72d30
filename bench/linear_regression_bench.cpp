// The removal of a line beside the least that its fixed order of sums takes: one chain of additions over the samples,
// and one pass that updates them.
#include <vector>

#include <benchmark/benchmark.h>

#include "QuorDSP_DAQ.h"

namespace {

std::vector<double> signal(const benchmark::State& state)
{
    std::vector<double> samples(static_cast<std::size_t>(state.range(0)));
    for (std::size_t i = 0; i < samples.size(); ++i)
        samples[i] = static_cast<double>(i * 7919 % 1000) * 1e-3 - 0.5;
    return samples;
}

double sumInOrder(const std::vector<double>& samples)
{
    double sum = 0.0;
    for (const double sample : samples)
        sum += sample;
    return sum;
}

void chainOfAdditions(benchmark::State& state)
{
    const std::vector<double> samples = signal(state);
    for (auto _ : state)
        benchmark::DoNotOptimize(sumInOrder(samples));
}
BENCHMARK(chainOfAdditions)->Arg(10'000)->Arg(1'000'000);

void chainOfAdditionsAndUpdate(benchmark::State& state)
{
    std::vector<double> samples = signal(state);
    for (auto _ : state) {
        const double sum = sumInOrder(samples) * 1e-300;
        for (double& sample : samples)
            sample -= sum;
        benchmark::ClobberMemory();
    }
}
BENCHMARK(chainOfAdditionsAndUpdate)->Arg(10'000)->Arg(1'000'000);

void linearRegression(benchmark::State& state)
{
    std::vector<double> samples = signal(state);
    for (auto _ : state) {
        linear_regression(samples.data(), static_cast<int>(samples.size()));
        benchmark::ClobberMemory();
    }
}
BENCHMARK(linearRegression)->Arg(10'000)->Arg(1'000'000);

} // namespace
