// What a complex export costs besides the backend's work: packing and unpacking, beside memcpy of the same bytes, for
// each instruction set; and a whole call with an entry that does nothing, beside the same copies through memory that is
// as fresh. The linker puts the answers of this program in the place of the library's own functions.
#include <cstdlib>
#include <cstring>
#include <memory>
#include <string>
#include <vector>

#include <benchmark/benchmark.h>

#include "QuorDSP_DAQ.h"
#include "complex/packed_block.h"
#include "cpu/instruction_set.h"
#include "frame/entry.h"

namespace {
auto chosen = quordsp::InstructionSet::Baseline;

quordsp::Status idle(quordsp::ComplexSample* /*in*/, quordsp::Size /*n*/, double /*fs*/, double /*fc*/, int /*order*/,
                     quordsp::ComplexSample* /*out*/)
{
    return QUORDSP_SUCCESS;
}
} // namespace

extern "C" quordsp::InstructionSet __real__ZN7quordsp18bestInstructionSetEv();
extern "C" quordsp::InstructionSet __wrap__ZN7quordsp18bestInstructionSetEv()
{
    return chosen;
}

extern "C" quordsp::Binding __wrap__ZN7quordsp9bindEntryEPKc(const char* /*name*/)
{
    return {reinterpret_cast<quordsp::os::Symbol>(&idle), QUORDSP_SUCCESS};
}

namespace quordsp {
namespace {

// Whether the two arrays on the caller's side lie alike in the lines of the cache.
enum class Place : std::uint8_t { Alike, Apart };

class Signal {
public:
    explicit Signal(const benchmark::State& state, Place place = Place::Alike)
        : packed(static_cast<std::size_t>(state.range(0)), ComplexSample{2.0, 3.0}),
          re_(packed.size() + 16, 1.0),
          im_(re_)
    {
        re = lineIn(re_) + 2;
        im = lineIn(im_) + (place == Place::Alike ? 2 : 4);
    }

    Size n() const { return static_cast<Size>(packed.size()); }
    std::size_t bytes() const { return packed.size() * sizeof(ComplexSample); }

    std::vector<ComplexSample> packed;
    double* re;
    double* im;

private:
    static double* lineIn(std::vector<double>& numbers)
    {
        void* start = numbers.data();
        std::size_t room = numbers.size() * sizeof(double);
        return static_cast<double*>(std::align(64, sizeof(double), start, room));
    }

    std::vector<double> re_;
    std::vector<double> im_;
};

void sizes(benchmark::internal::Benchmark* benchmark)
{
    benchmark->Arg(1'000)->Arg(10'000)->Arg(1'000'000);
}

template <class Work>
void repeat(benchmark::State& state, Work work)
{
    for (auto _ : state) {
        work();
        benchmark::ClobberMemory();
    }
}

void copy(benchmark::State& state)
{
    Signal signal{state};
    const std::vector<ComplexSample> from = signal.packed;
    benchmark::DoNotOptimize(from.data());
    benchmark::DoNotOptimize(signal.packed.data());
    repeat(state, [&] { std::memcpy(signal.packed.data(), from.data(), signal.bytes()); });
}

BENCHMARK(copy)->Apply(sizes);

void packing(benchmark::State& state)
{
    Signal signal{state};
    repeat(state, [&] { pack({signal.re, signal.im}, signal.n(), signal.packed.data()); });
}

template <Place place>
void unpacking(benchmark::State& state)
{
    Signal signal{state, place};
    repeat(state, [&] { unpack(signal.packed.data(), signal.n(), {signal.re, signal.im}); });
}

void copyThroughFreshBlock(benchmark::State& state)
{
    Signal signal{state};
    benchmark::DoNotOptimize(signal.packed.data());
    repeat(state, [&] {
        void* block = std::malloc(signal.bytes());
        std::memcpy(block, signal.packed.data(), signal.bytes());
        benchmark::DoNotOptimize(block);
        benchmark::ClobberMemory();
        std::memcpy(signal.packed.data(), block, signal.bytes());
        std::free(block);
    });
}

BENCHMARK(copyThroughFreshBlock)->Apply(sizes);

void wholeCall(benchmark::State& state)
{
    Signal signal{state};
    repeat(state, [&] {
        QuorDSP_CxBw_LPF(signal.re, signal.im, static_cast<int>(signal.n()), 1000.0, 100.0, 4, signal.re, signal.im);
    });
}

void addVersions(const char* name, void (*function)(benchmark::State&))
{
    const InstructionSet best = __real__ZN7quordsp18bestInstructionSetEv();
    constexpr const char* kNames[] = {"/baseline", "/avx2", "/avx512"};
    for (const InstructionSet set : {InstructionSet::Baseline, InstructionSet::Avx2, InstructionSet::Avx512})
        if (set <= best) {
            const auto measure = [=](benchmark::State& state) {
                chosen = set;
                function(state);
            };
            const std::string version = name + std::string{kNames[static_cast<int>(set)]};
            benchmark::RegisterBenchmark(version.c_str(), measure)->Apply(sizes);
        }
}

const bool kAdded = [] {
    addVersions("pack", packing);
    addVersions("unpack", unpacking<Place::Alike>);
    addVersions("unpackApart", unpacking<Place::Apart>);
    addVersions("wholeCall", wholeCall);
    return true;
}();

} // namespace
} // namespace quordsp
