// IIR filtering: cascades beside one loop per section in plain C and beside the filters in one call, the direct form
// beside the difference equation in plain C. Per sample; tails are what follows a pulse down to 0.
#include <cmath>
#include <cstring>
#include <memory>
#include <vector>

#include <benchmark/benchmark.h>

#include "nianlys.h"

namespace {

using namespace quordsp::backend;

constexpr std::int64_t kCount = 65536;

std::vector<double> noise(std::int64_t count = kCount)
{
    std::vector<double> samples(static_cast<std::size_t>(count));
    for (std::size_t i = 0; i < samples.size(); ++i)
        samples[i] = static_cast<double>(i * 7919 % 1000) * 1e-3 - 0.5;
    return samples;
}

// Below all normal numbers from early on, and never quite 0.
std::vector<double> tail(std::int64_t count = kCount)
{
    std::vector<double> samples(static_cast<std::size_t>(count), 1e-310);
    samples[0] = 1;
    return samples;
}

struct FreeFilter {
    void operator()(IirFilter* filter) const { FreeIIRFilterPtr(filter); }
};

std::unique_ptr<IirFilter, FreeFilter> lowPass(const benchmark::State& state)
{
    std::unique_ptr<IirFilter, FreeFilter> filter{AllocIIRFilterPtr(0, static_cast<int>(state.range(0)))};
    AALFunc18(1, 0.1, 0, filter.get());
    return filter;
}

void countSamples(benchmark::State& state)
{
    state.SetItemsProcessed(state.iterations() * kCount);
}

void runCascade(benchmark::State& state, const std::vector<double>& x)
{
    const auto filter = lowPass(state);
    std::vector<double> y(x.size());
    for (auto _ : state) {
        AALFunc91(x.data(), kCount, filter.get(), y.data());
        benchmark::ClobberMemory();
    }
    countSamples(state);
}

void cascade(benchmark::State& state)
{
    runCascade(state, noise());
}

void cascadeTail(benchmark::State& state)
{
    runCascade(state, tail());
}

void cascadeComplex(benchmark::State& state)
{
    const auto filter = lowPass(state);
    const std::vector<double> x = noise(2 * kCount);
    std::vector<double> y(x.size());
    for (auto _ : state) {
        AALFunc466(reinterpret_cast<const Complex*>(x.data()), kCount, filter.get(), nullptr,
                   reinterpret_cast<Complex*>(y.data()));
        benchmark::ClobberMemory();
    }
    countSamples(state);
}

// The design included.
void oneCall(benchmark::State& state)
{
    const std::vector<double> x = noise();
    std::vector<double> y(x.size());
    for (auto _ : state) {
        AALFunc21(x.data(), kCount, 1, 0.1, static_cast<int>(state.range(0)), y.data());
        benchmark::ClobberMemory();
    }
    countSamples(state);
}

void oneCallComplex(benchmark::State& state)
{
    const std::vector<double> samples = noise(2 * kCount);
    std::vector<Complex> x(kCount), y(kCount);
    std::memcpy(x.data(), samples.data(), sizeof(Complex) * x.size());
    for (auto _ : state) {
        AALFunc450(x.data(), kCount, 1, 0.1, static_cast<int>(state.range(0)), y.data());
        benchmark::ClobberMemory();
    }
    countSamples(state);
}

void runSection(const double* x, std::int64_t n, const double* a, const double* b, double* s, double* y)
{
    double s0 = s[0], s1 = s[1];
    for (std::int64_t i = 0; i < n; ++i) {
        const double newest = x[i] - a[1] * s1 - a[0] * s0;
        y[i] = b[0] * newest + b[1] * s0 + b[2] * s1;
        s1 = s0;
        s0 = newest;
    }
    s[0] = s0;
    s[1] = s1;
}

void cascadePlainC(benchmark::State& state)
{
    const auto filter = lowPass(state);
    const std::vector<double> x = noise();
    std::vector<double> y(x.size());
    for (auto _ : state) {
        for (int k = 0; 2 * k < filter->reverseCount; ++k)
            runSection(k == 0 ? x.data() : y.data(), kCount, filter->reverse + 2 * k, filter->forward + 3 * k,
                       filter->state + 2 * k, y.data());
        benchmark::ClobberMemory();
    }
    countSamples(state);
}

BENCHMARK(cascade)->Arg(2)->Arg(4)->Arg(8)->Arg(16)->Arg(20);
BENCHMARK(cascadePlainC)->Arg(2)->Arg(4)->Arg(8)->Arg(16)->Arg(20);
BENCHMARK(oneCall)->Arg(2)->Arg(4)->Arg(8)->Arg(16)->Arg(20);
BENCHMARK(oneCallComplex)->Arg(2)->Arg(4)->Arg(8)->Arg(16);
BENCHMARK(cascadeTail)->Arg(2)->Arg(8);
BENCHMARK(cascadeComplex)->Arg(2)->Arg(4)->Arg(8)->Arg(16);

struct DirectForm {
    explicit DirectForm(const benchmark::State& state)
        : a(static_cast<std::size_t>(state.range(0)) + 1), b(a.size()), count{static_cast<int>(a.size())}
    {
        AALFunc19(0, count - 1, 1, 0.2, 0, a.data(), count, b.data(), count);
    }

    std::vector<double> a, b;
    int count;
};

void runDirectForm(benchmark::State& state, const std::vector<double>& x)
{
    const DirectForm filter{state};
    std::vector<double> y(x.size());
    for (auto _ : state) {
        AALFunc92(x.data(), kCount, filter.a.data(), nullptr, filter.count, filter.b.data(), nullptr, filter.count,
                  y.data());
        benchmark::ClobberMemory();
    }
    countSamples(state);
}

void directForm(benchmark::State& state)
{
    runDirectForm(state, noise());
}

void directFormTail(benchmark::State& state)
{
    runDirectForm(state, tail());
}

void directFormComplex(benchmark::State& state)
{
    const DirectForm filter{state};
    const std::vector<double> x = noise(2 * kCount);
    std::vector<double> y(x.size());
    for (auto _ : state) {
        AALFunc354(reinterpret_cast<const Complex*>(x.data()), kCount, filter.a.data(), nullptr, filter.count,
                   filter.b.data(), nullptr, filter.count, reinterpret_cast<Complex*>(y.data()));
        benchmark::ClobberMemory();
    }
    countSamples(state);
}

// Transposed: one multiplication and addition per coefficient and sample.
void directFormPlainC(benchmark::State& state)
{
    const DirectForm filter{state};
    const std::vector<double> x = noise();
    std::vector<double> y(x.size());
    for (auto _ : state) {
        std::vector<double> z(filter.a.size());
        for (std::size_t i = 0; i < x.size(); ++i) {
            const double input = x[i], output = filter.b[0] * input + z[0];
            for (std::size_t k = 1; k + 1 < z.size(); ++k)
                z[k - 1] = z[k] + filter.b[k] * input - filter.a[k] * output;
            z[z.size() - 2] = filter.b[z.size() - 1] * input - filter.a[z.size() - 1] * output;
            y[i] = output;
        }
        benchmark::DoNotOptimize(y.data());
        benchmark::ClobberMemory();
    }
    countSamples(state);
}

void zeroPhase(benchmark::State& state)
{
    const DirectForm filter{state};
    const std::vector<double> x = noise();
    std::vector<double> y(x.size());
    for (auto _ : state) {
        AALFunc385(x.data(), kCount, filter.a.data(), filter.count, filter.b.data(), filter.count, y.data());
        benchmark::ClobberMemory();
    }
    countSamples(state);
}

BENCHMARK(directForm)->Arg(1)->Arg(2)->Arg(4)->Arg(8)->Arg(16)->Arg(32);
BENCHMARK(directFormPlainC)->Arg(2)->Arg(4)->Arg(8)->Arg(16)->Arg(32);
BENCHMARK(directFormTail)->Arg(2)->Arg(8);
BENCHMARK(directFormComplex)->Arg(2)->Arg(4)->Arg(8)->Arg(16);
BENCHMARK(zeroPhase)->Arg(2)->Arg(8);

} // namespace
