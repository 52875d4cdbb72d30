// Thermocouple voltages to temperatures, row by row, as the library converts them.
#pragma once
#include <cstddef>
#include <span>
#include <string_view>
#include <vector>

namespace quordsp::cli {

struct VoltageRange {
    double low; // mV
    double high;

    [[nodiscard]] bool contains(double emf) const { return emf >= low && emf <= high; }
};

struct ThermocoupleType {
    std::string_view letter;
    int code;
    VoltageRange published; // of the inverse functions of the ITS-90
    VoltageRange departs;   // in it: of a rule that is off by more than a degree somewhere; only 0 mV without one
};

std::span<const ThermocoupleType> thermocoupleTypes();

struct TemperatureUnit {
    std::string_view letter;
    int code;
    std::string_view name;
};

std::span<const TemperatureUnit> temperatureUnits();

// What the library compensates.
inline constexpr double kLowestColdJunction = -270; // degC
inline constexpr double kHighestColdJunction = 1370;

// The voltages in mV that the library converts: with that of the cold junction, of type K whatever the type is.
std::vector<double> compensated(std::span<const double> emf, std::span<const double> coldJunction);

struct Temperatures {
    std::vector<double> values;          // not finite where a voltage is out of range
    std::vector<std::size_t> outOfRange; // ascending
};

// Voltages in mV. The cold junction, in degC, is one for all or one for each.
Temperatures convertThermocouple(std::span<const double> emf, std::span<const double> coldJunction,
                                 const ThermocoupleType& type, const TemperatureUnit& unit);

} // namespace quordsp::cli
