// What is asked of a filter, and the signal that it is to run over.
#pragma once
#include <array>
#include <cstddef>
#include <optional>
#include <span>
#include <string_view>
#include <vector>

namespace quordsp::cli {

// By filter type.
inline constexpr std::array<std::string_view, 4> kResponses = {"lowpass", "highpass", "bandpass", "bandstop"};

// A band of an equiripple design.
struct GainBand {
    double from; // Hz
    double to;
    double gain = 1;   // of a differentiator as a share of 2 pi f, which makes the derivative by seconds
    double weight = 1; // of its error
};

struct FilterRequest {
    int type = 0;         // filter type 0..3
    double rate = 0;      // Hz
    double edges[4] = {}; // Hz; as many as edgeCount()
    int order = 0;        // of the low-pass prototype, or of the polynomials of savitzky-golay
    int taps = 0;
    double ripple = 0;      // dB, pass band
    double attenuation = 0; // dB, stop band
    int window = 0;         // code of table W2
    double parameter = 0;   // of the window; NaN: its default
    double beta = 0;        // of a Kaiser window
    std::vector<GainBand> bands = {};
    int side = 0;                     // samples on either side of the one that is smoothed
    std::vector<double> weights = {}; // of the 2*side + 1 samples; empty: all alike
    int derivative = 0;               // the result is this derivative of the signal by seconds

    [[nodiscard]] int frame() const { return 2 * side + 1; }
};

struct FilterSignal {
    std::span<const double> in;
    double* out;
    const double* inImaginary = nullptr; // of a complex signal
    double* outImaginary = nullptr;
    std::optional<double> delay = std::nullopt; // samples, when a FIR filter has run

    [[nodiscard]] int count() const { return static_cast<int>(in.size()); }
    [[nodiscard]] bool isComplex() const { return inImaginary != nullptr; }
};

// The answer of a FIR filter to an impulse.
struct Impulse {
    std::vector<double> taps;
    int lead = 0;      // the samples that it begins before the impulse
    double ripple = 0; // largest weighted deviation from the gain that is asked for, by the design; 0: it tells none
    std::size_t model = 0;         // taps of the model filter, when there is one
    std::size_t interpolation = 0; // samples between these
    std::size_t image = 0;         // taps of the image suppressor

    // Samples, of every frequency when the taps are symmetric.
    [[nodiscard]] double delay() const { return (static_cast<double>(taps.size()) - 1) / 2 - lead; }
};

} // namespace quordsp::cli
