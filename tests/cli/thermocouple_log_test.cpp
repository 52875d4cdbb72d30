#include "thermocouple_log.h"

#include <gmock/gmock.h>

#include "failure_of.h"
#include "scratch_folder.h"

namespace quordsp::cli {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

class Log : public testing::Test {
protected:
    ThermocoupleLog read(const std::string& text, LogChoice choice = {.input = {}, .coldJunction = 20})
    {
        choice.input.path = folder.put("f.csv", text);
        return readThermocoupleLog(choice);
    }

    ScratchFolder folder;
};

constexpr const char* kRig = "timestamp,cold_junction_degC,emf_mV\n"
                             "2026-05-26 09:04:27.367,22,9.1\n"
                             "2026-05-26 09:04:28.398,23,9.2\n";

TEST_F(Log, TakesTheColumnInAUnitOfVoltage)
{
    const auto log = read(kRig);
    EXPECT_EQ(log.quantity, "emf");
    EXPECT_THAT(log.emf, ElementsAre(9.1, 9.2));
    EXPECT_THAT(log.coldJunction, ElementsAre(20));
}

TEST_F(Log, TakesTheFirstOtherColumnWhenNoneIsInAUnitOfVoltage)
{
    EXPECT_THAT(read("t,reading\n0,9\n1,8\n").emf, ElementsAre(9, 8));
    EXPECT_THAT(read("cj,a,b\n20,1,2\n", {.input = {}, .coldJunctionColumn = "cj"}).emf, ElementsAre(1));
}

TEST_F(Log, ReadsTheColdJunctionOfEachRow)
{
    LogChoice choice;
    choice.coldJunctionColumn = "cold_junction_degC";
    EXPECT_THAT(read(kRig, choice).coldJunction, ElementsAre(22, 23));
}

TEST_F(Log, ConvertsVoltsAndMicrovolts)
{
    EXPECT_THAT(read("a_V\n0.009\n").emf, ElementsAre(9));
    EXPECT_THAT(read("a_uV\n9000\n").emf, ElementsAre(9));
}

TEST_F(Log, CountsTimestampsFromTheFirst)
{
    const auto log = read(kRig);
    EXPECT_THAT(log.places, ElementsAre(0, 1.031));
    EXPECT_THAT(log.timestamps, ElementsAre("2026-05-26 09:04:27.367", "2026-05-26 09:04:28.398"));
    EXPECT_EQ(log.placeName, "time_s");
    EXPECT_EQ(log.placeLabel, "time after 2026-05-26 09:04:27.367 (s)");
}

TEST_F(Log, KnowsTimestampsInAFirstColumnOfAnyName)
{
    EXPECT_THAT(read("logged,emf_mV\n2026-05-26 09:04,1\n2026-05-26 09:05,2\n").places, ElementsAre(0, 60));
}

TEST_F(Log, TakesNumbersOfTimeAsTheyAre)
{
    const auto log = read("time_min,emf_mV\n1,5\n2,6\n5,7\n");
    EXPECT_THAT(log.places, ElementsAre(60, 120, 300));
    EXPECT_THAT(log.timestamps, IsEmpty());
}

TEST_F(Log, CountsRowsWhereThereIsNoTime)
{
    const auto log = read("emf_mV\n5\n6\n");
    EXPECT_THAT(log.places, ElementsAre(1, 2));
    EXPECT_EQ(log.placeName, "row");
}

TEST_F(Log, PrefersTheRate)
{
    EXPECT_THAT(read(kRig, {.input = {{}, "", 2.0}, .coldJunction = 0}).places, ElementsAre(0, 0.5));
}

TEST_F(Log, NamesTheLineOfATimestampThatIsNone)
{
    const Failure failure = failureOf([&] { read("timestamp,emf_mV\n2026-05-26 09:04:27,1\nlater,2\n"); });
    EXPECT_EQ(failure.code(), ExitCode::Input);
    EXPECT_THAT(failure.what(), HasSubstr("f.csv:3: column 'timestamp': 'later' is neither a number nor a date"));
}

TEST_F(Log, RefusesColumnsOfOtherUnits)
{
    EXPECT_THAT(messageOf([&] { read(kRig, {.input = {{}, "cold_junction_degC"}, .coldJunction = 0}); }),
                HasSubstr("'cold_junction_degC' is not in mV, V or uV"));
    LogChoice choice;
    choice.coldJunctionColumn = "emf_mV";
    EXPECT_THAT(messageOf([&] { read(kRig, choice); }), HasSubstr("'emf_mV' is not in degC"));
}

TEST_F(Log, RefusesOneColumnForTheVoltageAndTheColdJunction)
{
    LogChoice choice;
    choice.input.column = choice.coldJunctionColumn = "a";
    EXPECT_THAT(messageOf([&] { read("a,b\n5,6\n", choice); }),
                HasSubstr("column 'a' cannot be both the voltage and the cold junction"));
}

TEST_F(Log, RefusesNumbersThatAreTooLargeInItsUnits)
{
    EXPECT_THAT(messageOf([&] { read("a_V\n1\n1e306\n"); }), HasSubstr("f.csv:3: column 'a_V' is too large a number"));
    EXPECT_THAT(messageOf([&] { read("t_min,a_V\n1,1\n1e308,1\n"); }), HasSubstr("f.csv:3: column 't_min'"));
}

TEST_F(Log, RefusesAColdJunctionThatIsNotCompensated)
{
    EXPECT_EQ(failureOf([&] { read("emf_mV\n5\n", {.input = {}, .coldJunction = 1371}); }).code(), ExitCode::Usage);
    const Failure failure =
        failureOf([&] { read("cj,emf_mV\n20,5\n-271,5\n", {.input = {}, .coldJunctionColumn = "cj"}); });
    EXPECT_EQ(failure.code(), ExitCode::Input);
    EXPECT_THAT(failure.what(), HasSubstr("f.csv:3: a cold junction at -271 degC"));
}

TEST_F(Log, RefusesAFileWithoutRowsAndAWavFile)
{
    EXPECT_THAT(messageOf([&] { read("emf_mV\n"); }), HasSubstr("no row of numbers"));
    LogChoice choice{.input = {}, .coldJunction = 0};
    choice.input.path = QUORDSP_TEST_DATA "/../../examples/data/audio_bell_44k1.wav";
    EXPECT_THAT(messageOf([&] { readThermocoupleLog(choice); }), HasSubstr("a WAV file holds no voltages"));
}

} // namespace
} // namespace quordsp::cli
