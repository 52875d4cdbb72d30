// The frequency response of a transfer function, section by section: the gain is a sum of logarithms, so that no
// product of many sections overflows or vanishes.
#pragma once
#include <complex>
#include <optional>
#include <span>
#include <vector>

#include "transfer_function.h"

namespace quordsp::cli {

struct ResponsePoint {
    double decibels; // -inf at a zero of the response
    double phase; // radians, not wrapped; NaN at a zero. Half a turn higher behind an odd number of a section's zeros
    double delay; // group delay, samples
};

// One polynomial of a section, on the unit circle.
class CirclePolynomial {
public:
    explicit CirclePolynomial(const std::vector<double>& coefficients);

    // Frequencies are shares of the sampling rate, 0 to 0.5.
    [[nodiscard]] double decibels(double frequency) const;
    [[nodiscard]] ResponsePoint at(double frequency) const;

private:
    [[nodiscard]] ResponsePoint atSymmetric(double frequency) const;
    [[nodiscard]] ResponsePoint atGeneral(double frequency) const;

    std::vector<double> coefficients_;        // the first and the last are not 0
    double lead_;                             // samples, of the coefficients that were 0 before the first
    int symmetry_;                            // 1: c[k] = c[n-k]; -1: c[k] = -c[n-k]; 0: neither
    std::vector<std::complex<double>> zeros_; // of one without symmetry: they tell how often its phase has turned
};

class FrequencyResponse {
public:
    explicit FrequencyResponse(std::span<const Section> sections);
    explicit FrequencyResponse(const TransferFunction& function);

    [[nodiscard]] double decibels(double frequency) const;
    [[nodiscard]] ResponsePoint at(double frequency) const;

private:
    [[nodiscard]] double decibelsOfSections(double frequency) const;
    [[nodiscard]] ResponsePoint ofSections(double frequency) const;
    [[nodiscard]] ResponsePoint mapped(double frequency) const;

    std::vector<CirclePolynomial> forward_;
    std::vector<CirclePolynomial> reverse_;
    double lead_ = 0; // samples
    std::optional<BandMap> map_;
    double turns_ = 0; // of the phase, all along the low-pass's axis, where there is a map
};

struct Poles {
    double greatestRadius = 0; // of them all; 0 when there is none
    // By how much rounding the coefficients to double moves a pole, as a share of its distance from the unit circle:
    // the largest share.
    double shift = 0;
};

Poles polesOf(const TransferFunction& function);

} // namespace quordsp::cli
