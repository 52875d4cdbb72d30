// Sort beside the standard library's and the fastest known; extrema beside a copy of the samples; the peak detector at
// all widths.
#include <algorithm>
#include <cmath>
#include <cstring>
#include <random>
#include <vector>

#include <benchmark/benchmark.h>
#include <hwy/contrib/sort/vqsort.h>

#include "nianlys.h"

namespace {

namespace backend = quordsp::backend;
using Array = std::vector<double>;

Array uniform(std::size_t n)
{
    std::mt19937_64 generator{1};
    std::uniform_real_distribution<double> distribution{-1, 1};
    Array x(n);
    for (double& value : x)
        value = distribution(generator);
    return x;
}

Array ascending(std::size_t n)
{
    Array x = uniform(n);
    std::sort(x.begin(), x.end());
    return x;
}

Array descending(std::size_t n)
{
    Array x = ascending(n);
    std::reverse(x.begin(), x.end());
    return x;
}

Array fewValues(std::size_t n)
{
    Array x = uniform(n);
    for (double& value : x)
        value = std::round(value * 8);
    return x;
}

using Sorter = void(const Array& x, Array& y);

void entry(const Array& x, Array& y)
{
    backend::AALFunc160(x.data(), static_cast<std::int64_t>(x.size()), 0, y.data());
}

void standard(const Array& x, Array& y)
{
    y = x;
    std::sort(y.begin(), y.end());
}

void highway(const Array& x, Array& y)
{
    y = x;
    hwy::Sorter{}(y.data(), y.size(), hwy::SortAscending{});
}

void sort(benchmark::State& state, Sorter* sorter, Array (*input)(std::size_t))
{
    const Array x = input(static_cast<std::size_t>(state.range(0)));
    Array y = x;
    for (auto _ : state) {
        sorter(x, y);
        benchmark::ClobberMemory();
    }
    state.SetItemsProcessed(state.iterations() * state.range(0));
}

#define SORT_BENCHMARK(sorter, input)                                                                                  \
    BENCHMARK_CAPTURE(sort, sorter##_##input, sorter, input)->RangeMultiplier(10)->Range(1'000, 10'000'000)
SORT_BENCHMARK(entry, uniform);
SORT_BENCHMARK(entry, ascending);
SORT_BENCHMARK(entry, descending);
SORT_BENCHMARK(entry, fewValues);
SORT_BENCHMARK(standard, uniform);
SORT_BENCHMARK(standard, ascending);
SORT_BENCHMARK(standard, descending);
SORT_BENCHMARK(standard, fewValues);
SORT_BENCHMARK(highway, uniform);
SORT_BENCHMARK(highway, ascending);
SORT_BENCHMARK(highway, descending);
SORT_BENCHMARK(highway, fewValues);

void maxMin(benchmark::State& state)
{
    const Array x = uniform(static_cast<std::size_t>(state.range(0)));
    double extremes[2];
    std::int64_t places[2];
    for (auto _ : state) {
        backend::AALFunc120(x.data(), state.range(0), &extremes[0], &places[0], &extremes[1], &places[1]);
        benchmark::DoNotOptimize(extremes);
    }
    state.SetBytesProcessed(state.iterations() * state.range(0) * 8);
}
BENCHMARK(maxMin)->Arg(1'000)->Arg(1'000'000);

void standardMinmax(benchmark::State& state)
{
    const Array x = uniform(static_cast<std::size_t>(state.range(0)));
    for (auto _ : state)
        benchmark::DoNotOptimize(std::minmax_element(x.begin(), x.end()));
    state.SetBytesProcessed(state.iterations() * state.range(0) * 8);
}
BENCHMARK(standardMinmax)->Arg(1'000)->Arg(1'000'000);

void copyOfSamples(benchmark::State& state)
{
    const Array x = uniform(static_cast<std::size_t>(state.range(0)));
    Array y = x;
    for (auto _ : state) {
        std::memcpy(y.data(), x.data(), 8 * x.size());
        benchmark::ClobberMemory();
    }
    state.SetBytesProcessed(state.iterations() * state.range(0) * 8);
}
BENCHMARK(copyOfSamples)->Arg(1'000)->Arg(1'000'000);

void integrate(benchmark::State& state)
{
    Array x = uniform(static_cast<std::size_t>(state.range(0)));
    Array y = x;
    for (auto _ : state) {
        backend::AALFunc95(x.data(), state.range(0), 0.5, 0, 0, y.data());
        benchmark::ClobberMemory();
    }
    state.SetItemsProcessed(state.iterations() * state.range(0));
}
BENCHMARK(integrate)->Arg(1'000)->Arg(1'000'000);

Array sine(std::size_t n)
{
    Array x(n);
    for (std::size_t i = 0; i < n; ++i)
        x[i] = std::sin(0.01 * static_cast<double>(i));
    return x;
}

void peaks(benchmark::State& state, Array (*input)(std::size_t))
{
    const Array x = input(3'000'000);
    for (auto _ : state) {
        std::int64_t count = 0;
        double* found[3];
        backend::AALFunc194(x.data(), static_cast<std::int64_t>(x.size()), 0, state.range(0), 0, 1, 1, &count,
                            &found[0], &found[1], &found[2]);
        for (double* array : found)
            backend::AALFunc238(array);
    }
    state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(x.size()));
}
BENCHMARK_CAPTURE(peaks, sine, sine)->Arg(3)->Arg(5)->Arg(11)->Arg(101)->Arg(1024)->Arg(1025)->Arg(1'000'000);
BENCHMARK_CAPTURE(peaks, noise, uniform)->Arg(3)->Arg(11)->Arg(101)->Arg(1024)->Arg(1025)->Arg(1'000'000);

} // namespace
