// Streams of blocks, and single blocks, of accelerometer samples.
#include "QuorDSP_DAQ.h"
#include "reliability/same_results/results.h"
#include "support/integer_signal.h"

namespace quordsp::same_results {
namespace {

struct Block {
    double mode;
    std::size_t count;
};

void append(std::vector<double>& all, const std::vector<double>& more)
{
    all.insert(all.end(), more.begin(), more.end());
}

template <class Export>
Result blockOf(const std::string& name, Export stream, std::vector<double> params, std::size_t count)
{
    auto raw = noise(count, static_cast<std::uint32_t>(count));
    std::vector<double> acceleration(count), velocity(count), displacement(count);
    stream(params.data(), raw.data(), acceleration.data(), velocity.data(), displacement.data(),
           static_cast<int>(count));
    append(acceleration, velocity);
    append(acceleration, displacement);
    return {name, acceleration};
}

// The rate of a first block is that of the call before it: the first of all is there to set it, whatever came before.
void addTrapezoidalStream(Results& results)
{
    const Block blocks[] = {{1, 100}, {1, 1000}, {0, 1000}, {0, 257}, {-3, 33}, {2, 500}, {0, 5}, {1, 1}, {0, 20}};
    std::size_t number = 0;
    for (const auto [mode, count] : blocks) {
        const double rate = number < 5 ? 2000 : 1000;
        const std::vector<double> params{mode, rate, 98.1, 0.25, 0.5, -0.125, 0.625, -0.625, 1e8, -1e8};
        const Result result = blockOf("QuorDSP_Vibration_Acceleration block " + std::to_string(number),
                                      QuorDSP_Vibration_Acceleration, params, count);
        if (number++ > 0)
            results.push_back(result);
    }
}

// A block of one sample leaves a velocity and a displacement of 0; after two, their signs are the same whatever came
// before, as long as it was finite.
void addSimpsonStream(Results& results)
{
    std::size_t number = 0;
    for (const std::size_t count : {1u, 1u, 1000u, 1000u, 257u, 33u, 100u}) {
        const std::vector<double> params{0, number < 5 ? 2000.0 : 1000.0, 98.1, 0.25, 0, 0, 0, 0, 0, 0};
        const Result result =
            blockOf("QuorDSP_Acceleration block " + std::to_string(number), QuorDSP_Acceleration, params, count);
        if (number++ > 1)
            results.push_back(result);
    }
}

void addEuler(Results& results, std::size_t count, std::vector<double> breakpoints)
{
    auto raw = noise(count, static_cast<std::uint32_t>(count));
    std::vector<double> acceleration(count), velocity(count, 0.5), displacement(count, 0.25);
    QuorDSP_Vibration_Acceleration_Euler(raw.data(), static_cast<int>(count), 2000, 0.3, 0.1, 0.5, -0.125, 0.625,
                                         -0.625, 1e8, -1e8, acceleration.data(), velocity.data(), displacement.data(),
                                         breakpoints.data(), static_cast<int>(breakpoints.size()));
    append(acceleration, velocity);
    append(acceleration, displacement);
    results.push_back({"QuorDSP_Vibration_Acceleration_Euler count " + std::to_string(count) + " breakpoints " +
                           std::to_string(breakpoints.size()),
                       acceleration});
}

} // namespace

Results vibrationResults()
{
    Results results;
    addTrapezoidalStream(results);
    addSimpsonStream(results);
    for (const std::size_t count : {1u, 2u, 3u, 20u, 100u, 1000u})
        addEuler(results, count, {});
    addEuler(results, 1000, {400});
    return results;
}

} // namespace quordsp::same_results
