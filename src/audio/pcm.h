// Encodings of samples as integers (PCM). One signal goes into every channel: each sample is encoded once and stands as
// many times in a row as there are channels.
#pragma once
#include <cstddef>

namespace quordsp {

// Writes count * channels codes. Every version of the code, whatever the processor, writes the same bytes.
using PcmEncoder = void(const float* samples, std::size_t count, std::size_t channels, std::byte* out) noexcept;

// 8, 16, 24 or 32 bits, samples clipped to -1..1; null for another number of bits.
PcmEncoder* clippingEncoder(int bitDepth) noexcept;

// 16 bits, not clipped: what lies beyond -1..1 wraps.
PcmEncoder encodeWrapping16;

} // namespace quordsp
