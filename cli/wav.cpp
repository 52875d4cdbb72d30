#include "wav.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <utility>

#include "failure.h"

namespace quordsp::cli {
namespace {

constexpr std::uint16_t kPcm = 1;
constexpr std::uint16_t kFloat = 3;
constexpr std::uint16_t kExtensible = 0xFFFE;
constexpr std::size_t kRiffHeader = 12;
constexpr std::size_t kChunkHeader = 8;
constexpr std::size_t kPlainFormat = 16;
constexpr std::size_t kExtensibleFormat = 40;
constexpr std::size_t kSubFormat = 24;
// The tail of the sub-format that says that its first two bytes are an ordinary format tag.
constexpr std::string_view kSubFormatTail{"\x00\x00\x00\x00\x10\x00\x80\x00\x00\xAA\x00\x38\x9B\x71", 14};

// Little-endian, byte by byte: the file need not be aligned, nor the machine be little-endian.
std::uint32_t littleEndian(const char* bytes, int count)
{
    std::uint32_t value = 0;
    for (int i = count - 1; i >= 0; --i)
        value = value << 8 | static_cast<unsigned char>(bytes[i]);
    return value;
}

std::uint16_t u16(std::string_view bytes, std::size_t at)
{
    return static_cast<std::uint16_t>(littleEndian(bytes.data() + at, 2));
}

std::uint32_t u32(std::string_view bytes, std::size_t at)
{
    return littleEndian(bytes.data() + at, 4);
}

// The sample goes to the top of 32 bits, so that its sign falls into place.
template <int kBytes>
double decodeInteger(const char* sample)
{
    const std::uint32_t top = littleEndian(sample, kBytes) << (32 - 8 * kBytes);
    return std::ldexp(static_cast<double>(static_cast<std::int32_t>(top)), -31);
}

double decodeFloat(const char* sample)
{
    return static_cast<double>(std::bit_cast<float>(littleEndian(sample, 4)));
}

} // namespace

const WavDocument::Encoding WavDocument::kEncodings[] = {
    {kPcm, 16, decodeInteger<2>},
    {kPcm, 24, decodeInteger<3>},
    {kPcm, 32, decodeInteger<4>},
    {kFloat, 32, decodeFloat},
};

bool looksLikeWav(std::string_view bytes)
{
    return bytes.starts_with("RIFF");
}

WavDocument::WavDocument(std::string bytes, std::string fileName)
    : bytes_(std::move(bytes)), fileName_(std::move(fileName))
{
    const std::string_view all = bytes_;
    if (all.size() < kRiffHeader || !looksLikeWav(all) || all.substr(8, 4) != "WAVE")
        fail("it is not a RIFF/WAVE file", "convert it to WAV, or give a CSV file another ending than .wav");
    readChunks();
    decode_ = encoding().decode;
    if (frames() == 0)
        fail("it holds no samples", "record it again");
}

void WavDocument::readChunks()
{
    const std::string_view all = bytes_;
    std::size_t position = kRiffHeader;
    while (position + kChunkHeader <= all.size()) {
        const std::string_view id = all.substr(position, 4);
        const std::size_t size = u32(all, position + 4);
        position += kChunkHeader;
        if (id == "fmt ")
            readFormat(chunkBody(id, position, size));
        if (id == "data") {
            data_ = chunkBody(id, position, size);
            return;
        }
        position += size + size % 2; // chunks start at even positions
    }
    fail("it has no data chunk", "the file is cut short or damaged; copy it again");
}

std::string_view WavDocument::chunkBody(std::string_view id, std::size_t position, std::size_t size) const
{
    const std::string_view rest = std::string_view(bytes_).substr(position);
    if (size > rest.size())
        fail("its '" + std::string(id) + "' chunk announces " + std::to_string(size) + " bytes, but " +
                 std::to_string(rest.size()) + " are there",
             "the file is cut short or damaged; copy it again");
    return rest.substr(0, size);
}

void WavDocument::readFormat(std::string_view body)
{
    if (body.size() < kPlainFormat)
        fail("its format chunk is too short", "the file is damaged; copy it again");
    format_ = {.tag = u16(body, 0),
               .channels = u16(body, 2),
               .rate = u32(body, 4),
               .frameBytes = u16(body, 12),
               .bits = u16(body, 14)};
    const bool known = body.size() >= kExtensibleFormat && body.substr(kSubFormat + 2, 14) == kSubFormatTail;
    if (format_.tag == kExtensible && known)
        format_.tag = u16(body, kSubFormat);
    if (format_.channels == 0 || format_.rate == 0 || format_.frameBytes != format_.channels * (format_.bits / 8))
        fail("its format chunk contradicts itself: " + std::to_string(format_.channels) + " channels, " +
                 std::to_string(format_.rate) + " Hz, " + std::to_string(format_.bits) + " bits, " +
                 std::to_string(format_.frameBytes) + " bytes a frame",
             "the file is damaged; copy it again");
}

const WavDocument::Encoding& WavDocument::encoding() const
{
    if (format_.channels == 0)
        fail("its data chunk comes before its format", "the file is damaged; copy it again");
    const auto fits = [this](const Encoding& row) { return row.tag == format_.tag && row.bits == format_.bits; };
    const auto* found = std::ranges::find_if(kEncodings, fits);
    if (found == std::end(kEncodings))
        fail("samples of " + std::to_string(format_.bits) + " bits with format tag " + std::to_string(format_.tag) +
                 " are not supported",
             "convert it to 16-, 24- or 32-bit PCM or to 32-bit float");
    return *found;
}

std::vector<double> WavDocument::channel(std::size_t index) const
{
    const char* sample = data_.data() + index * (format_.bits / 8);
    std::vector<double> samples(frames());
    for (double& value : samples) {
        value = decode_(sample);
        if (!std::isfinite(value))
            fail("sample " + std::to_string(&value - samples.data() + 1) + " of channel " + std::to_string(index + 1) +
                     " is not finite",
                 "repair the recording");
        sample += format_.frameBytes;
    }
    return samples;
}

void WavDocument::fail(const std::string& what, const std::string& advice) const
{
    throw Failure(ExitCode::Input, fileName_ + ": " + what, advice);
}

} // namespace quordsp::cli
