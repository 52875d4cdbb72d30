// The part that all our WAV headers begin with, 36 bytes: the RIFF header and the format chunk.
#pragma once
#include "audio/file_image.h"

namespace quordsp {

struct WavFormat {
    std::uint32_t channels;
    std::uint32_t sampleRate;
    std::uint32_t byteRate;
    std::uint32_t blockAlign;
    std::uint32_t bitDepth;
};

FileImage& putWavFormat(FileImage& image, std::uint32_t riffSize, const WavFormat& format) noexcept;

} // namespace quordsp
