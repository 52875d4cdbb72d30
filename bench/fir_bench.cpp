// FIR filtering of a million samples: direct sums and, where they pay, Fourier transforms, beside overlap-save on
// FFTW's plans and a plain loop. Argument: taps, or the points of local fits. Tails ought to take no longer than noise.
#include <bit>
#include <cmath>
#include <vector>

#include <benchmark/benchmark.h>
#include <fftw3.h>

#include "nianlys.h"

namespace {

using namespace quordsp::backend;

constexpr std::size_t kCount = 1'000'000;

double noiseAt(std::size_t i)
{
    return static_cast<double>(i * 7919 % 1000) * 1e-3 - 0.5;
}

std::vector<double> noise(std::size_t count)
{
    std::vector<double> samples(count);
    for (std::size_t i = 0; i < count; ++i)
        samples[i] = noiseAt(i);
    return samples;
}

template <class Sample, class Filter>
void run(benchmark::State& state, const std::vector<Sample>& x, Filter filter)
{
    const std::vector<double> h = noise(static_cast<std::size_t>(state.range(0)));
    std::vector<Sample> y(kCount);
    for (auto _ : state) {
        filter(x, h, y);
        benchmark::DoNotOptimize(y.data());
        benchmark::ClobberMemory();
    }
    state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(kCount));
}

void counts(benchmark::internal::Benchmark* benchmark)
{
    benchmark->Arg(16)->Arg(64)->Arg(256)->Arg(1024)->Unit(benchmark::kMillisecond);
}

void directSums(benchmark::State& state)
{
    run(state, noise(kCount), [](const auto& x, const auto& h, auto& y) {
        AALFunc352(x.data(), kCount, h.data(), nullptr, static_cast<int>(h.size()), y.data());
    });
}
BENCHMARK(directSums)->Apply(counts);

void directSumsOfComplex(benchmark::State& state)
{
    std::vector<Complex> signal;
    for (std::size_t i = 0; i < kCount; ++i)
        signal.push_back({noiseAt(i), noiseAt(i + 5)});
    run(state, signal, [](const auto& x, const auto& h, auto& y) {
        AALFunc353(x.data(), kCount, h.data(), nullptr, static_cast<int>(h.size()), y.data());
    });
}
BENCHMARK(directSumsOfComplex)->Apply(counts);

// All below the normal numbers.
void directSumsOfATail(benchmark::State& state)
{
    run(state, std::vector<double>(kCount, 1e-310), [](const auto& x, const auto& h, auto& y) {
        AALFunc352(x.data(), kCount, h.data(), nullptr, static_cast<int>(h.size()), y.data());
    });
}
BENCHMARK(directSumsOfATail)->Apply(counts);

// Through all magnitudes down to 0.
std::vector<double> decay()
{
    std::vector<double> samples = noise(kCount);
    for (std::size_t i = 0; i < kCount; ++i)
        samples[i] *= std::exp(-750.0 * static_cast<double>(i) / kCount);
    return samples;
}

void designAndFilter(benchmark::State& state, const std::vector<double>& x)
{
    run(state, x, [](const auto& in, const auto& h, auto& out) {
        AALFunc481(in.data(), kCount, static_cast<int>(h.size()), 1, 0.1, 2, 0, out.data());
    });
}
BENCHMARK_CAPTURE(designAndFilter, noise, noise(kCount))->Apply(counts)->Arg(16384);
BENCHMARK_CAPTURE(designAndFilter, decay, decay())->Apply(counts)->Arg(16384);

void localFits(benchmark::State& state, const std::vector<double>& x)
{
    run(state, x, [](const auto& in, const auto& h, auto& out) {
        AALFunc356(in.data(), kCount, 3, static_cast<int>(h.size()) / 2, nullptr, out.data());
    });
}
BENCHMARK_CAPTURE(localFits, noise, noise(kCount))->Arg(11)->Arg(101)->Arg(1001)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(localFits, decay, decay())->Arg(11)->Arg(101)->Arg(1001)->Unit(benchmark::kMillisecond);

void plainLoop(const std::vector<double>& x, const std::vector<double>& h, std::vector<double>& y)
{
    for (std::size_t i = 0; i < x.size(); ++i) {
        double sum = 0;
        for (std::size_t j = 0; j < h.size() && j <= i; ++j)
            sum += h[j] * x[i - j];
        y[i] = sum;
    }
}

void plainLoop(benchmark::State& state)
{
    run(state, noise(kCount), [](const auto& x, const auto& h, auto& y) { plainLoop(x, h, y); });
}
BENCHMARK(plainLoop)->Apply(counts);

// Its plans are measured beforehand; the size of the transforms is the best of those tried for these counts of taps.
class FftwOverlapSave {
public:
    explicit FftwOverlapSave(const std::vector<double>& h)
        : history_{h.size() - 1},
          size_{std::max<std::size_t>(2048, std::bit_ceil(8 * h.size()))},
          values_{fftw_alloc_real(size_)},
          spectrum_{fftw_alloc_complex(size_ / 2 + 1)},
          response_{fftw_alloc_complex(size_ / 2 + 1)},
          forward_{fftw_plan_dft_r2c_1d(static_cast<int>(size_), values_, spectrum_, FFTW_MEASURE)},
          inverse_{fftw_plan_dft_c2r_1d(static_cast<int>(size_), spectrum_, values_, FFTW_MEASURE)}
    {
        std::fill_n(values_, size_, 0.0);
        for (std::size_t j = 0; j < h.size(); ++j)
            values_[j] = h[j] / static_cast<double>(size_);
        fftw_execute_dft_r2c(forward_, values_, response_);
    }
    FftwOverlapSave(const FftwOverlapSave&) = delete;
    FftwOverlapSave& operator=(const FftwOverlapSave&) = delete;
    ~FftwOverlapSave()
    {
        fftw_destroy_plan(forward_);
        fftw_destroy_plan(inverse_);
        fftw_free(values_);
        fftw_free(spectrum_);
        fftw_free(response_);
    }

    void filter(const std::vector<double>& x, std::vector<double>& y)
    {
        const std::size_t block = size_ - history_;
        for (std::size_t done = 0; done < x.size(); done += block) {
            for (std::size_t i = 0; i < size_; ++i)
                values_[i] = done + i < history_ || done + i - history_ >= x.size() ? 0.0 : x[done + i - history_];
            fftw_execute(forward_);
            multiply();
            fftw_execute(inverse_);
            const std::size_t length = std::min(block, x.size() - done);
            std::copy_n(values_ + history_, length, y.begin() + static_cast<std::ptrdiff_t>(done));
        }
    }

private:
    void multiply()
    {
        for (std::size_t k = 0; k <= size_ / 2; ++k) {
            const double re = spectrum_[k][0], im = spectrum_[k][1];
            spectrum_[k][0] = re * response_[k][0] - im * response_[k][1];
            spectrum_[k][1] = re * response_[k][1] + im * response_[k][0];
        }
    }

    std::size_t history_, size_;
    double* values_;
    fftw_complex *spectrum_, *response_;
    fftw_plan forward_, inverse_;
};

void fftwOverlapSave(benchmark::State& state)
{
    FftwOverlapSave filter(noise(static_cast<std::size_t>(state.range(0))));
    run(state, noise(kCount), [&](const auto& x, const auto&, auto& y) { filter.filter(x, y); });
}
BENCHMARK(fftwOverlapSave)->Apply(counts)->Arg(16384);

} // namespace
