// The filters that `quordsp filter` offers: one row a design.
#pragma once
#include <span>
#include <string_view>

#include "QuorDSP_DAQ.h"

namespace quordsp::cli {

struct FilterRequest {
    std::span<const double> in;
    double rate;     // Hz
    double edges[2]; // Hz; a design with one cut-off takes the first
    int order;
};

struct FilterDesign {
    std::string_view family;
    std::string_view response;
    int edges; // how many cut-off frequencies it takes, 1 or 2
    AnalysisLibErrType (*run)(const FilterRequest& request, double* out);
};

std::span<const FilterDesign> filterDesigns();

// Null when there is no such design.
const FilterDesign* findDesign(std::string_view family, std::string_view response);

} // namespace quordsp::cli
