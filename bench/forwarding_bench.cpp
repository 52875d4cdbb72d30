// What an export costs on top of the backend's entry: both are called through a pointer, as a client calls them.
#include <cstdio>
#include <cstdlib>

#include <benchmark/benchmark.h>
#include <dlfcn.h>

#include "QuorDSP_DAQ.h"
#include "nianlys.h"

namespace {

using Direct = decltype(quordsp::backend::AALFunc21);

// Loaded under its bare name, it is the backend that the library finds.
Direct* entryOfIdleBackend()
{
    void* const backend = dlopen(IDLE_BACKEND, RTLD_NOW);
    void* const entry = backend ? dlsym(backend, "AALFunc21") : nullptr;
    if (!entry) {
        std::fprintf(stderr, "%s\n", dlerror());
        std::exit(1);
    }
    return reinterpret_cast<Direct*>(entry);
}

template <class Function>
void callOften(benchmark::State& state, Function* function)
{
    double sample = 0.0;
    for (auto _ : state) {
        benchmark::DoNotOptimize(function);
        benchmark::DoNotOptimize(function(&sample, 1, 1000.0, 100.0, 2, &sample));
    }
}

void directIndirectCall(benchmark::State& state)
{
    callOften(state, entryOfIdleBackend());
}
BENCHMARK(directIndirectCall);

// The least that any forwarding takes: one more jump.
Direct* jumpTarget = nullptr;

[[gnu::naked]] quordsp::backend::Status bareJump(const double*, std::int64_t, double, double, std::int32_t,
                                                 double*) noexcept
{
    asm("jmpq *%0" : : "m"(jumpTarget));
}

void oneMoreJump(benchmark::State& state)
{
    jumpTarget = entryOfIdleBackend();
    callOften(state, bareJump);
}
BENCHMARK(oneMoreJump);

void forwardedCall(benchmark::State& state)
{
    entryOfIdleBackend();
    callOften(state, QuorDSP_Bw_LPF);
}
BENCHMARK(forwardedCall);

} // namespace
