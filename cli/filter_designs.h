// The filters that the tool offers: one row a family. Each comes in four responses, which a request selects.
#pragma once
#include <array>
#include <cstdint>
#include <span>
#include <string_view>

#include "QuorDSP_DAQ.h"

namespace quordsp::cli {

// By filter type.
inline constexpr std::array<std::string_view, 4> kResponses = {"lowpass", "highpass", "bandpass", "bandstop"};

struct FilterRequest {
    int type = 0;         // filter type 0..3
    double rate = 0;      // Hz
    double edges[4] = {}; // Hz; as many as edgeCount()
    int order = 0;        // of the low-pass prototype
    int taps = 0;
    double ripple = 0;      // dB, pass band
    double attenuation = 0; // dB, stop band
    int window = 0;         // code of table W2
    double parameter = 0;   // of the window; NaN: its default
    double beta = 0;        // of a Kaiser window
};

// What a family takes, as bits.
using Parameters = unsigned;
inline constexpr Parameters kOrder = 1U << 0;
inline constexpr Parameters kTaps = 1U << 1;
inline constexpr Parameters kCutoff = 1U << 2;
inline constexpr Parameters kEdges = 1U << 3; // the ends of the bands in place of cut-offs
inline constexpr Parameters kRipple = 1U << 4;
inline constexpr Parameters kAttenuation = 1U << 5;
inline constexpr Parameters kWindow = 1U << 6; // and the parameter of those that have one
inline constexpr Parameters kBeta = 1U << 7;

// Where a pass or stop band, whose ripple is of interest, ends.
enum class BandEnd : std::uint8_t {
    None,    // the gain falls without ripple
    Given,   // at the frequency of the request
    Reached, // where the attenuation of the request is first reached
    Lobe,    // at the outermost extremum of the gain
};

struct FilterFamily {
    std::string_view name;
    Parameters takes;
    BandEnd passEnd;
    BandEnd stopEnd;
    double (*cutoffLoss)(const FilterRequest& request); // dB, at the cut-off; null: the family fixes none
    AnalysisLibErrType (*run)(const FilterRequest& request, std::span<const double> in, double* out);
    // Of an IIR family; null otherwise. The arrays of the direct form have so many elements.
    AnalysisLibErrType (*direct)(const FilterRequest& request, double* reverse, double* forward, int count);
    AnalysisLibErrType (*cascade)(const FilterRequest& request, QuorDSP_IIRFilter* filter);
    // Of a FIR family; null otherwise.
    AnalysisLibErrType (*coefficients)(const FilterRequest& request, double* coefficients);
};

std::span<const FilterFamily> filterFamilies();

// The family of that name; the names are fixed by the options.
const FilterFamily& filterFamily(std::string_view name);

// How many frequencies a family takes for a filter type.
int edgeCount(const FilterFamily& family, int type);

struct FilterWindow {
    std::string_view name;
    int code; // of table W2
    bool hasParameter;
};

std::span<const FilterWindow> filterWindows();

// The window of that name; the names are fixed by the options.
const FilterWindow& filterWindow(std::string_view name);

} // namespace quordsp::cli
