// The loop of FIR filtering: out[i] = h[0] in[i] + h[1] in[i - step] + h[2] in[i - 2 step] + ...
// Each sum is formed in this order, however many are formed side by side: an output has the same bits wherever it
// stands in a block and whichever instruction set forms it. With a step of 2 the signal is a complex one, its real and
// imaginary parts alternating.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstring>

namespace quordsp::backend {

// As many sums as the registers of a processor with AVX2 or AVX-512 hold.
inline constexpr std::size_t kTileRows = 6;
inline constexpr std::size_t kRowSize = 8;
inline constexpr std::size_t kTileSize = kTileRows * kRowSize;

// taps >= 1. Reads (taps - 1) * step values before in, and count rounded up to whole tiles behind it.
[[gnu::always_inline]] inline void convolve(const double* in, std::size_t count, const double* h, std::size_t taps,
                                            std::size_t step, double* out) noexcept
{
    using Row [[gnu::vector_size(kRowSize * sizeof(double))]] = double;
    for (std::size_t done = 0; done < count; done += kTileSize) {
        Row sums[kTileRows], values[kTileRows];
        const double* source = in + done;
        std::memcpy(values, source, sizeof values);
        for (std::size_t r = 0; r < kTileRows; ++r)
            sums[r] = h[0] * values[r];
        for (std::size_t j = 1; j < taps; ++j) {
            source -= step;
            std::memcpy(values, source, sizeof values);
            for (std::size_t r = 0; r < kTileRows; ++r)
                sums[r] = sums[r] + h[j] * values[r];
        }
        std::memcpy(out + done, sums, std::min(kTileSize, count - done) * sizeof(double));
    }
}

} // namespace quordsp::backend
