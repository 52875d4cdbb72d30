// WAV in: RIFF/WAVE with 16-, 24- or 32-bit PCM or 32-bit float samples, any number of channels, plain or extensible
// header.
#pragma once
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace quordsp::cli {

class WavDocument {
public:
    // Reads the header and checks it against the bytes that are there; throws a Failure that names the file when it is
    // malformed, cut short or of another kind.
    WavDocument(std::string bytes, std::string fileName);
    WavDocument(const WavDocument&) = delete;
    WavDocument& operator=(const WavDocument&) = delete;

    [[nodiscard]] std::size_t channels() const { return format_.channels; }
    [[nodiscard]] double rate() const { return format_.rate; }
    // Samples of each channel.
    [[nodiscard]] std::size_t frames() const { return data_.size() / format_.frameBytes; }

    // The samples of a channel, counted from 0. Integers are scaled so that full scale is 1.
    [[nodiscard]] std::vector<double> channel(std::size_t index) const;

private:
    struct Format {
        std::uint16_t tag = 0;
        std::uint16_t channels = 0;
        std::uint32_t rate = 0;
        std::uint16_t frameBytes = 0;
        std::uint16_t bits = 0;
    };
    using Decode = double (*)(const char* sample);
    struct Encoding {
        std::uint16_t tag;
        std::uint16_t bits;
        Decode decode;
    };
    static const Encoding kEncodings[];

    void readChunks();
    [[nodiscard]] std::string_view chunkBody(std::string_view id, std::size_t position, std::size_t size) const;
    void readFormat(std::string_view body);
    [[nodiscard]] const Encoding& encoding() const;
    [[noreturn]] void fail(const std::string& what, const std::string& advice) const;

    std::string bytes_;
    std::string fileName_;
    Format format_;
    std::string_view data_;
    Decode decode_ = nullptr;
};

// True when the bytes begin as a RIFF file does.
bool looksLikeWav(std::string_view bytes);

} // namespace quordsp::cli
