// WAV files as the targets read them back.
#pragma once
#include <filesystem>
#include <fstream>
#include <iterator>

#include "bytes.h"

namespace quordsp::fuzz {

// In the current folder.
inline constexpr const char* kPath = "fuzzed.wav";

struct File {
    std::vector<std::uint8_t> bytes;

    std::uint32_t number(std::size_t offset, std::size_t size) const
    {
        std::uint32_t value = 0;
        for (std::size_t i = size; i-- > 0;)
            value = value << 8 | bytes.at(offset + i);
        return value;
    }
    bool hasText(std::size_t offset, const char (&text)[5]) const
    {
        return std::equal(text, text + 4, bytes.begin() + static_cast<std::ptrdiff_t>(offset));
    }
};

inline bool fileIsThere()
{
    return std::filesystem::exists(kPath);
}

// Takes the file away.
inline File takeFile()
{
    File file;
    {
        std::ifstream stream{kPath, std::ios::binary};
        file.bytes.assign(std::istreambuf_iterator<char>{stream}, {});
    }
    std::filesystem::remove(kPath);
    return file;
}

// The first fields of both writers' headers.
inline void requireFormat(const File& file, std::uint32_t channels, std::uint32_t sampleRate, std::uint32_t bits)
{
    require(file.hasText(0, "RIFF") && file.hasText(8, "WAVE") && file.hasText(12, "fmt "), "a RIFF/WAVE file");
    require(file.number(16, 4) == 16 && file.number(20, 2) == 1, "PCM");
    require(file.number(22, 2) == (channels & 0xffff) && file.number(24, 4) == sampleRate, "channels and rate");
    require(file.number(34, 2) == bits, "bits");
}

} // namespace quordsp::fuzz
