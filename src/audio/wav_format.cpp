#include "audio/wav_format.h"

namespace quordsp {

FileImage& putWavFormat(FileImage& image, std::uint32_t riffSize, const WavFormat& format) noexcept
{
    constexpr std::uint32_t kChunkSize = 16;
    constexpr std::uint32_t kPcm = 1;
    image.text("RIFF").u32(riffSize).text("WAVE");
    image.text("fmt ").u32(kChunkSize).u16(kPcm).u16(format.channels).u32(format.sampleRate);
    return image.u32(format.byteRate).u16(format.blockAlign).u16(format.bitDepth);
}

} // namespace quordsp
