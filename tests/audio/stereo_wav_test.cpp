// QuorDSP_WriteWAV, byte by byte.
#include <climits>

#include <gmock/gmock.h>

#include "QuorDSP_DAQ.h"
#include "awkward_samples.h"
#include "own_file.h"
#include "reference/wav.h"

namespace quordsp {
namespace {

using namespace std::string_literals;
using reference::bytes;

constexpr std::size_t kHeaderSize = 56;

std::string written(const std::vector<float>& samples, int count, unsigned sampleRate)
{
    const std::string path = ownPath("stereo.wav");
    EXPECT_EQ(QuorDSP_WriteWAV(path.c_str(), samples.data(), count, sampleRate), QUORDSP_SUCCESS);
    return contentOf(path);
}

std::string written(const std::vector<float>& samples, unsigned sampleRate = 8000)
{
    return written(samples, static_cast<int>(samples.size()), sampleRate);
}

std::string data(const std::vector<float>& samples)
{
    return written(samples).substr(kHeaderSize);
}

// A code in both channels.
std::string frame(int code)
{
    return bytes(static_cast<std::uint64_t>(code), 2) + bytes(static_cast<std::uint64_t>(code), 2);
}

TEST(StereoWav, WritesAKnownFile)
{
    // By hand: 60 bytes follow the RIFF size, 12 the data size; 16383, -16383 and 32767 as 16 bits.
    EXPECT_EQ(written({0.5f, -0.5f, 1.0f}), "RIFF\x3C\0\0\0WAVE"
                                            "fmt \x10\0\0\0\x01\0\x02\0\x40\x1F\0\0\0\x7D\0\0\x04\0\x10\0"
                                            "fact\x04\0\0\0\0\0\0\0"
                                            "data\x0C\0\0\0"
                                            "\xFF\x3F\xFF\x3F\x01\xC0\x01\xC0\xFF\x7F\xFF\x7F"s);
}

TEST(StereoWav, WrapsWhatLiesBeyondFullScale)
{
    EXPECT_EQ(data({2.0f, -2.0f, 1.5f, 3.0f}), frame(-2) + frame(2) + frame(49150) + frame(98301));
}

TEST(StereoWav, CutsTowardsZero)
{
    EXPECT_EQ(data({0x1p-15f, -0x1p-15f, 1.9f / 32767, -1.9f / 32767}), frame(0) + frame(0) + frame(1) + frame(-1));
}

TEST(StereoWav, MultipliesInSinglePrecision)
{
    // (1 + 2^-15)/2^15 * 32767 = 1 - 2^-30, which single precision rounds to 1.
    EXPECT_EQ(data({0x1.0002p-15f, 0.99999994f}), frame(1) + frame(32766));
}

TEST(StereoWav, WritesZeroForWhatDoesNotFit32BitsAndForNaN)
{
    for (const float sample : {NAN, -NAN, HUGE_VALF, -HUGE_VALF, 1e30f, -1e30f, 65538.0f, -65540.0f})
        EXPECT_EQ(data({sample}), frame(0)) << sample;
    // 65537 * 32767 = 2147450879 is 2^31 - 2^15 in single precision.
    EXPECT_EQ(data({65537.0f, -65537.0f}), frame(-32768) + frame(-32768));
}

TEST(StereoWav, GivesTheBytesOfThePlainLoops)
{
    const std::vector<float> samples = awkwardSamples(5000);
    for (const int count : {0, 1, 2, 3, 255, 256, 257, 511, 512, 513, 5000})
        EXPECT_TRUE(written(samples, count, 44100) == reference::stereoWav(samples, count, 44100)) << count;
}

TEST(StereoWav, FormsTheHeaderFromTheCountAsItStands)
{
    for (const int count : {0, -1, -2, -12, -13, INT_MIN, INT_MIN + 1}) {
        const std::string header = written({}, count, 8000);
        const auto dataSize = static_cast<std::uint64_t>(std::int64_t{count} * 4);
        ASSERT_EQ(header.size(), kHeaderSize) << count;
        EXPECT_EQ(header.substr(4, 4), bytes(dataSize + 48, 4)) << count;
        EXPECT_EQ(header.substr(52, 4), bytes(dataSize, 4)) << count;
    }
}

TEST(StereoWav, NeedsNoArrayWithoutSamples)
{
    const std::string path = ownPath("empty.wav");
    EXPECT_EQ(QuorDSP_WriteWAV(path.c_str(), nullptr, 0, 8000), QUORDSP_SUCCESS);
    EXPECT_EQ(contentOf(path), reference::stereoWav({}, 0, 8000));
}

TEST(StereoWav, WrapsTheByteRateAt32Bits)
{
    for (const unsigned rate : {0u, 1u, 192000u, 0x3FFFFFFFu, 0x40000001u, 0xFFFFFFFFu})
        EXPECT_EQ(written({0.25f}, rate), reference::stereoWav({0.25f}, 1, rate)) << rate;
}

TEST(StereoWav, ReplacesALongerFile)
{
    put("stereo.wav", std::string(10000, 'x'));
    EXPECT_EQ(written({0.5f}), reference::stereoWav({0.5f}, 1, 8000));
}

TEST(StereoWav, PrintsNothingWhenAllIsWell)
{
    testing::internal::CaptureStdout();
    testing::internal::CaptureStderr();
    written({0.5f});
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
    EXPECT_EQ(testing::internal::GetCapturedStdout(), "");
}

TEST(StereoWav, SaysThatAFileCannotBeCreated)
{
    const std::string folder = ownPath("folder");
    std::filesystem::create_directory(folder);
    const std::string missing = ownPath("missing/stereo.wav");
    for (const char* path : {folder.c_str(), missing.c_str(), "", static_cast<const char*>(nullptr)}) {
        SCOPED_TRACE(path ? path : "null");
        const float sample = 0.5f;
        testing::internal::CaptureStdout();
        testing::internal::CaptureStderr();
        EXPECT_EQ(QuorDSP_WriteWAV(path, &sample, 1, 8000), 20033);
        EXPECT_EQ(testing::internal::GetCapturedStderr(),
                  "\xE6\x97\xA0\xE6\xB3\x95\xE5\x88\x9B\xE5\xBB\xBA\xE6\x96\x87\xE4\xBB\xB6\n");
        EXPECT_EQ(testing::internal::GetCapturedStdout(), "");
    }
    EXPECT_TRUE(std::filesystem::is_empty(folder));
    EXPECT_FALSE(exists(ownPath("missing")));
}

} // namespace
} // namespace quordsp
