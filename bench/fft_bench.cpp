// Transforms through the backend's entries beside FFTW, whose plans are made beforehand and whose arrays are its own.
#include <algorithm>
#include <utility>
#include <vector>

#include <benchmark/benchmark.h>
#include <fftw3.h>

#include "nianlys.h"

namespace {

namespace backend = quordsp::backend;

std::size_t countOf(const benchmark::State& state)
{
    return static_cast<std::size_t>(state.range(0));
}

// Patience is for sizes that it does not cost minutes.
unsigned effort(const benchmark::State& state)
{
    return state.range(0) <= 1 << 16 ? FFTW_PATIENT : FFTW_MEASURE;
}

class FftwArray {
public:
    explicit FftwArray(std::size_t count) : values_{fftw_alloc_complex(count)} {}
    ~FftwArray() { fftw_free(values_); }
    FftwArray(const FftwArray&) = delete;
    FftwArray& operator=(const FftwArray&) = delete;
    void clear(std::size_t count) { std::fill_n(&values_[0][0], 2 * count, 0.0); }
    fftw_complex* complex() { return values_; }
    double* real() { return &values_[0][0]; }

private:
    fftw_complex* values_;
};

void run(benchmark::State& state, fftw_plan plan, FftwArray& array, std::size_t count)
{
    array.clear(count);
    for (auto _ : state)
        fftw_execute(plan);
    fftw_destroy_plan(plan);
}

void complexFftw(benchmark::State& state)
{
    const int n = static_cast<int>(state.range(0));
    FftwArray array{countOf(state)};
    run(state, fftw_plan_dft_1d(n, array.complex(), array.complex(), FFTW_FORWARD, effort(state)), array,
        countOf(state));
}

void complexFft(benchmark::State& state)
{
    std::vector<double> re(countOf(state)), im(countOf(state));
    for (auto _ : state)
        backend::AALFunc77(re.data(), im.data(), state.range(0));
}

void realFftw(benchmark::State& state)
{
    const int n = static_cast<int>(state.range(0));
    FftwArray in{countOf(state)}, out{countOf(state)};
    run(state, fftw_plan_dft_r2c_1d(n, in.real(), out.complex(), effort(state)), in, countOf(state));
}

// Writes the second half of the spectrum, too.
void realFft(benchmark::State& state)
{
    std::vector<double> re(countOf(state)), im(countOf(state));
    for (auto _ : state)
        backend::AALFunc147(re.data(), im.data(), state.range(0));
}

std::size_t elements(const benchmark::State& state)
{
    return static_cast<std::size_t>(state.range(0) * state.range(1));
}

void matrixFftw(benchmark::State& state)
{
    const int rows = static_cast<int>(state.range(0)), columns = static_cast<int>(state.range(1));
    FftwArray in{elements(state)}, out{elements(state)};
    run(state, fftw_plan_dft_2d(rows, columns, in.complex(), out.complex(), FFTW_FORWARD, FFTW_MEASURE), in,
        elements(state));
}

void matrixFft(benchmark::State& state)
{
    const std::vector<backend::Complex> in(elements(state));
    std::vector<backend::Complex> out(in.size());
    for (auto _ : state)
        backend::AALFunc267(in.data(), state.range(0), state.range(1), 0, 0, 0, out.data());
}

void realMatrixFftw(benchmark::State& state)
{
    const int rows = static_cast<int>(state.range(0)), columns = static_cast<int>(state.range(1));
    FftwArray in{elements(state)}, out{elements(state)};
    run(state, fftw_plan_dft_r2c_2d(rows, columns, in.real(), out.complex(), FFTW_MEASURE), in, elements(state));
}

void realMatrixFft(benchmark::State& state)
{
    const std::vector<double> in(elements(state));
    std::vector<backend::Complex> out(in.size());
    for (auto _ : state)
        backend::AALFunc266(in.data(), state.range(0), state.range(1), 0, 0, 0, out.data());
}

void sizes(benchmark::internal::Benchmark* bench)
{
    for (const int n :
         {16, 64, 256, 1000, 1009, 1024, 2187, 4096, 10'000, 15'625, 16'384, 65'536, 100'000, 100'003, 1 << 20})
        bench->Arg(n);
}

void matrices(benchmark::internal::Benchmark* bench)
{
    for (const auto& [rows, columns] : {std::pair{64, 64}, {250, 250}, {1024, 1024}, {3, 4096}, {4096, 3}, {1, 65'536}})
        bench->Args({rows, columns});
}
BENCHMARK(complexFftw)->Apply(sizes);
BENCHMARK(complexFft)->Apply(sizes);
BENCHMARK(realFftw)->Apply(sizes);
BENCHMARK(realFft)->Apply(sizes);
BENCHMARK(matrixFftw)->Apply(matrices);
BENCHMARK(matrixFft)->Apply(matrices);
BENCHMARK(realMatrixFftw)->Apply(matrices);
BENCHMARK(realMatrixFft)->Apply(matrices);

} // namespace
