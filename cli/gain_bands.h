// The bands of an equiripple design as text: "0:100,150:500:0:10" on the command line, "0 to 100 Hz, 150 to 500 Hz by 0
// with weight 10" for people.
#pragma once
#include <string>
#include <vector>

#include "filter_request.h"

namespace quordsp::cli {

// Each FROM:TO, FROM:TO:GAIN or FROM:TO:GAIN:WEIGHT. Throws a Failure that quotes what is not.
std::vector<GainBand> parseGainBands(const std::vector<std::string>& texts);

// Without the gains and weights that are 1.
std::string describe(const std::vector<GainBand>& bands);

} // namespace quordsp::cli
