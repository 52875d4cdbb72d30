#include "QuorDSP_DAQ.h"
#include "wav.h"

#include "targets.h"

namespace quordsp::fuzz {
namespace {

// The low 16 bits of the value cut towards zero; of 0x80000000 where 32 bits do not hold it.
std::uint32_t codeOf(float sample)
{
    const float scaled = sample * 32767.0F;
    const bool fits = scaled >= -0x1p31F && scaled < 0x1p31F;
    return fits ? static_cast<std::uint32_t>(static_cast<std::int32_t>(scaled)) & 0xffff : 0;
}

} // namespace

// The file that its header tells of, every code right; and nothing for a name that cannot be.
void write_wav(Bytes bytes)
{
    const std::uint32_t rate = bytes.bits<std::uint32_t>();
    const auto samples = bytes.samples(bytes.between(0, 64));
    const bool isBelowOne = bytes.byte() % 8 == 0;
    const int count = isBelowOne ? -static_cast<int>(bytes.bits<std::uint32_t>() >> 1) : sizeOf(samples);
    require(QuorDSP_WriteWAV(kPath, samples.data(), count, rate) == 0, "status 0");
    const File file = takeFile();
    require(file.bytes.size() == 56 + (count > 0 ? 4 * samples.size() : 0), "the size of the file");
    requireFormat(file, 2, rate, 16);
    const std::uint32_t size = 4 * static_cast<std::uint32_t>(count);
    require(file.number(4, 4) == size + 48 && file.number(52, 4) == size, "the sizes in the header");
    require(file.number(28, 4) == 4 * rate && file.number(32, 2) == 4, "byte rate and block");
    require(file.hasText(36, "fact") && file.number(40, 4) == 4 && file.number(44, 4) == 0, "the fact chunk");
    require(file.hasText(48, "data"), "the data chunk");
    for (std::size_t i = 0; i < samples.size() && count > 0; ++i)
        for (const std::size_t offset : {56 + 4 * i, 58 + 4 * i})
            require(file.number(offset, 2) == codeOf(samples[i]), "the code of the sample");
}

} // namespace quordsp::fuzz
