// Which filters a command is to work with, as its options say it.
#pragma once
#include <optional>
#include <string>
#include <vector>

#include "command_line.h"
#include "filter_designs.h"

namespace quordsp::cli {

inline constexpr int kMostSide = 1 << 19; // of savitzky-golay: a frame of 8 MB

struct FilterChoice {
    std::vector<std::string> families{"butterworth"};
    std::string response = {}; // one of kResponses; empty: none
    std::optional<int> order = std::nullopt;
    std::optional<int> taps = std::nullopt;
    std::vector<double> cutoff = {};
    std::vector<double> edges = {};
    std::optional<double> ripple = std::nullopt;
    std::optional<double> attenuation = std::nullopt;
    std::string window = {};
    std::optional<double> parameter = std::nullopt;
    std::optional<double> beta = std::nullopt;
    std::vector<std::string> bands = {};
    std::optional<int> side = std::nullopt;
    std::vector<double> weights = {};
    std::optional<int> derivative = std::nullopt;
};

struct ChosenFilter {
    const FilterFamily& family;
    FilterRequest request; // without the rate
    std::string band;      // "bandpass 90 to 110 Hz", "smoothing"
    std::string design;    // "butterworth of order 4"

    [[nodiscard]] std::string describe() const { return band + ", " + design; }
};

void addFilter(Command& command, FilterChoice& choice);

// One filter a family. Throws a Failure that names the option that a family lacks, or that no family takes.
std::vector<ChosenFilter> chosenFilters(const FilterChoice& choice);

// "bandpass 90 to 110 Hz"; the response alone where the families take different frequencies, "2 filters" where they
// have different purposes.
std::string describeBand(const std::vector<ChosenFilter>& filters);

} // namespace quordsp::cli
