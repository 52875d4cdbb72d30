#include "thermocouple.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <ranges>

#include "progress.h"
#include "status.h"

namespace quordsp::cli {
namespace {

constexpr int kOutOfRange = -20322;

constexpr ThermocoupleType kTypes[] = {
    {"B", 0, {0.291, 13.820}, {}},                // 250 to 1820 degC
    {"E", 1, {-8.825, 76.373}, {0, 76.373}},      // -200 to 1000 degC
    {"J", 2, {-8.095, 69.553}, {0, 42.919}},      // -210 to 1200 degC
    {"K", 3, {-5.891, 54.886}, {-5.891, 0}},      // -200 to 1372 degC
    {"N", 7, {-3.990, 47.513}, {0, 20.613}},      // -200 to 1300 degC
    {"R", 4, {-0.226, 21.103}, {13.228, 21.103}}, // -50 to 1768.1 degC
    {"S", 5, {-0.235, 18.693}, {}},               // -50 to 1768.1 degC
    {"T", 6, {-5.603, 20.872}, {}},               // -200 to 400 degC
};

constexpr TemperatureUnit kUnits[] = {{"C", 0, "degC"}, {"F", 1, "degF"}, {"K", 2, "K"}, {"R", 3, "degR"}};

// The reference function of type K, NIST Monograph 175, lowest power first, with the exponential term that the library
// adds at all temperatures.
constexpr double kBelowZero[] = {0,
                                 0.394501280250e-1,
                                 0.236223735980e-4,
                                 -0.328589067840e-6,
                                 -0.499048287770e-8,
                                 -0.675090591730e-10,
                                 -0.574103274280e-12,
                                 -0.310888728940e-14,
                                 -0.104516093650e-16,
                                 -0.198892668780e-19,
                                 -0.163226974860e-22};
constexpr double kAboveZero[] = {-0.176004136860e-1, 0.389212049750e-1,   0.185587700320e-4,  -0.994575928740e-7,
                                 0.318409457190e-9,  -0.560728448890e-12, 0.560750590590e-15, -0.320207200030e-18,
                                 0.971511471520e-22, -0.121047212750e-25};

double coldJunctionVoltage(double degC)
{
    const double distance = degC - 126.9686;
    double voltage = 0;
    for (const double coefficient : std::views::reverse(degC < 0 ? std::span<const double>(kBelowZero) : kAboveZero))
        voltage = voltage * degC + coefficient;
    return voltage + 0.1185976 * std::exp(-0.1183432e-3 * distance * distance);
}

// A stretch of rows with the same cold junction.
struct Run {
    std::size_t first;
    std::size_t last; // exclusive
    double coldJunction;
};

Run runFrom(std::size_t first, std::size_t rows, std::span<const double> coldJunction)
{
    if (coldJunction.size() == 1)
        return {first, rows, coldJunction[0]};
    const auto begin = coldJunction.begin() + static_cast<std::ptrdiff_t>(first);
    const auto differs = [begin](double value) { return value != *begin; };
    const auto end = std::find_if(begin, coldJunction.end(), differs);
    return {first, static_cast<std::size_t>(end - coldJunction.begin()), *begin};
}

// Up to the first voltage out of range; returns where it is, or the end of the run.
std::size_t convertRun(std::vector<double>& emf, const Run& run, int type, int unit, std::vector<double>& values)
{
    const int status = QuorDSP_Thermocouple(emf.data() + run.first, static_cast<int>(run.last - run.first), unit, type,
                                            run.coldJunction, values.data() + run.first);
    if (status != kOutOfRange)
        requireSuccess(static_cast<AnalysisLibErrType>(status), "conversion");
    const auto begin = values.begin() + static_cast<std::ptrdiff_t>(run.first);
    const auto end = values.begin() + static_cast<std::ptrdiff_t>(run.last);
    const auto unwritten =
        status == kOutOfRange ? std::find_if(begin, end, [](double v) { return std::isnan(v); }) : end;
    return static_cast<std::size_t>(unwritten - values.begin());
}

} // namespace

std::span<const ThermocoupleType> thermocoupleTypes()
{
    return kTypes;
}

std::span<const TemperatureUnit> temperatureUnits()
{
    return kUnits;
}

std::vector<double> compensated(std::span<const double> emf, std::span<const double> coldJunction)
{
    std::vector<double> sums(emf.begin(), emf.end());
    for (std::size_t row = 0; row < sums.size(); ++row)
        sums[row] += coldJunctionVoltage(coldJunction[coldJunction.size() == 1 ? 0 : row]);
    return sums;
}

Temperatures convertThermocouple(std::span<const double> emf, std::span<const double> coldJunction,
                                 const ThermocoupleType& type, const TemperatureUnit& unit)
{
    std::vector in(emf.begin(), emf.end());
    Temperatures result{std::vector(in.size(), std::numeric_limits<double>::quiet_NaN()), {}};
    Progress progress("converting", in.size());
    for (Run run{}; run.first < in.size(); progress.reach(run.first)) {
        if (run.first == run.last)
            run = runFrom(run.first, in.size(), coldJunction);
        run.first = convertRun(in, run, type.code, unit.code, result.values);
        if (run.first < run.last)
            ++run.first;
    }
    for (std::size_t row = 0; row < in.size(); ++row)
        if (!std::isfinite(result.values[row]))
            result.outOfRange.push_back(row);
    return result;
}

} // namespace quordsp::cli
