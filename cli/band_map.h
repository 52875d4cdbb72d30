// From a low-pass filter with its cut-off at a quarter of the sampling rate to another filter of the same family: where
// on its frequency axis each frequency of the other filter lies. This is the response of a design whose sections double
// cannot hold. Frequencies are shares of the sampling rate.
#pragma once
#include <complex>
#include <vector>

namespace quordsp::cli {

class BandMap {
public:
    // The cut-offs of a band filter. Without a lower one, which is 0 then, it is a low-pass, or a high-pass when it
    // stops.
    BandMap(double lower, double upper, bool stops);

    struct Place {
        double frequency; // of the low-pass, -0.5 to 0.5
        double slope;     // of that frequency, by the other filter's
        bool isBehind;    // a stop band's middle: the low-pass's axis has been run through to its end once
    };
    [[nodiscard]] Place placeOf(double frequency) const;

    // The poles of the other filter for one of the low-pass, two of a band filter, as distances from the unit circle,
    // inside positive.
    [[nodiscard]] std::vector<double> distancesOf(std::complex<double> pole) const;

private:
    double width_;  // on the axis of the analogue prototype, like the middle
    double middle_; // 0: no band filter
    bool stops_;
};

} // namespace quordsp::cli
