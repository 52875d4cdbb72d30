// Polynomial detrending beside the same least-squares problem solved by LAPACK's dgels, on one thread, from a design
// matrix that is there beforehand. dgels overwrites the matrix: with and without the copy that this takes.
#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <vector>

#include <benchmark/benchmark.h>

#include "QuorDSP_DAQ.h"

extern "C" void dgels_(const char* transposed, const int* rows, const int* columns, const int* rightHandSides,
                       double* a, const int* aStride, double* b, const int* bStride, double* work, const int* workSize,
                       int* info);

namespace {

constexpr int kCount = 51'200;
const std::vector<double> kBreakpoints{12'000.0, 25'000.5, 40'000.0};

std::vector<double> signal()
{
    std::vector<double> samples(kCount);
    for (std::size_t i = 0; i < samples.size(); ++i)
        samples[i] = static_cast<double>(i * 7919 % 1000) * 1e-3 - 0.5;
    return samples;
}

// Order, breakpoints.
void shapes(benchmark::internal::Benchmark* benchmark)
{
    benchmark->Args({1, 0})->Args({3, 0})->Args({5, 0})->Args({15, 0})->Args({5, 3})->Unit(benchmark::kMicrosecond);
}

void detrend(benchmark::State& state)
{
    std::vector<double> samples = signal();
    std::vector<double> breakpoints = kBreakpoints;
    for (auto _ : state) {
        QuorDSP_detrend(samples.data(), kCount, static_cast<int>(state.range(0)), breakpoints.data(),
                        static_cast<int>(state.range(1)));
        benchmark::ClobberMemory();
    }
}
BENCHMARK(detrend)->Apply(shapes);

std::vector<double> designMatrix(int order, int breakpoints)
{
    std::vector<double> matrix;
    const auto add = [&](double place, int power) {
        for (int i = 0; i < kCount; ++i) {
            const double share = std::max((i - place) / (kCount - 1), 0.0);
            double value = 1.0;
            for (int p = 0; p < power; ++p)
                value *= share;
            matrix.push_back(value);
        }
    };
    for (int power = order; power > 0; --power)
        for (int k = 0; k <= breakpoints; ++k)
            add(k == 0 ? 0.0 : kBreakpoints[static_cast<std::size_t>(k - 1)] - 1.0, power);
    add(0.0, 0);
    return matrix;
}

// One call of dgels; with a work size of -1 the answer is the size it would like.
void solve(std::vector<double>& matrix, std::vector<double>& samples, double* work, int workSize)
{
    const int columns = static_cast<int>(matrix.size()) / kCount;
    const int one = 1;
    int info;
    dgels_("N", &kCount, &columns, &one, matrix.data(), &kCount, samples.data(), &kCount, work, &workSize, &info);
    if (info != 0)
        std::abort();
}

double seconds()
{
    return std::chrono::duration<double>(std::chrono::steady_clock::now().time_since_epoch()).count();
}

void timeDgels(benchmark::State& state, bool withCopy)
{
    const std::vector<double> design = designMatrix(static_cast<int>(state.range(0)), static_cast<int>(state.range(1)));
    const std::vector<double> samples = signal();
    std::vector<double> matrix = design;
    std::vector<double> solution = samples;
    double bestSize;
    solve(matrix, solution, &bestSize, -1);
    std::vector<double> work(static_cast<std::size_t>(bestSize));
    for (auto _ : state) {
        const double begin = seconds();
        std::ranges::copy(design, matrix.begin());
        std::ranges::copy(samples, solution.begin());
        const double copied = seconds();
        solve(matrix, solution, work.data(), static_cast<int>(work.size()));
        state.SetIterationTime(seconds() - (withCopy ? begin : copied));
    }
}

void dgels(benchmark::State& state)
{
    timeDgels(state, false);
}
BENCHMARK(dgels)->Apply(shapes)->UseManualTime();

void dgelsWithCopy(benchmark::State& state)
{
    timeDgels(state, true);
}
BENCHMARK(dgelsWithCopy)->Apply(shapes)->UseManualTime();

} // namespace
