// WAV out, in the formats that the library writes.
#pragma once
#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <span>
#include <string>
#include <vector>

namespace quordsp::cli {

struct WavFormat {
    bool stereo16; // two channels of 16 bits with a fact chunk, by the library's plain writer
    int bits;
    int channels;
    std::size_t headerBytes;

    // Of a file with so many samples in each channel.
    [[nodiscard]] std::uint64_t fileBytes(std::size_t samples) const;
    // "16 bits, 2 channels"
    [[nodiscard]] std::string text() const;
};

WavFormat stereo16();
WavFormat pcm(int bits, int channels);

// How far a signal goes.
struct Level {
    double peak;        // largest magnitude
    std::size_t beyond; // how many samples lie beyond the full scale
};

Level levelOf(std::span<const double> samples, double fullScale);

// The file is there complete or not at all. Full scale becomes 1. Throws a Failure when the format cannot hold so many
// samples or that rate, and when the file cannot be written.
void writeWav(const std::filesystem::path& path, const WavFormat& format, std::span<const double> samples,
              double fullScale, std::uint32_t rate);

} // namespace quordsp::cli
