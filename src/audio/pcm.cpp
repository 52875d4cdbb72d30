// The encodings of single samples, and how a signal becomes bytes.
//
// A number is cut towards zero to 32 bits and its low bytes are written. One that does not fit, or NaN, is cut to
// 0x80000000, which is what the processor's own conversion gives: that makes it the same in every vector width.
//
// The samples are encoded block by block: the codes of a block, then its bytes, two plain loops that the compiler
// vectorises each.
#include <algorithm>
#include <bit>
#include <cmath>
#include <cstdint>
#include <cstring>

#include "audio/pcm.h"
#include "cpu/instruction_set.h"

namespace quordsp {
namespace {

static_assert(std::endian::native == std::endian::little);

template <class Real>
[[gnu::always_inline]] inline std::uint32_t cut(Real value) noexcept
{
    constexpr Real kLimit = 0x1p31;
    const bool fits = value >= -kLimit && value < kLimit;
    return static_cast<std::uint32_t>(static_cast<std::int32_t>(fits ? value : -kLimit));
}

// NaN remains.
[[gnu::always_inline]] inline float clip(float sample) noexcept
{
    const float belowTop = sample > 1.0f ? 1.0f : sample;
    return belowTop < -1.0f ? -1.0f : belowTop;
}

struct Wrapping16 {
    static constexpr std::size_t kBytes = 2;
    [[gnu::always_inline]] static std::uint32_t code(float sample) noexcept { return cut(sample * 32767.0f); }
};

// 1..255: the scale leaves out 0.
struct Clipping8 {
    static constexpr std::size_t kBytes = 1;
    [[gnu::always_inline]] static std::uint32_t code(float sample) noexcept
    {
        const auto share = static_cast<float>((static_cast<double>(clip(sample)) + 1.0) * 0.5);
        return cut(share * 254.0f + 1.0f);
    }
};

// 2^(bits - 1) - 1 times the sample, as 2^(bits - 1) s - s: the first product is exact in single precision, as are its
// whole and its fractional part, and the difference falls below the whole part where the fraction is less than s.
template <std::size_t bytes>
struct ClippingSigned {
    static constexpr std::size_t kBytes = bytes;
    [[gnu::always_inline]] static std::uint32_t code(float sample) noexcept
    {
        constexpr float kScale = 1u << (8 * bytes - 1);
        const float magnitude = clip(std::abs(sample));
        const float scaled = magnitude * kScale;
        const std::uint32_t whole = cut(scaled);
        const float fraction = scaled - static_cast<float>(static_cast<std::int32_t>(whole));
        const std::uint32_t code = whole - (fraction < magnitude ? 1u : 0u);
        return sample < 0.0f ? 0u - code : code;
    }
};

// The two ends alone are off the scale, which has 2^31 steps.
struct Clipping32 {
    static constexpr std::size_t kBytes = 4;
    [[gnu::always_inline]] static std::uint32_t code(float sample) noexcept
    {
        const std::uint32_t inside = cut(sample * 0x1p31f);
        const std::uint32_t belowTop = sample >= 1.0f ? 0x7FFFFFFFu : inside;
        return sample <= -1.0f ? 0x80000001u : belowTop;
    }
};

// The low bytes of every code, as many times as there are channels.
template <std::size_t bytes>
[[gnu::always_inline]] inline void spread(const std::uint32_t* codes, std::size_t count, std::size_t channels,
                                          std::byte* out) noexcept
{
    for (std::size_t i = 0; i < count; ++i)
        for (std::size_t channel = 0; channel < channels; ++channel)
            std::memcpy(out + (i * channels + channel) * bytes, codes + i, bytes);
}

// Asks for samples that come later: the processor itself does not look ahead beyond the page that it is in.
[[gnu::always_inline]] inline void fetch(const float* samples, std::size_t begin, std::size_t end) noexcept
{
    constexpr std::size_t kCacheLine = 16;
    for (std::size_t i = begin; i < end; i += kCacheLine)
        __builtin_prefetch(samples + i);
}

template <class Encoding>
[[gnu::always_inline]] inline void encode(const float* samples, std::size_t count, std::size_t channels,
                                          std::byte* out) noexcept
{
    constexpr std::size_t kBlockSize = 512;
    constexpr std::size_t kAhead = 2 * kBlockSize;
    std::uint32_t codes[kBlockSize];
    for (std::size_t start = 0; start < count; start += kBlockSize) {
        const std::size_t size = std::min(kBlockSize, count - start);
        fetch(samples, std::min(start + kAhead, count), std::min(start + kAhead + size, count));
        for (std::size_t i = 0; i < size; ++i)
            codes[i] = Encoding::code(samples[start + i]);
        std::byte* const block = out + start * channels * Encoding::kBytes;
        // The usual numbers of channels are known to the compiler.
        switch (channels) {
        case 1:
            spread<Encoding::kBytes>(codes, size, 1, block);
            break;
        case 2:
            spread<Encoding::kBytes>(codes, size, 2, block);
            break;
        default:
            spread<Encoding::kBytes>(codes, size, channels, block);
        }
    }
}

template <class Encoding>
void encodeOnThisMachine(const float* samples, std::size_t count, std::size_t channels, std::byte* out) noexcept
{
    onThisMachine<encode<Encoding>>(samples, count, channels, out);
}

} // namespace

PcmEncoder* clippingEncoder(int bitDepth) noexcept
{
    switch (bitDepth) {
    case 8:
        return encodeOnThisMachine<Clipping8>;
    case 16:
        return encodeOnThisMachine<ClippingSigned<2>>;
    case 24:
        return encodeOnThisMachine<ClippingSigned<3>>;
    case 32:
        return encodeOnThisMachine<Clipping32>;
    default:
        return nullptr;
    }
}

void encodeWrapping16(const float* samples, std::size_t count, std::size_t channels, std::byte* out) noexcept
{
    encodeOnThisMachine<Wrapping16>(samples, count, channels, out);
}

} // namespace quordsp
