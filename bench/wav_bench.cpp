// What a WAV file costs beyond handing its bytes to the system, on a file system in memory, where nothing but copying
// is timed. Every file is made anew in place of the one before. The peer writes the same samples, full scale -1..1.
// With --benchmark_enable_random_interleaving repetitions take turns, so that a disturbance meets all cases alike.
#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <vector>

#include <benchmark/benchmark.h>
#include <fcntl.h>
#include <sndfile.h>
#include <sys/mman.h>
#include <unistd.h>

#include "QuorDSP_DAQ.h"

namespace {

constexpr int kCount = 10'000'000;
constexpr int kRate = 48000;

const std::vector<float>& samples()
{
    static const auto made = [] {
        std::vector<float> values(kCount);
        std::uint32_t state = 1;
        for (float& value : values) {
            state = state * 1664525u + 1013904223u;
            value = static_cast<float>(state >> 8) * 0x1p-23f - 1.0f;
        }
        return values;
    }();
    return made;
}

void check(bool good)
{
    if (!good)
        std::abort();
}

// A file without a name of its own, so that nothing is left of it however the program ends.
const char* path()
{
    static const std::string made = [] {
        const int file = memfd_create("wav_bench", MFD_CLOEXEC);
        check(file >= 0);
        return "/proc/self/fd/" + std::to_string(file);
    }();
    return made.c_str();
}

void bareWrite(benchmark::State& state)
{
    const std::vector<char> bytes(44 + std::size_t{kCount} * 2 * static_cast<std::size_t>(state.range(0)), 'x');
    for (auto _ : state) {
        const int file = open(path(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0666);
        check(write(file, bytes.data(), bytes.size()) == static_cast<ssize_t>(bytes.size()));
        check(close(file) == 0);
    }
}

void peer(benchmark::State& state)
{
    const int channels = static_cast<int>(state.range(0));
    std::vector<float> frames;
    for (const float sample : samples())
        frames.insert(frames.end(), static_cast<std::size_t>(channels), sample);
    for (auto _ : state) {
        SF_INFO info{};
        info.samplerate = kRate;
        info.channels = channels;
        info.format = SF_FORMAT_WAV | SF_FORMAT_PCM_16;
        SNDFILE* const file = sf_open(path(), SFM_WRITE, &info);
        check(sf_writef_float(file, frames.data(), kCount) == kCount);
        check(sf_close(file) == 0);
    }
}

void writeWavFile(benchmark::State& state)
{
    const float* const input = samples().data();
    for (auto _ : state)
        QuorDSP_WriteWAVFile(path(), input, kCount, kRate, 16, static_cast<int>(state.range(0)));
}

void writeWav(benchmark::State& state)
{
    const float* const input = samples().data();
    for (auto _ : state)
        check(QuorDSP_WriteWAV(path(), input, kCount, kRate) == QUORDSP_SUCCESS);
}

// The other depths, one channel.
void depth(benchmark::State& state)
{
    const float* const input = samples().data();
    for (auto _ : state)
        QuorDSP_WriteWAVFile(path(), input, kCount, kRate, static_cast<int>(state.range(0)), 1);
}

BENCHMARK(bareWrite)->ArgName("channels")->Arg(1)->Arg(2)->Unit(benchmark::kMillisecond);
BENCHMARK(writeWavFile)->ArgName("channels")->Arg(1)->Arg(2)->Unit(benchmark::kMillisecond);
BENCHMARK(writeWav)->Unit(benchmark::kMillisecond);
BENCHMARK(peer)->ArgName("channels")->Arg(1)->Arg(2)->Unit(benchmark::kMillisecond);
BENCHMARK(depth)->ArgName("bits")->Arg(8)->Arg(24)->Arg(32)->Unit(benchmark::kMillisecond);

} // namespace
