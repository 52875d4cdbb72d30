// Sound in memory, and how it becomes a WAV file.
#pragma once
#include <cstdint>
#include <span>
#include <string_view>

namespace quordsp {

struct Audio {
    std::uint32_t channels = 1;
    std::span<const float> samples = {}; // the same ones in every channel
    std::string_view iXml = {};          // text of a chunk of that name, which only a text brings about
    std::uint32_t sampleRate = 44100;
    std::int32_t bitDepth = 16; // 8, 16, 24 or 32
    bool logErrors = true;      // on the standard output
};

// Sizes in bytes as they are, and as the header states them. The stated ones are formed in unsigned 32 bits throughout,
// products included, and wrap there, because a header's fields are unsigned: with a sign, sizes from 2^31 on would not
// agree, although their fields hold them.
struct WavSizes {
    std::uint32_t statedData;
    std::uint32_t statedRiff;
    std::uint64_t data;
    std::uint64_t file;

    bool agree() const noexcept { return file - 8 == statedRiff && data == statedData; }
};
WavSizes wavSizesOf(const Audio& audio) noexcept;

// False when nothing was written: another bit depth, sizes that the header cannot hold (which is an error to be
// logged), no memory, or a file that cannot be created or completed.
bool saveAsWav(const Audio& audio, const char* path) noexcept;

} // namespace quordsp
