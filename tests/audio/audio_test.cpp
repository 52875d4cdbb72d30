// What the exports leave at its default, the text chunk and the log, and sizes that only few machines could write.
#include "audio/audio.h"

#include <gmock/gmock.h>

#include "own_file.h"
#include "reference/wav.h"

namespace quordsp {
namespace {

const std::vector<float> kSamples = {0.5f, -0.25f, 1.0f};

TEST(Audio, IsOneEmptyChannelByDefault)
{
    const std::string path = ownPath("default.wav");
    EXPECT_TRUE(saveAsWav({}, path.c_str()));
    EXPECT_EQ(contentOf(path), reference::pcmWav({}, 0, 44100, 16, 1));
}

TEST(Audio, AppendsItsTextAsAChunkAfterTheData)
{
    // By hand: 44 + 6 + 8 + 5 bytes.
    const std::string path = ownPath("text.wav");
    EXPECT_TRUE(saveAsWav({.samples = kSamples, .iXml = "<a/>\n", .sampleRate = 8000}, path.c_str()));
    const std::string file = contentOf(path);
    ASSERT_EQ(file.size(), 63u);
    EXPECT_EQ(file.substr(4, 4), reference::bytes(55, 4));
    EXPECT_EQ(file.substr(40, 4), reference::bytes(6, 4));
    EXPECT_EQ(file.substr(50), "iXML" + reference::bytes(5, 4) + "<a/>\n");
    EXPECT_EQ(file, reference::pcmWav(kSamples, 3, 8000, 16, 1, "<a/>\n"));
}

TEST(Audio, AppendsItsTextWithoutPaddingOddData)
{
    const std::string path = ownPath("odd.wav");
    EXPECT_TRUE(saveAsWav({.channels = 3, .samples = kSamples, .iXml = "text", .bitDepth = 8}, path.c_str()));
    EXPECT_EQ(contentOf(path), reference::pcmWav(kSamples, 3, 44100, 8, 3, "text"));
}

TEST(Audio, CountsTheTextAmongTheSizesThatMustFit)
{
    // 2^32 - 40 bytes of data are the most without a text; with one, even the shortest, the RIFF size wraps.
    const std::string path = ownPath("new.wav");
    const std::span<const float> samples{kSamples.data(), (std::size_t{1} << 30) - 10}; // only counted
    testing::internal::CaptureStdout();
    EXPECT_FALSE(saveAsWav({.channels = 2, .samples = samples, .iXml = "x"}, path.c_str()));
    EXPECT_EQ(testing::internal::GetCapturedStdout(), "ERROR: couldn't save file to " + path + "\n");
    EXPECT_FALSE(exists(path));
}

struct SizesCase {
    std::uint32_t channels;
    int bitDepth;
    std::size_t samples;
    std::uint32_t data; // as stated
    std::uint32_t riff;
    bool agree;
};

// By hand: multiples of 2^32 fall away from the bits of a frame, from the data size, and from the RIFF size.
constexpr SizesCase kSizesCases[] = {
    {1u << 27, 16, 1, 1u << 28, (1u << 28) + 36, true},             // 2^31 bits a frame
    {(1u << 28) - 1, 16, 1, (1u << 29) - 2, (1u << 29) + 34, true}, // 2^32 - 16
    {1u << 28, 16, 1, 0, 36, false},                                // 2^32
    {(1u << 27) + 1, 32, 1, 4, 40, false},                          // 2^32 + 32
    {2, 16, 1u << 29, 1u << 31, (1u << 31) + 36, true},             // 2^31 bytes of data
    {4, 8, (1u << 30) - 10, 0xFFFFFFD8, 0xFFFFFFFC, true},          // the most that fits
    {4, 8, (1u << 30) - 9, 0xFFFFFFDC, 0, false},                   // a RIFF size of 2^32
    {4, 8, (1u << 30) + 1, 4, 40, false},                           // 2^32 + 4 bytes of data
};

TEST(Audio, StatesItsSizesInUnsigned32BitsThatWrap)
{
    for (const SizesCase& c : kSizesCases) {
        const std::span<const float> samples{kSamples.data(), c.samples}; // only counted
        const WavSizes sizes = wavSizesOf({.channels = c.channels, .samples = samples, .bitDepth = c.bitDepth});
        SCOPED_TRACE(testing::Message() << c.channels << " channels, " << c.samples << " samples");
        EXPECT_EQ(sizes.statedData, c.data);
        EXPECT_EQ(sizes.statedRiff, c.riff);
        EXPECT_EQ(sizes.agree(), c.agree);
    }
}

TEST(Audio, LogsNothingWhenToldSo)
{
    const std::span<const float> samples{kSamples.data(), std::size_t{1} << 30};
    testing::internal::CaptureStdout();
    EXPECT_FALSE(saveAsWav({.channels = 4, .samples = samples, .logErrors = false}, ownPath("new.wav").c_str()));
    EXPECT_EQ(testing::internal::GetCapturedStdout(), "");
}

TEST(Audio, SaysWhetherItWasSaved)
{
    EXPECT_TRUE(saveAsWav({.samples = kSamples}, ownPath("new.wav").c_str()));
    EXPECT_FALSE(saveAsWav({.samples = kSamples, .bitDepth = 20}, ownPath("new.wav").c_str()));
    EXPECT_FALSE(saveAsWav({.samples = kSamples}, ownPath("missing/new.wav").c_str()));
    EXPECT_FALSE(saveAsWav({.samples = kSamples}, nullptr));
}

} // namespace
} // namespace quordsp
