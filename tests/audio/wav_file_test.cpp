// QuorDSP_WriteWAVFile, byte by byte.
#include <climits>
#include <tuple>

#include <gmock/gmock.h>

#include "QuorDSP_DAQ.h"
#include "awkward_samples.h"
#include "own_file.h"
#include "reference/wav.h"

namespace quordsp {
namespace {

using namespace std::string_literals;
using reference::bytes;

constexpr std::size_t kHeaderSize = 44;
constexpr int kRate = 44100;

struct Parameters {
    int bitDepth = 16;
    int channels = 1;
    int rate = kRate;
};

std::string written(const std::vector<float>& samples, int count, const Parameters& p)
{
    const std::string path = ownPath("file.wav");
    EXPECT_EQ(QuorDSP_WriteWAVFile(path.c_str(), samples.data(), count, p.rate, p.bitDepth, p.channels), 0);
    return contentOf(path);
}

std::string written(const std::vector<float>& samples, const Parameters& p)
{
    return written(samples, static_cast<int>(samples.size()), p);
}

std::string data(const std::vector<float>& samples, int bitDepth)
{
    return written(samples, {.bitDepth = bitDepth}).substr(kHeaderSize);
}

TEST(WavFile, WritesAKnownFileAndClips)
{
    // By hand: 48 bytes, RIFF size 40; 32767 and -32767.
    EXPECT_EQ(written({1.5f, -1.5f}, {}), "RIFF\x28\0\0\0WAVE"
                                          "fmt \x10\0\0\0\x01\0\x01\0\x44\xAC\0\0\x88\x58\x01\0\x02\0\x10\0"
                                          "data\x04\0\0\0\xFF\x7F\x01\x80"s);
}

TEST(WavFile, Writes8BitsFrom1To255)
{
    EXPECT_EQ(data({-1.0f, 0.0f, 1.0f, -7.0f, 7.0f}, 8), "\x01\x80\xFF\x01\xFF");
}

TEST(WavFile, Writes16BitsCutTowardsZero)
{
    // (1 + 2^-15)/2^15 * 32767 = 1 - 2^-30, which double precision keeps below 1.
    EXPECT_EQ(data({0.99999994f, 0x1.0002p-15f, -0.5f}, 16), bytes(32766, 2) + bytes(0, 2) + "\x01\xC0");
}

TEST(WavFile, Writes24BitsLeastSignificantFirst)
{
    EXPECT_EQ(data({0.5f, -0.5f, 1.0f, -1.0f}, 24), "\xFF\xFF\x3F\x01\x00\xC0\xFF\xFF\x7F\x01\x00\x80"s);
}

TEST(WavFile, Writes32BitsWithoutTheLowestCode)
{
    EXPECT_EQ(data({1.0f, -1.0f, 2.0f, -2.0f}, 32),
              "\xFF\xFF\xFF\x7F\x01\x00\x00\x80\xFF\xFF\xFF\x7F\x01\x00\x00\x80"s);
    EXPECT_EQ(data({0.5f, -0.5f, 0.99999994f}, 32), "\0\0\0\x40\0\0\0\xC0\x80\xFF\xFF\x7F"s);
}

TEST(WavFile, WritesTheLowBitsOfTheConversionForNaN)
{
    for (const float sample : {NAN, -NAN}) {
        EXPECT_EQ(data({sample}, 8), "\0"s);
        EXPECT_EQ(data({sample}, 16), "\0\0"s);
        EXPECT_EQ(data({sample}, 24), "\0\0\0"s);
        EXPECT_EQ(data({sample}, 32), "\0\0\0\x80"s);
    }
}

TEST(WavFile, ClipsInfinity)
{
    EXPECT_EQ(data({HUGE_VALF, -HUGE_VALF}, 16), "\xFF\x7F\x01\x80");
    EXPECT_EQ(data({HUGE_VALF, -HUGE_VALF}, 8), "\xFF\x01");
}

TEST(WavFile, RepeatsEveryValueInEveryChannel)
{
    const std::string file = written({0.5f, -1.0f}, {.bitDepth = 24, .channels = 3});
    EXPECT_EQ(file.substr(32, 2), bytes(9, 2)) << "block align";
    EXPECT_EQ(file.substr(kHeaderSize), "\xFF\xFF\x3F\xFF\xFF\x3F\xFF\xFF\x3F"
                                        "\x01\x00\x80\x01\x00\x80\x01\x00\x80"s);
}

TEST(WavFile, GivesTheBytesOfThePlainLoops)
{
    const std::vector<float> samples = awkwardSamples(5000);
    for (const int bitDepth : {8, 16, 24, 32})
        for (const int channels : {INT_MIN, -1, 0, 1, 2, 3, 7})
            for (const int count : {INT_MIN, -1, 0, 1, 2, 255, 256, 257, 511, 512, 513, 5000})
                EXPECT_TRUE(written(samples, count, {bitDepth, channels}) ==
                            reference::pcmWav(samples, count, kRate, bitDepth, channels))
                    << bitDepth << " bits, " << channels << " channels, " << count << " samples";
}

TEST(WavFile, ChangesItsCodesExactlyWhereTheProductsAreWhole)
{
    for (const auto& [bitDepth, top, step] : {std::tuple{16, 32767, 1}, {24, 8388607, 191}}) {
        std::vector<float> samples;
        for (int code = 1; code <= top; code += step) {
            const float edge = static_cast<float>(code) / static_cast<float>(top);
            for (const float sample : {std::nextafter(edge, 0.0f), edge, std::nextafter(edge, 2.0f)}) {
                samples.push_back(sample);
                samples.push_back(-sample);
            }
        }
        const auto count = static_cast<int>(samples.size());
        EXPECT_TRUE(written(samples, {bitDepth}) == reference::pcmWav(samples, count, kRate, bitDepth, 1)) << bitDepth;
    }
}

TEST(WavFile, NeedsNoArrayWithoutSamples)
{
    const std::string path = ownPath("empty.wav");
    QuorDSP_WriteWAVFile(path.c_str(), nullptr, 0, kRate, 16, 2);
    EXPECT_EQ(contentOf(path), reference::pcmWav({}, 0, kRate, 16, 2));
}

TEST(WavFile, WrapsRatesAndNumbersOfChannelsToTheirFields)
{
    for (const int rate : {0, -1, INT_MIN, INT_MAX, 0x08000000, 0x10000001})
        for (const int bitDepth : {8, 32})
            EXPECT_EQ(written({0.5f}, {bitDepth, 3, rate}), reference::pcmWav({0.5f}, 1, rate, bitDepth, 3)) << rate;
    const std::string many = written({0.5f}, {8, 0x10001});
    EXPECT_EQ(many.substr(22, 2), bytes(1, 2));
    EXPECT_TRUE(many == reference::pcmWav({0.5f}, 1, kRate, 8, 0x10001));
    // No samples, so nothing contradicts the header, however many channels there are.
    EXPECT_EQ(written({}, {32, INT_MAX}), reference::pcmWav({}, 0, kRate, 32, INT_MAX));
}

TEST(WavFile, WritesNothingForAnotherDepth)
{
    const std::string path = put("kept.wav", "kept");
    testing::internal::CaptureStdout();
    testing::internal::CaptureStderr();
    const float sample = 0.5f;
    for (const int bitDepth : {12, 0, -8, -16, 1, 7, 9, 48, 64, INT_MIN, INT_MAX}) {
        EXPECT_EQ(QuorDSP_WriteWAVFile(path.c_str(), &sample, 1, kRate, bitDepth, 1), 0);
        EXPECT_EQ(QuorDSP_WriteWAVFile(path.c_str(), &sample, INT_MAX, kRate, bitDepth, INT_MAX), 0);
        EXPECT_EQ(QuorDSP_WriteWAVFile(ownPath("new.wav").c_str(), &sample, 1, kRate, bitDepth, 1), 0);
    }
    EXPECT_EQ(testing::internal::GetCapturedStdout() + testing::internal::GetCapturedStderr(), "");
    EXPECT_EQ(contentOf(path), "kept");
    EXPECT_FALSE(exists(ownPath("new.wav")));
}

struct Oversize {
    int count;
    int bitDepth;
    int channels;
};

constexpr Oversize kOversizes[] = {
    {INT_MAX, 32, INT_MAX}, // nearly 2^64 bytes
    {1 << 30, 16, 2},       // 2^32: the data size wraps to 0
    {(1 << 30) - 9, 16, 2}, // 2^32 - 36: the RIFF size wraps to 0
    {1 << 16, 8, 1 << 16},  // 2^32
    {1, 8, 1 << 29},        // 2^29 bytes, but the bits of a frame wrap to 0
    {INT_MAX, 24, 1},       // 3 * 2^31 - 3
};

TEST(WavFile, ReportsSizesThatTheHeaderCannotHold)
{
    const std::string path = put("kept.wav", "kept");
    const float sample = 0.5f; // no more of them are read
    for (const auto& [count, bitDepth, channels] : kOversizes) {
        testing::internal::CaptureStdout();
        testing::internal::CaptureStderr();
        EXPECT_EQ(QuorDSP_WriteWAVFile(path.c_str(), &sample, count, kRate, bitDepth, channels), 0);
        EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
        EXPECT_EQ(testing::internal::GetCapturedStdout(), "ERROR: couldn't save file to " + path + "\n") << count;
        EXPECT_EQ(contentOf(path), "kept");
    }
}

TEST(WavFile, ReportsSizesWithoutAPath)
{
    const float sample = 0.5f;
    testing::internal::CaptureStdout();
    QuorDSP_WriteWAVFile(nullptr, &sample, INT_MAX, kRate, 32, 2);
    EXPECT_EQ(testing::internal::GetCapturedStdout(), "ERROR: couldn't save file to \n");
}

TEST(WavFile, ReplacesALongerFile)
{
    put("file.wav", std::string(10000, 'x'));
    EXPECT_EQ(written({0.5f}, {}), reference::pcmWav({0.5f}, 1, kRate, 16, 1));
}

TEST(WavFile, IsSilentAboutAFileThatCannotBeCreated)
{
    const std::string folder = ownPath("folder");
    std::filesystem::create_directory(folder);
    const std::string missing = ownPath("missing/file.wav");
    testing::internal::CaptureStdout();
    testing::internal::CaptureStderr();
    const float sample = 0.5f;
    for (const char* path : {folder.c_str(), missing.c_str(), "", static_cast<const char*>(nullptr)})
        EXPECT_EQ(QuorDSP_WriteWAVFile(path, &sample, 1, kRate, 16, 1), 0);
    EXPECT_EQ(testing::internal::GetCapturedStdout() + testing::internal::GetCapturedStderr(), "");
    EXPECT_TRUE(std::filesystem::is_empty(folder));
    EXPECT_FALSE(exists(ownPath("missing")));
}

} // namespace
} // namespace quordsp
