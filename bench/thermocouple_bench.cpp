// A million thermocouple voltages over the whole range of a type, beside the plain loop: in rising order, where
// branches are foreseen, and shuffled, where they are not. Every case first makes sure that both give the same bits.
#include <algorithm>
#include <bit>
#include <cstdint>
#include <random>
#include <string>
#include <vector>

#include <benchmark/benchmark.h>

#include "QuorDSP_DAQ.h"
#include "numeric/thermocouple.h"
#include "reference/thermocouple.h"

namespace {

using Samples = std::vector<double>;

constexpr int kCount = 1'000'000;
constexpr double kNoColdJunction = 1500.0;

enum class Order : std::uint8_t { Rising, Shuffled };

struct Type {
    int code;
    char letter;
    double low;
    double high;
};
constexpr Type kTypes[] = {{0, 'B', 0.0, 13.8},   {1, 'E', -9.8, 76.3}, {2, 'J', -8.1, 69.5},  {3, 'K', -6.4, 54.8},
                           {4, 'R', -0.24, 21.1}, {5, 'S', -0.2, 18.6}, {6, 'T', -6.2, 20.88}, {7, 'N', -4.3, 47.5}};

Samples voltages(const Type& type, Order order)
{
    Samples emf(kCount);
    for (int i = 0; i < kCount; ++i)
        emf[static_cast<std::size_t>(i)] = type.low + (type.high - type.low) * i / kCount;
    if (order == Order::Shuffled)
        std::shuffle(emf.begin(), emf.end(), std::mt19937{1});
    return emf;
}

int plainLoop(const double* emf, int type, double* temperature)
{
    return quordsp::reference::thermocouple(emf, kCount, 0, type, kNoColdJunction, temperature);
}

int ofLibrary(double* emf, int type, double* temperature)
{
    return QuorDSP_Thermocouple(emf, kCount, 0, type, kNoColdJunction, temperature);
}

template <quordsp::InstructionSet kSet>
int version(double* emf, int type, double* temperature)
{
    return quordsp::invert(kSet, quordsp::kInverseFunctions[type], emf, kCount, 0, 0.0f, temperature);
}

template <class Convert>
void measure(benchmark::State& state, Convert* convert, const Type& type, Order order)
{
    Samples emf = voltages(type, order);
    Samples expected(kCount);
    Samples temperature(kCount);
    plainLoop(emf.data(), type.code, expected.data());
    convert(emf.data(), type.code, temperature.data());
    const auto sameBits = [](double a, double b) {
        return std::bit_cast<std::uint64_t>(a) == std::bit_cast<std::uint64_t>(b);
    };
    if (!std::equal(expected.begin(), expected.end(), temperature.begin(), sameBits)) {
        state.SkipWithError("not the bits of the plain loop");
        return;
    }
    for (auto _ : state) {
        benchmark::DoNotOptimize(convert(emf.data(), type.code, temperature.data()));
        benchmark::ClobberMemory();
    }
    state.SetItemsProcessed(state.iterations() * kCount);
}

template <class Convert>
void add(const char* what, Convert* convert, const Type& type)
{
    for (const Order order : {Order::Rising, Order::Shuffled}) {
        const std::string name =
            std::string{"type"} + type.letter + (order == Order::Rising ? "/rising/" : "/shuffled/") + what;
        benchmark::RegisterBenchmark(name.c_str(), [=](benchmark::State& state) {
            measure(state, convert, type, order);
        })->Unit(benchmark::kMicrosecond);
    }
}

const bool kAdded = [] {
    using enum quordsp::InstructionSet;
    for (const Type& type : kTypes) {
        add("plain", plainLoop, type);
        add("library", ofLibrary, type);
        if (type.letter != 'K')
            continue;
        add("baseline", version<Baseline>, type);
        if (quordsp::bestInstructionSet() >= Avx2)
            add("avx2", version<Avx2>, type);
        if (quordsp::bestInstructionSet() >= Avx512)
            add("avx512", version<Avx512>, type);
    }
    return true;
}();

void oneSample(benchmark::State& state)
{
    double emf = 1.0;
    double temperature = 0.0;
    for (auto _ : state) {
        benchmark::DoNotOptimize(QuorDSP_Thermocouple(&emf, 1, 0, 3, 25.0, &temperature));
        benchmark::ClobberMemory();
    }
}
BENCHMARK(oneSample);

} // namespace
