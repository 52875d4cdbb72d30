// The WAV writer for any number of channels and its export.
#include <algorithm>
#include <cstdio>

#include "QuorDSP_DAQ.h"
#include "audio/audio.h"
#include "audio/pcm.h"
#include "audio/wav_format.h"

namespace quordsp {
namespace {

constexpr std::uint32_t kHeaderSize = 44;

std::uint32_t bits(const Audio& audio) noexcept
{
    return static_cast<std::uint32_t>(audio.bitDepth);
}

WavFormat formatOf(const Audio& audio) noexcept
{
    return {.channels = audio.channels,
            .sampleRate = audio.sampleRate,
            .byteRate = audio.channels * bits(audio) * audio.sampleRate >> 3,
            .blockAlign = audio.channels * (bits(audio) / 8),
            .bitDepth = bits(audio)};
}

void logError(const char* path) noexcept
{
    std::printf("ERROR: couldn't save file to %s\n", path ? path : "");
    std::fflush(stdout);
}

} // namespace

WavSizes wavSizesOf(const Audio& audio) noexcept
{
    const std::uint64_t samples = audio.channels == 0 ? 0 : audio.samples.size();
    const std::uint64_t iXml = audio.iXml.empty() ? 0 : 8 + audio.iXml.size();
    const std::uint32_t statedData = audio.channels * bits(audio) / 8 * static_cast<std::uint32_t>(samples);
    const std::uint64_t data = bits(audio) / 8 * samples * audio.channels;
    return {.statedData = statedData,
            .statedRiff = statedData + kHeaderSize - 8 + static_cast<std::uint32_t>(iXml),
            .data = data,
            .file = kHeaderSize + data + iXml};
}

bool saveAsWav(const Audio& audio, const char* path) noexcept
{
    PcmEncoder* const encode = clippingEncoder(audio.bitDepth);
    if (!encode)
        return false;
    const WavSizes sizes = wavSizesOf(audio);
    if (!sizes.agree()) {
        if (audio.logErrors)
            logError(path);
        return false;
    }
    FileImage image{sizes.file};
    if (!image)
        return false;
    putWavFormat(image, sizes.statedRiff, formatOf(audio)).text("data").u32(sizes.statedData);
    encode(audio.samples.data(), sizes.data ? audio.samples.size() : 0, audio.channels, image.space(sizes.data));
    if (!audio.iXml.empty())
        image.text("iXML").u32(static_cast<std::uint32_t>(audio.iXml.size())).text(audio.iXml);
    return image.save(path);
}

} // namespace quordsp

AnalysisLibErrType QuorDSP_WriteWAVFile(const char* fileName, const float samples[], int count, int sampleRate,
                                        int bitDepth, int numChannels) noexcept
{
    quordsp::saveAsWav({.channels = static_cast<std::uint32_t>(std::max(numChannels, 0)),
                        .samples = {samples, static_cast<std::size_t>(std::max(count, 0))},
                        .sampleRate = static_cast<std::uint32_t>(sampleRate),
                        .bitDepth = bitDepth},
                       fileName);
    return QUORDSP_SUCCESS;
}
