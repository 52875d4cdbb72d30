// The WAV writer of one fixed format: one signal in both channels of a 16-bit file, with a fact chunk.
#include <algorithm>
#include <cstdio>

#include "QuorDSP_DAQ.h"
#include "audio/pcm.h"
#include "audio/wav_format.h"

namespace quordsp {
namespace {

constexpr std::uint32_t kChannels = 2;
constexpr std::uint32_t kBlockAlign = 4; // bytes of one sample in both channels
constexpr std::uint32_t kHeaderSize = 56;

// The sizes in the header wrap at 32 bits, also where the count is negative.
void putHeader(FileImage& image, int count, std::uint32_t sampleRate) noexcept
{
    const std::uint32_t dataSize = static_cast<std::uint32_t>(count) * kBlockAlign;
    putWavFormat(image, dataSize + kHeaderSize - 8,
                 {.channels = kChannels,
                  .sampleRate = sampleRate,
                  .byteRate = sampleRate * kBlockAlign,
                  .blockAlign = kBlockAlign,
                  .bitDepth = 16});
    image.text("fact").u32(4).u32(0).text("data").u32(dataSize);
}

// The memory comes before the file: a file that is there already stays when there is none.
bool save(const char* path, const float* samples, int count, std::uint32_t sampleRate) noexcept
{
    const auto n = static_cast<std::size_t>(std::max(count, 0));
    FileImage image{kHeaderSize + n * kBlockAlign};
    if (!image)
        return false;
    putHeader(image, count, sampleRate);
    encodeWrapping16(samples, n, kChannels, image.space(n * kBlockAlign));
    return image.save(path);
}

} // namespace
} // namespace quordsp

AnalysisLibErrType QuorDSP_WriteWAV(const char* fileName, const float samples[], int count,
                                    unsigned int sampleRate) noexcept
{
    if (quordsp::save(fileName, samples, count, sampleRate))
        return QUORDSP_SUCCESS;
    std::fputs("无法创建文件\n", stderr);
    return QUORDSP_FILE_NOT_CREATED;
}
