#include "input.h"

#include <gmock/gmock.h>

#include "failure_of.h"
#include "scratch_folder.h"

namespace quordsp::cli {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

InputChoice choice(const std::string& column, std::optional<double> rate = std::nullopt)
{
    return {{}, column, rate};
}

class Input : public testing::Test {
protected:
    Series read(const std::string& text, InputChoice chosen = {})
    {
        chosen.path = folder.put("f.csv", text);
        return readSeries(chosen);
    }

    ScratchFolder folder;
};

TEST_F(Input, TakesTheFirstColumnThatIsNotTime)
{
    const Series series = read("time_s,x_g,y_g\n0,1,2\n0.5,3,4\n");
    EXPECT_EQ(series.label.quantity, "x");
    EXPECT_EQ(series.label.unit, "g");
    EXPECT_THAT(series.samples, ElementsAre(1, 3));
}

TEST_F(Input, TakesRateAndStartFromTheTimeColumn)
{
    const Series series = read("x,time_ms\n1,250\n2,500\n3,750\n");
    EXPECT_EQ(series.rate, 4);
    EXPECT_EQ(series.start, 0.25);
    EXPECT_EQ(series.time(2), 0.75);
}

TEST_F(Input, LetsTheRateOptionOverrideTheTimeColumnWithoutReadingIt)
{
    const Series series = read("timestamp,x\nmonday,1\ntuesday,2\n", choice("", 10));
    EXPECT_EQ(series.rate, 10);
    EXPECT_EQ(series.start, 0);
}

TEST_F(Input, TakesAColumnByName)
{
    EXPECT_THAT(read("x,y\n1,2\n", choice("y", 1)).samples, ElementsAre(2));
}

TEST_F(Input, TakesAColumnByNumberFromOne)
{
    EXPECT_THAT(read("x,y\n1,2\n", choice("2", 1)).samples, ElementsAre(2));
}

TEST_F(Input, PrefersANameToANumber)
{
    EXPECT_THAT(read("2,x\nnone,5\n7,6\n", choice("x", 1)).samples, ElementsAre(5, 6));
    EXPECT_THAT(read("x,1\n7,8\n", choice("1", 1)).samples, ElementsAre(8));
}

TEST_F(Input, ListsTheColumnsWhenTheChosenOneIsNotThere)
{
    const Failure failure = failureOf([&] { read("x_g,y_g\n1,2\n", choice("z_g", 1)); });
    EXPECT_EQ(failure.code(), ExitCode::Input);
    EXPECT_THAT(failure.what(), HasSubstr("there is no column 'z_g'"));
    EXPECT_THAT(failure.advice(), HasSubstr("'x_g', 'y_g'"));
}

TEST_F(Input, RefusesAFileOfTimesAloneUnlessTheyAreAskedFor)
{
    const Failure failure = failureOf([&] { read("time_s\n0\n1\n"); });
    EXPECT_EQ(failure.code(), ExitCode::Input);
    EXPECT_THAT(failure.what(), HasSubstr("there is no column besides time"));
    EXPECT_THAT(messageOf([&] { read("time_s\n0\n1\n", choice("", 5)); }), HasSubstr("no column besides time"));
    EXPECT_THAT(read("time_s\n0\n1\n", choice("time_s")).samples, ElementsAre(0, 1));
}

TEST_F(Input, TellsThatOneRowHasNoRate)
{
    EXPECT_THAT(messageOf([&] { read("t,x\n0,1\n"); }), HasSubstr("one row tells no sampling rate"));
}

TEST_F(Input, AsksForTheRateWhenThereIsNoTimeColumn)
{
    EXPECT_EQ(failureOf([&] { read("x\n1\n2\n"); }).code(), ExitCode::Usage);
}

TEST_F(Input, RefusesTimesThatAreNotEquallySpaced)
{
    const Failure failure = failureOf([&] { read("t,x\n0,1\n1,2\n5,3\n"); });
    EXPECT_EQ(failure.code(), ExitCode::Input);
    EXPECT_THAT(failure.what(), HasSubstr("not equally spaced"));
}

TEST_F(Input, NamesTheLineOfATimeThatIsNoNumber)
{
    EXPECT_THAT(messageOf([&] { read("timestamp,x\n09:04,1\n09:05,2\n"); }),
                HasSubstr("f.csv:2: column 'timestamp': '09:04' is not a number"));
}

TEST_F(Input, RefusesAFileWithNamesAlone)
{
    EXPECT_THAT(messageOf([&] { read("x,y\n", choice("", 1)); }), HasSubstr("no row of numbers"));
}

TEST_F(Input, ReadsTheChannelsOfAWavFile)
{
    const Series series = readSeries({QUORDSP_TEST_DATA "/../../examples/data/audio_bell_44k1.wav", "1"});
    EXPECT_EQ(series.rate, 44100);
    EXPECT_EQ(series.label.axis(), "channel 1 (FS)");
    EXPECT_EQ(series.samples.size(), 132300u);
}

TEST_F(Input, RefusesARateForAWavFileAndAChannelThatIsNotThere)
{
    const std::filesystem::path bell = QUORDSP_TEST_DATA "/../../examples/data/audio_bell_44k1.wav";
    EXPECT_EQ(failureOf([&] { readSeries({bell, "", 1}); }).code(), ExitCode::Usage);
    EXPECT_EQ(failureOf([&] { readSeries({bell, "2"}); }).code(), ExitCode::Input);
}

TEST_F(Input, ReadsAFileWithTheEndingWavAsWav)
{
    EXPECT_THAT(messageOf([&] { readSeries({folder.put("f.wav", "1\n2\n"), "", 1}); }),
                HasSubstr("not a RIFF/WAVE file"));
}

TEST_F(Input, ReadsTwoColumnsAsTheSignalOfTheirComplexValues)
{
    const std::filesystem::path file = folder.put("f.csv", "t,i_V,q_V,r_g\n0,1,2,3\n0.5,4,5,6\n1,7,8,9\n");
    const Series series = cut(readSeries({.path = file, .column = "i_V", .imaginary = "3"}), {.from = 0.5});
    EXPECT_EQ(series.label.axis(), "i + j q (V)");
    EXPECT_EQ(series.rate, 2);
    EXPECT_TRUE(series.isComplex());
    EXPECT_THAT(series.samples, ElementsAre(4, 7));
    EXPECT_THAT(series.imaginary, ElementsAre(5, 8));
    EXPECT_THAT(messageOf([&] { readSeries({.path = file, .column = "", .imaginary = "r_g"}); }),
                "the real part is 'i (V)', the imaginary part 'r (g)'");
    EXPECT_THAT(messageOf([&] { readSeries({.path = file, .column = "", .imaginary = "x"}); }),
                HasSubstr("there is no column 'x'"));
}

Series tenSeconds()
{
    Series series;
    series.rate = 10;
    series.start = 5;
    for (int i = 0; i < 100; ++i)
        series.samples.push_back(i);
    return series;
}

TEST(Cut, KeepsFromTheFirstTimeUpToTheLastWithoutIt)
{
    const Series part = cut(tenSeconds(), {.from = 6, .to = 6.5});
    EXPECT_THAT(part.samples, ElementsAre(10, 11, 12, 13, 14));
    EXPECT_EQ(part.start, 6);
}

TEST(Cut, KeepsAllWithoutTimes)
{
    EXPECT_EQ(cut(tenSeconds(), {}).samples.size(), 100u);
}

TEST(Cut, StopsAtTheEndsOfTheSignal)
{
    const Series part = cut(tenSeconds(), {.from = -1e300, .to = 1e300});
    EXPECT_EQ(part.samples.size(), 100u);
    EXPECT_EQ(part.start, 5);
}

TEST(Cut, FailsWhenNothingIsLeft)
{
    EXPECT_EQ(failureOf([] { cut(tenSeconds(), {.from = 20}); }).code(), ExitCode::Usage);
    EXPECT_EQ(failureOf([] { cut(tenSeconds(), {.from = 7, .to = 6}); }).code(), ExitCode::Usage);
}

} // namespace
} // namespace quordsp::cli
