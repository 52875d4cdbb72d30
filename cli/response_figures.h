// What a frequency response comes to in numbers: gains, bands, ripple, attenuation, and what of the request they miss.
#pragma once
#include <optional>
#include <string>
#include <vector>

#include "filter_choice.h"
#include "frequency_response.h"

namespace quordsp::cli {

struct Band {
    double from; // Hz
    double to;
};

struct BandFigures {
    std::vector<Band> bands;
    double lowest;  // gain in them, dB
    double highest; // likewise
};

// How far the gain is off in a band of the request, as a share of 2 pi f when it is that of a derivative.
struct BandDeviation {
    GainBand band;
    double deviation;
};

struct ResponseFigures {
    std::vector<double> edgeGains;   // dB, at each frequency of the request
    std::vector<double> halfPower;   // Hz, where the gain goes through -3.01 dB
    std::optional<double> level;     // dB, the highest gain in the pass band of a window design, which is not scaled
    bool isNothing = false;          // all coefficients of a FIR filter are 0
    std::optional<BandFigures> pass; // none where the gain comes to no extremum that would begin it
    std::optional<BandFigures> stop;
    std::vector<BandDeviation> deviations;
    double ripple = 0; // largest weighted deviation, by the design; 0: it tells none
    Poles poles;
};

ResponseFigures measureResponse(const ChosenFilter& filter, double rate, const TransferFunction& function,
                                const FrequencyResponse& response);

// In sentences, each about something that is not as the request has it, or is not to be relied on.
std::vector<std::string> doubtsAbout(const ChosenFilter& filter, const ResponseFigures& figures);

} // namespace quordsp::cli
