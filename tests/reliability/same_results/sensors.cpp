// Thermocouples of every type in every unit, and ratios in decibels.
#include <limits>

#include "QuorDSP_DAQ.h"
#include "reliability/same_results/results.h"
#include "support/integer_signal.h"

namespace quordsp::same_results {
namespace {

constexpr double kNan = std::numeric_limits<double>::quiet_NaN();
constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kNoCompensation = 2000;

// From first to last in equal steps.
std::vector<double> sweep(double first, double last, int steps)
{
    std::vector<double> values;
    for (int i = 0; i <= steps; ++i)
        values.push_back(first + (last - first) * i / steps);
    return values;
}

Result converted(std::string name, std::vector<double> emf, int unit, int type, double coldJunction,
                 std::uint64_t tolerance)
{
    name = "QuorDSP_Thermocouple type " + std::to_string(type) + " unit " + std::to_string(unit) + name;
    std::vector<double> temperature(emf.size(), -1.0);
    QuorDSP_Thermocouple(emf.data(), static_cast<int>(emf.size()), unit, type, coldJunction, temperature.data());
    return {name, temperature, tolerance};
}

} // namespace

Results thermocoupleResults()
{
    Results results;
    const std::vector<double> wide = sweep(-12, 80, 9200);
    const std::vector<double> narrow = sweep(-6.47, 54.89, 6136); // type K stops outside
    const std::vector<double> odd{kNan, -0.0, kInfinity, -kInfinity, 1e300};
    for (int type = 0; type < 8; ++type)
        for (const int unit : {0, 1, 2, 3, 7}) {
            results.push_back(converted(" wide", wide, unit, type, kNoCompensation, 0));
            results.push_back(converted(" narrow", narrow, unit, type, kNoCompensation, 0));
            results.push_back(converted(" odd", odd, unit, type, kNoCompensation, 0));
        }
    for (int type = 0; type < 8; ++type)
        for (const int coldJunction : {-270, -100, 0, 25, 130, 1000})
            results.push_back(converted(" cold junction " + std::to_string(coldJunction), sweep(-3, 12, 15), 0, type,
                                        coldJunction, kSingleUnit));
    return results;
}

Results ratioResults()
{
    auto signal = noise(500, 1), noisePowers = noise(500, 2);
    for (std::size_t i = 0; i < 400; ++i) { // mostly above 0
        signal[i] += 1;
        noisePowers[i] = (noisePowers[i] + 1) * static_cast<double>(1 + i * i * i);
    }
    signal.insert(signal.end(), {1, 0, 0, -1, kNan, kInfinity, kInfinity, 10, 5, 0x1p-1074, 0x1p1023});
    noisePowers.insert(noisePowers.end(), {0, 0, 1, 1, 1, 1, kInfinity, 1, 5, 1, 0x1p-1000});
    std::vector<double> snr(signal.size());
    QuorDSP_getSNR(signal.data(), static_cast<int>(signal.size()), noisePowers.data(), snr.data());
    // The C run-times' logarithms differ by one unit, ten times which may be two of the product.
    return {{"QuorDSP_getSNR", snr, 2}};
}

} // namespace quordsp::same_results
