// WAV files byte by byte, as slowly and plainly as they can be written.
#pragma once
#include <algorithm>
#include <cmath>
#include <cstdint>
#include <string>
#include <vector>

namespace quordsp::reference {

// Little-endian.
inline std::string bytes(std::uint64_t value, int count)
{
    std::string text;
    for (int i = 0; i < count; ++i)
        text += static_cast<char>(value >> 8 * i);
    return text;
}

// What the processor's conversion to 32 bits gives; only a whole number within range is ever cast.
inline std::uint32_t converted(double value)
{
    const double whole = std::trunc(value);
    if (std::isnan(whole) || whole < -2147483648.0 || whole > 2147483647.0)
        return 0x80000000;
    return static_cast<std::uint32_t>(static_cast<std::int64_t>(whole));
}

inline std::string stereoWav(const std::vector<float>& samples, std::int64_t count, std::uint64_t sampleRate)
{
    const auto dataSize = static_cast<std::uint64_t>(count * 4);
    std::string file = "RIFF" + bytes(dataSize + 48, 4) + "WAVEfmt " + bytes(16, 4) + bytes(1, 2) + bytes(2, 2) +
                       bytes(sampleRate, 4) + bytes(sampleRate * 4, 4) + bytes(4, 2) + bytes(16, 2) + "fact" +
                       bytes(4, 4) + bytes(0, 4) + "data" + bytes(dataSize, 4);
    for (std::int64_t i = 0; i < count; ++i) {
        const double exact = static_cast<double>(samples[static_cast<std::size_t>(i)]) * 32767.0; // 39 bits
        const std::string code = bytes(converted(static_cast<double>(static_cast<float>(exact))), 2);
        file += code + code;
    }
    return file;
}

inline std::uint32_t clippedCode(float sample, int bitDepth)
{
    if (bitDepth == 32 && sample >= 1.0f)
        return 2147483647;
    if (bitDepth == 32 && sample <= -1.0f)
        return static_cast<std::uint32_t>(-2147483647);
    double s = static_cast<double>(sample);
    if (s > 1.0)
        s = 1.0;
    if (s < -1.0)
        s = -1.0;
    switch (bitDepth) {
    case 8: {
        const auto share = static_cast<float>((s + 1.0) * 0.5);
        const auto scaled = static_cast<float>(static_cast<double>(share) * 254.0); // exact before it is rounded
        return converted(static_cast<double>(static_cast<float>(static_cast<double>(scaled) + 1.0)));
    }
    case 16:
        return converted(s * 32767.0);
    case 24:
        return converted(s * 8388607.0);
    default:
        return converted(s * 2147483648.0); // exact: a power of two
    }
}

// For the depths 8, 16, 24 and 32 and for sizes that the header can hold.
inline std::string pcmWav(const std::vector<float>& samples, int count, int sampleRate, int bitDepth, int numChannels,
                          const std::string& iXml = "")
{
    const auto channels = static_cast<std::uint64_t>(std::max(numChannels, 0));
    const std::size_t frames = channels == 0 ? 0 : static_cast<std::size_t>(std::max(count, 0));
    const int width = bitDepth / 8;
    const auto bits = static_cast<std::uint64_t>(bitDepth);
    std::string data;
    for (std::size_t i = 0; i < frames; ++i)
        for (std::uint64_t channel = 0; channel < channels; ++channel)
            data += bytes(clippedCode(samples[i], bitDepth), width);
    const auto rate = static_cast<std::uint32_t>(sampleRate);
    const std::uint64_t bitRate = (channels * bits * rate) & 0xFFFFFFFF;
    std::string chunks = "WAVEfmt " + bytes(16, 4) + bytes(1, 2) + bytes(channels, 2) + bytes(rate, 4) +
                         bytes(bitRate / 8, 4) + bytes(channels * bits / 8, 2) + bytes(bits, 2) + "data" +
                         bytes(data.size(), 4) + data;
    if (!iXml.empty())
        chunks += "iXML" + bytes(iXml.size(), 4) + iXml;
    return "RIFF" + bytes(chunks.size(), 4) + chunks;
}

} // namespace quordsp::reference
