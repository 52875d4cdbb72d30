#include "QuorDSP_DAQ.h"
#include "wav.h"

#include "targets.h"

namespace quordsp::fuzz {
namespace {

struct Format {
    int bits;
    int channels;
    int rate;
};

// The signed number of one code.
double decoded(const File& file, std::size_t offset, int bits)
{
    const std::uint32_t code = file.number(offset, static_cast<std::size_t>(bits) / 8);
    if (bits == 8)
        return (static_cast<double>(code) - 1) / 127 - 1;
    const auto aligned = static_cast<std::int32_t>(code << (32 - bits));
    return static_cast<double>(aligned >> (32 - bits)) / (std::ldexp(1.0, bits - 1) - (bits < 32 ? 1 : 0));
}

// Within one step, towards zero, of the clipped sample.
void requireCode(double value, float sample, int bits)
{
    const double clipped = std::fmin(std::fmax(sample, -1.0), 1.0);
    const double step = bits == 8 ? 1.0 / 127 : std::ldexp(1.0, 1 - bits) * 1.001;
    require(std::abs(value - clipped) <= step + 1e-9, "within one step of the sample");
    require(bits == 8 || std::abs(value) <= std::abs(clipped) + 1e-7, "cut towards zero");
}

void requireFile(const File& file, const Format& format, const std::vector<float>& samples)
{
    const std::size_t frame = static_cast<std::size_t>(format.channels * format.bits / 8);
    const std::size_t size = samples.size() * frame;
    require(file.bytes.size() == 44 + size, "the size of the file");
    requireFormat(file, static_cast<std::uint32_t>(format.channels), static_cast<std::uint32_t>(format.rate),
                  static_cast<std::uint32_t>(format.bits));
    require(file.number(4, 4) == size + 36 && file.number(40, 4) == size, "the sizes in the header");
    const auto bitsPerFrame = static_cast<std::uint32_t>(format.channels * format.bits);
    require(file.number(28, 4) == bitsPerFrame * static_cast<std::uint32_t>(format.rate) >> 3, "the byte rate");
    require(file.number(32, 2) == frame && file.hasText(36, "data"), "block and data chunk");
    const std::size_t width = static_cast<std::size_t>(format.bits) / 8;
    for (std::size_t i = 0; i < samples.size(); ++i)
        for (std::size_t offset = 44 + i * frame; offset < 44 + (i + 1) * frame; offset += width) {
            require(file.number(offset, width) == file.number(44 + i * frame, width), "all channels the same");
            if (!std::isnan(samples[i]))
                requireCode(decoded(file, offset, format.bits), samples[i], format.bits);
        }
}

} // namespace

// The file that its header tells of, or none; every code within a step of its sample.
void write_wav_file(Bytes bytes)
{
    constexpr int kBits[] = {8, 16, 24, 32};
    Format format{};
    format.bits = bytes.byte() % 8 ? kBits[bytes.byte() % 4] : bytes.mostlyBetween(-40, 40);
    format.rate = bytes.bits<std::int32_t>();
    format.channels = bytes.byte() % 8 ? bytes.between(1, 9) : bytes.mostlyBetween(-3, 3);
    const auto samples = bytes.samples(bytes.between(0, 32));
    const int count = bytes.byte() % 8 ? sizeOf(samples) : -bytes.between(0, 255);
    if (count > 0 && format.channels > 1000)
        format.channels = 1000;

    require(QuorDSP_WriteWAVFile(kPath, samples.data(), count, format.rate, format.bits, format.channels) == 0,
            "status 0");
    const bool isPcm = format.bits == 8 || format.bits == 16 || format.bits == 24 || format.bits == 32;
    if (!isPcm) {
        require(!fileIsThere(), "no file of another depth");
    } else if (count >= 0 && format.channels > 0 && format.channels <= 1000) {
        require(fileIsThere(), "a file");
        requireFile(takeFile(), format, samples.empty() || count == 0 ? std::vector<float>{} : samples);
    } else if (fileIsThere()) {
        require(takeFile().bytes.size() == 44, "the header alone");
    }
}

} // namespace quordsp::fuzz
