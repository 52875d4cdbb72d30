#include "wav.h"

#include <algorithm>
#include <cmath>
#include <cstring>

#include <gmock/gmock.h>

#include "failure_of.h"
#include "file.h"

namespace quordsp::cli {
namespace {

using namespace std::string_literals;
using testing::ElementsAre;
using testing::HasSubstr;

// Little-endian bytes.
std::string bytes(std::uint64_t value, int count)
{
    std::string text;
    for (int i = 0; i < count; ++i)
        text += static_cast<char>(value >> 8 * i);
    return text;
}

std::string chunk(const std::string& id, const std::string& body)
{
    return id + bytes(body.size(), 4) + body + (body.size() % 2 ? "\0"s : ""s);
}

struct Format {
    unsigned tag = 1;
    unsigned channels = 1;
    unsigned bits = 16;
    unsigned rate = 8000;
};

std::string format(const Format& f)
{
    const unsigned frame = f.channels * f.bits / 8;
    return bytes(f.tag, 2) + bytes(f.channels, 2) + bytes(f.rate, 4) + bytes(f.rate * frame, 4) + bytes(frame, 2) +
           bytes(f.bits, 2);
}

std::string riff(const std::string& chunks)
{
    return "RIFF" + bytes(chunks.size() + 4, 4) + "WAVE" + chunks;
}

std::string wav(const Format& f, const std::string& data)
{
    return riff(chunk("fmt ", format(f)) + chunk("data", data));
}

std::vector<double> samples(const std::string& file, std::size_t channel = 0)
{
    return WavDocument(file, "f.wav").channel(channel);
}

std::string failure(const std::string& file)
{
    return messageOf([&] { samples(file); });
}

TEST(Wav, Reads16BitSamplesAsSharesOfFullScale)
{
    const std::string data = bytes(0x8000, 2) + bytes(0x7FFF, 2) + bytes(0xFFFF, 2) + bytes(0x4000, 2);
    EXPECT_THAT(samples(wav({}, data)), ElementsAre(-1, 32767.0 / 32768, -1.0 / 32768, 0.5));
}

TEST(Wav, Reads24BitSamples)
{
    const std::string data = bytes(0x800000, 3) + bytes(0x7FFFFF, 3) + bytes(0xFFFFFF, 3);
    EXPECT_THAT(samples(wav({.bits = 24}, data)), ElementsAre(-1, 8388607.0 / 8388608, -1.0 / 8388608));
}

TEST(Wav, Reads32BitSamples)
{
    const std::string data = bytes(0x80000000, 4) + bytes(0x7FFFFFFF, 4) + bytes(0x20000000, 4);
    EXPECT_THAT(samples(wav({.bits = 32}, data)), ElementsAre(-1, 2147483647.0 / 2147483648, 0.25));
}

TEST(Wav, ReadsFloatSamplesUnscaled)
{
    const std::string data = bytes(0x3FC00000, 4) + bytes(0xC1200000, 4); // 1.5 and -10 by IEEE 754
    EXPECT_THAT(samples(wav({.tag = 3, .bits = 32}, data)), ElementsAre(1.5, -10));
}

TEST(Wav, PicksTheChannelOutOfInterleavedFrames)
{
    const std::string file = wav({.channels = 3}, bytes(0x1000, 2) + bytes(0x2000, 2) + bytes(0x4000, 2) +
                                                      bytes(0xF000, 2) + bytes(0xE000, 2) + bytes(0xC000, 2));
    EXPECT_THAT(samples(file, 0), ElementsAre(0.125, -0.125));
    EXPECT_THAT(samples(file, 2), ElementsAre(0.5, -0.5));
}

TEST(Wav, TellsRateChannelsAndFrames)
{
    const WavDocument document(wav({.channels = 2, .rate = 96000}, std::string(12, '\0')), "f.wav");
    EXPECT_EQ(document.rate(), 96000);
    EXPECT_EQ(document.channels(), 2u);
    EXPECT_EQ(document.frames(), 3u);
}

std::string extensible(unsigned subFormat)
{
    const std::string tail = "\x00\x00\x00\x00\x10\x00\x80\x00\x00\xAA\x00\x38\x9B\x71"s;
    return format({.tag = 0xFFFE, .bits = 32}) + bytes(22, 2) + bytes(32, 2) + bytes(4, 4) + bytes(subFormat, 2) + tail;
}

TEST(Wav, ReadsAnExtensibleHeader)
{
    EXPECT_THAT(samples(riff(chunk("fmt ", extensible(1)) + chunk("data", bytes(0x40000000, 4)))), ElementsAre(0.5));
    EXPECT_THAT(samples(riff(chunk("fmt ", extensible(3)) + chunk("data", bytes(0x40000000, 4)))), ElementsAre(2));
}

TEST(Wav, RejectsAnExtensibleHeaderOfAnUnknownSubFormat)
{
    std::string header = extensible(1);
    header.back() = 'x';
    EXPECT_THAT(failure(riff(chunk("fmt ", header) + chunk("data", bytes(0, 4)))),
                HasSubstr("tag 65534 are not supported"));
}

TEST(Wav, SkipsOtherChunksOfEvenAndOddSize)
{
    const std::string file = riff(chunk("LIST", "odd") + chunk("fmt ", format({})) + chunk("fact", "even") +
                                  chunk("data", bytes(0x4000, 2)));
    EXPECT_THAT(samples(file), ElementsAre(0.5));
}

TEST(Wav, IgnoresWhatFollowsTheData)
{
    EXPECT_THAT(samples(wav({}, bytes(0x4000, 2)) + chunk("LIST", "tail") + "rest"), ElementsAre(0.5));
}

TEST(Wav, LeavesOutAnUnfinishedFrameAtTheEndOfTheData)
{
    EXPECT_THAT(samples(wav({}, bytes(0x4000, 2) + "x")), ElementsAre(0.5));
}

TEST(Wav, RejectsDataThatIsShorterThanItsChunkSays)
{
    const std::string file = wav({}, std::string(100, '\0'));
    EXPECT_EQ(failure(file.substr(0, file.size() - 30)),
              "f.wav: its 'data' chunk announces 100 bytes, but 70 are there");
}

TEST(Wav, RejectsASizeOfFourGigabytesWithoutAllocatingIt)
{
    std::string file = riff(chunk("fmt ", format({})) + "data" + bytes(0xFFFFFFFF, 4) + bytes(0, 4));
    EXPECT_THAT(failure(file), HasSubstr("announces 4294967295 bytes"));
}

TEST(Wav, RejectsEveryTruncationOfItsHeader)
{
    const std::string file = wav({}, bytes(0x4000, 2));
    for (std::size_t length = 0; length < file.size(); ++length)
        EXPECT_THAT(failure(file.substr(0, length)), HasSubstr("f.wav: it"));
}

TEST(Wav, NeverReadsBeyondTheFileWhateverOneByteOfTheHeaderSays)
{
    const std::string good = wav({.channels = 2}, std::string(8, '\1'));
    for (std::size_t i = 0; i < 44; ++i)
        for (int value = 0; value < 256; ++value) {
            std::string file = good;
            file[i] = static_cast<char>(value);
            try {
                const WavDocument document(file, "f.wav");
                EXPECT_LE(document.channel(document.channels() - 1).size(), 4u);
            } catch (const Failure& failure) {
                EXPECT_EQ(failure.code(), ExitCode::Input);
            }
        }
}

TEST(Wav, RejectsWhatIsNotSupportedOrContradictsItself)
{
    EXPECT_THAT(failure(wav({.bits = 8}, "x")), HasSubstr("8 bits with format tag 1 are not supported"));
    EXPECT_THAT(failure(wav({.tag = 3, .bits = 64}, std::string(8, '\0'))), HasSubstr("64 bits with format tag 3"));
    EXPECT_THAT(failure(wav({.channels = 0}, "xx")), HasSubstr("contradicts itself: 0 channels"));
    EXPECT_THAT(failure(wav({.rate = 0}, "xx")), HasSubstr("0 Hz"));
    EXPECT_THAT(failure(wav({}, "")), HasSubstr("no samples"));
    EXPECT_THAT(failure(riff(chunk("data", "xx"))), HasSubstr("data chunk comes before its format"));
    EXPECT_THAT(failure(riff(chunk("fmt ", format({})))), HasSubstr("no data chunk"));
    EXPECT_THAT(failure("RIFX" + bytes(4, 4) + "WAVE"), HasSubstr("not a RIFF/WAVE file"));
}

TEST(Wav, RejectsAFloatSampleThatIsNotFinite)
{
    const std::string data = bytes(0, 4) + bytes(0x7F800000, 4);
    EXPECT_THAT(failure(wav({.tag = 3, .bits = 32}, data)), HasSubstr("sample 2 of channel 1 is not finite"));
}

// Count, peak and RMS as the description of the recording states them.
TEST(Wav, ReadsARecordingOfABell)
{
    const WavDocument document(readFile(QUORDSP_TEST_DATA "/../../examples/data/audio_bell_44k1.wav"), "bell");
    EXPECT_EQ(document.rate(), 44100);
    EXPECT_EQ(document.channels(), 1u);
    const std::vector<double> bell = document.channel(0);
    ASSERT_EQ(bell.size(), 132300u);
    double power = 0;
    for (const double sample : bell)
        power += sample * sample;
    EXPECT_EQ(*std::ranges::min_element(bell) * 32768, -28218);
    EXPECT_NEAR(std::sqrt(power / 132300) * 32768, 2885, 0.5);
}

} // namespace
} // namespace quordsp::cli
