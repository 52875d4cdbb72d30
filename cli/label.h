// What a column holds: the quantity and the unit, which column names carry in their tail ("x_g", "force (N)", "emf
// [mV]").
#pragma once
#include <string>
#include <string_view>

namespace quordsp::cli {

struct Label {
    std::string quantity; // "x"
    std::string unit;     // "g"; empty when the name tells none

    // For an axis: "x (g)".
    [[nodiscard]] std::string axis() const;
};

// In brackets every unit is taken; after an underscore only one of the well-known ones, since "sensor_left" has none.
Label parseLabel(std::string_view columnName);

// "input" and "g" give "input_g"; without a unit the name stands alone.
std::string columnName(std::string_view quantity, std::string_view unit);

// How many volts one unit of voltage is; 0 when the unit is another one.
double voltsPerUnit(std::string_view unit);

// The unit of a square: "g^2", "(m/s2)^2".
std::string squared(std::string_view unit);

// The unit of a derivative by seconds: "g/s", of "m/s" "m/s2".
std::string perSeconds(std::string_view unit, int derivative);

// For a terminal, which obeys control characters: they become question marks.
std::string printable(std::string_view text);

// A number with its unit: "10.1 g", or "10.1" when there is none.
std::string withUnit(const std::string& number, std::string_view unit);

} // namespace quordsp::cli
