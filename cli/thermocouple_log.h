// A log of thermocouple voltages: a CSV file with the voltage, perhaps the temperature of the cold junction, and
// perhaps the time of each row.
#pragma once
#include <optional>
#include <string>
#include <vector>

#include "input.h"

namespace quordsp::cli {

struct LogChoice {
    InputChoice input;                                 // the column: of the voltage
    std::optional<double> coldJunction = std::nullopt; // degC
    std::string coldJunctionColumn = {};
};

struct ThermocoupleLog {
    std::string quantity;
    std::vector<double> emf;             // mV
    std::vector<double> coldJunction;    // degC, one for all or one for each row
    std::vector<std::string> timestamps; // as the file has them; none when it has numbers or nothing
    std::vector<double> places;          // times in seconds, those of timestamps from the first one; or rows from 1
    std::string placeName;               // of a column: "time_s" or "row"
    std::string placeLabel;              // of an axis
};

// Throws a Failure when the file or a column does not fit. Rows need not be equally spaced.
ThermocoupleLog readThermocoupleLog(const LogChoice& choice);

} // namespace quordsp::cli
