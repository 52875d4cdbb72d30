// What a filter passes, in the terms of the entries: the response and the cut-off frequencies.
#pragma once

#include "status.h"

#include <limits>

namespace quordsp::backend {

enum class Response : std::int32_t { LowPass, HighPass, BandPass, BandStop };

// The responses of callers are numbers.
constexpr bool isKnown(Response response)
{
    return response >= Response::LowPass && response <= Response::BandStop;
}

constexpr bool isBand(Response response)
{
    return response == Response::BandPass || response == Response::BandStop;
}

struct Frequencies {
    double fs;
    double fl;     // the cut-off of a low-pass or high-pass filter
    double fh = 0; // ignored by those
};

// An unknown response is taken for one with a single cut-off here: it is reported after all the rest.
inline void requireCutoffs(Response response, const Frequencies& frequencies)
{
    const auto [fs, fl, fh] = frequencies;
    const long double nyquist = fs < std::numeric_limits<double>::infinity() ? static_cast<long double>(fs) / 2 : 0;
    if (isBand(response))
        require(fl > 0 && fh > fl && fh < nyquist, Status::Band);
    else
        require(fl > 0 && fl < nyquist, Status::Cutoff);
}

} // namespace quordsp::backend
