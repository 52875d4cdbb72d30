// The filters that the tool offers: one row a family.
#pragma once
#include <cstdint>
#include <span>
#include <string_view>

#include "QuorDSP_DAQ.h"
#include "filter_request.h"

namespace quordsp::cli {

// What a family takes, as bits.
using Parameters = unsigned;
inline constexpr Parameters kResponse = 1U << 0;
inline constexpr Parameters kOrder = 1U << 1;
inline constexpr Parameters kTaps = 1U << 2;
inline constexpr Parameters kCutoff = 1U << 3;
inline constexpr Parameters kEdges = 1U << 4; // the ends of the bands in place of cut-offs
inline constexpr Parameters kRipple = 1U << 5;
inline constexpr Parameters kAttenuation = 1U << 6;
inline constexpr Parameters kWindow = 1U << 7; // and the parameter of those that have one
inline constexpr Parameters kBeta = 1U << 8;
inline constexpr Parameters kBands = 1U << 9;
inline constexpr Parameters kSide = 1U << 10;
inline constexpr Parameters kWeights = 1U << 11;
inline constexpr Parameters kDerivative = 1U << 12;

// Where a pass or stop band, whose ripple is of interest, ends.
enum class BandEnd : std::uint8_t {
    None,    // the gain falls without ripple
    Given,   // at the frequency of the request
    Reached, // where the attenuation of the request is first reached
    Lobe,    // at the outermost extremum of the gain
};

struct FilterFamily {
    std::string_view name;
    int responses; // how many of kResponses it comes in; 0: a request selects none
    Parameters takes;
    BandEnd passEnd;
    BandEnd stopEnd;
    double (*cutoffLoss)(const FilterRequest& request); // dB, at the cut-off; null: the family fixes none
    AnalysisLibErrType (*run)(const FilterRequest& request, FilterSignal& signal);
    // Of an IIR family; null otherwise. The arrays of the direct form have so many elements.
    AnalysisLibErrType (*direct)(const FilterRequest& request, double* reverse, double* forward, int count);
    AnalysisLibErrType (*cascade)(const FilterRequest& request, QuorDSP_IIRFilter* filter);
    // Of a FIR family; null otherwise.
    AnalysisLibErrType (*impulse)(const FilterRequest& request, Impulse& impulse);
    std::string_view purpose = {}; // of a family without responses
    int derivative = 0;            // that it makes, unless a request tells
};

std::span<const FilterFamily> filterFamilies();

// The family of that name; the names are fixed by the options.
const FilterFamily& filterFamily(std::string_view name);

// How many frequencies a family takes for a filter type.
int edgeCount(const FilterFamily& family, int type);

} // namespace quordsp::cli
