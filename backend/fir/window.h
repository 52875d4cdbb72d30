// The windows of FIR design, in their symmetric form.
#pragma once

#include "buffer.h"

#include <cstdint>

namespace quordsp::backend {

// code: 0 rectangle, 1 Hanning, 2 Hamming, 3 Blackman-Harris of 3 terms, 4 exact Blackman, 5 Blackman, 6 flat top,
// 7 Blackman-Harris of 4 terms, 8 of 7 terms, 9 low side lobes, 11 Blackman-Nuttall, 30 triangle, 31 modified
// Bartlett-Hanning, 32 Bohman, 33 Parzen, 34 Welch, 60 Kaiser (parameter: beta), 61 Dolph-Chebyshev (main over side
// lobes, dB), 62 Gaussian (standard deviation over length). NaN stands for the parameter's default.
struct Window {
    std::int32_t code;
    double parameter = 0;
};

inline constexpr Window kNoWindow{0};

// By the short list of the classic designs: 1 rectangle, 2 triangle, 3 Hanning, 4 Hamming, 5 Blackman.
Window classicWindow(std::int32_t code);

// NaN is no beta.
Window kaiserWindow(double beta);

// Throws InvalidSelection.
void check(const Window& window);

// At least the first count values of the first half of taps ones, to which the middle of an odd number belongs; the
// second half is its mirror image.
Buffer<> firstOfHalf(const Window& window, std::size_t taps, std::size_t count);

} // namespace quordsp::backend
