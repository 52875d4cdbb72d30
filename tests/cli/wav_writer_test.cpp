#include "wav_writer.h"

#include <cmath>

#include <gmock/gmock.h>

#include "failure_of.h"
#include "file.h"
#include "scratch_folder.h"
#include "wav.h"

namespace quordsp::cli {
namespace {

using testing::HasSubstr;

const std::vector<double> kSamples{0, 1, -1, 0.5, -0.25};

WavDocument reread(const std::filesystem::path& path)
{
    return {readFile(path), "f.wav"};
}

// The reader divides by a power of two, the writer multiplies by one less.
TEST(WavWriter, WritesWhatTheReaderReadsBackInEveryFormat)
{
    struct Row {
        WavFormat format;
        double step;
    };
    const ScratchFolder folder;
    for (const auto& [format, step] :
         {Row{pcm(16, 1), 0x1p-15}, {pcm(24, 2), 0x1p-23}, {pcm(32, 3), 0x1p-23}, {stereo16(), 0x1p-15}}) {
        writeWav(folder / "f.wav", format, kSamples, 1, 8000);
        const WavDocument document = reread(folder / "f.wav");
        EXPECT_EQ(document.rate(), 8000);
        ASSERT_EQ(document.channels(), static_cast<std::size_t>(format.channels));
        for (std::size_t channel = 0; channel < document.channels(); ++channel) {
            const auto samples = document.channel(channel);
            ASSERT_EQ(samples.size(), kSamples.size());
            for (std::size_t i = 0; i < samples.size(); ++i)
                EXPECT_NEAR(samples[i], kSamples[i], 2 * step) << format.text() << ", sample " << i;
        }
        EXPECT_EQ(std::filesystem::file_size(folder / "f.wav"), format.fileBytes(kSamples.size()));
    }
    EXPECT_EQ(folder.fileCount(), 1);
}

// The description of QuorDSP_WriteWAVFile: (s + 1)/2 * 254 + 1, cut.
TEST(WavWriter, WritesEightBits)
{
    const ScratchFolder folder;
    writeWav(folder / "f.wav", pcm(8, 1), kSamples, 1, 8000);
    EXPECT_EQ(ScratchFolder::get(folder / "f.wav").substr(44), "\x80\xFF\x01\xBF\x60");
}

TEST(WavWriter, DividesByTheFullScale)
{
    const ScratchFolder folder;
    writeWav(folder / "f.wav", pcm(16, 1), std::vector{5.0, -2.5}, 10, 8000);
    EXPECT_NEAR(reread(folder / "f.wav").channel(0)[0], 0.5, 0x1p-14);
    EXPECT_NEAR(reread(folder / "f.wav").channel(0)[1], -0.25, 0x1p-14);
}

TEST(WavWriter, TakesFoldersAndNamesOutsideAscii)
{
    const ScratchFolder folder;
    const std::filesystem::path inside = folder / u8"\u00E4\u4E2D";
    std::filesystem::create_directory(inside);
    writeWav(inside / u8"\u00DF.wav", pcm(16, 1), kSamples, 1, 8000);
    EXPECT_EQ(reread(inside / u8"\u00DF.wav").frames(), kSamples.size());
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(inside), {}), 1);
}

TEST(WavWriter, ComesBackToTheWorkingFolder)
{
    const ScratchFolder folder;
    const auto before = std::filesystem::current_path();
    writeWav(folder / "f.wav", pcm(16, 1), kSamples, 1, 8000);
    EXPECT_EQ(std::filesystem::current_path(), before);
}

TEST(WavWriter, ReplacesAnOlderFileOnlyByAWholeOne)
{
    const ScratchFolder folder;
    folder.put("f.wav", "older");
    EXPECT_EQ(
        failureOf([&] { writeWav(folder / "f.wav", pcm(32, 16383), std::vector<double>(32771), 1, 8000); }).code(),
        ExitCode::Usage);
    EXPECT_EQ(ScratchFolder::get(folder / "f.wav"), "older");
    writeWav(folder / "f.wav", pcm(16, 1), kSamples, 1, 8000);
    EXPECT_EQ(reread(folder / "f.wav").frames(), kSamples.size());
    EXPECT_EQ(folder.fileCount(), 1);
}

TEST(WavWriter, RefusesAFolderThatIsNotThereOrIsTheTarget)
{
    const ScratchFolder folder;
    EXPECT_EQ(failureOf([&] { writeWav(folder / "none/f.wav", pcm(16, 1), kSamples, 1, 8000); }).code(),
              ExitCode::Output);
    std::filesystem::create_directory(folder / "f.wav");
    EXPECT_EQ(failureOf([&] { writeWav(folder / "f.wav", pcm(16, 1), kSamples, 1, 8000); }).code(), ExitCode::Output);
    EXPECT_EQ(folder.fileCount(), 1);
}

TEST(WavWriter, RefusesABitRateThatTheHeaderCannotHold)
{
    const ScratchFolder folder;
    EXPECT_THAT(messageOf([&] { writeWav(folder / "f.wav", pcm(32, 2), kSamples, 1, 2147483647); }),
                HasSubstr("32 bits, 2 channels"));
    EXPECT_EQ(folder.fileCount(), 0);
}

// 16 bits count the bytes of one sample of all channels: 65534 of 32767 channels, 65536 of one more.
TEST(WavWriter, RefusesChannelsThatTheHeaderCannotHold)
{
    const ScratchFolder folder;
    EXPECT_THAT(messageOf([&] { writeWav(folder / "f.wav", pcm(16, 32768), kSamples, 1, 10); }),
                HasSubstr("cannot hold 16 bits, 32768 channels"));
    EXPECT_EQ(folder.fileCount(), 0);
    writeWav(folder / "f.wav", pcm(16, 32767), kSamples, 1, 10);
    EXPECT_EQ(reread(folder / "f.wav").channels(), 32767u);
    EXPECT_EQ(ScratchFolder::get(folder / "f.wav").substr(32, 2), "\xFE\xFF");
}

TEST(LevelOf, CountsWhatLiesBeyondFullScale)
{
    const Level level = levelOf(std::vector{1.0, -2.0, 2.5, -3.0, 0.0}, 2);
    EXPECT_EQ(level.peak, 3);
    EXPECT_EQ(level.beyond, 2u);
}

} // namespace
} // namespace quordsp::cli
