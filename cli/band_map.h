// From a low-pass filter to a band-pass or band-stop filter of the same family, with its cut-off at a quarter of the
// sampling rate: where on its frequency axis each frequency of the band filter lies. This is the response of a design
// whose sections, four poles in each, double cannot hold. Frequencies are shares of the sampling rate.
#pragma once
#include <complex>
#include <vector>

namespace quordsp::cli {

class BandMap {
public:
    // The cut-offs of the band filter.
    BandMap(double lower, double upper, bool stops);

    struct Place {
        double frequency; // of the low-pass, -0.5 to 0.5
        double slope;     // of that frequency, by the band filter's
        bool isBehind;    // a stop band's middle: the low-pass's axis has been run through to its end once
    };
    [[nodiscard]] Place placeOf(double frequency) const;

    // The two poles of the band filter for one of the low-pass, as distances from the unit circle, inside positive.
    [[nodiscard]] std::vector<double> distancesOf(std::complex<double> pole) const;

private:
    double width_; // on the axis of the analogue prototype, like the middle
    double middle_;
    bool stops_;
};

} // namespace quordsp::cli
