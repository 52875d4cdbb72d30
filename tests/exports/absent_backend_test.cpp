// The exports without a backend, and with one that lacks entries.
#include <set>
#include <string_view>

#include <gmock/gmock.h>

#include "exports/forwarding_fixture.h"

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

// How an export of this kind reports that it cannot reach its entry.
std::string failureText(const Forwarded& row, int status)
{
    return row.result() == 's' ? statusText(status) : row.result() == 'h' ? handleText(nullptr) : "n";
}

TEST_F(ForwardingExports, ReportAMissingBackendOnEveryCall)
{
    for (int round = 0; round < 2; ++round)
        for (const Forwarded& row : forwardedExports())
            EXPECT_EQ(call(row), failureText(row, -5093)) << row.name;
}

TEST_F(ForwardingExports, WriteNothingWithoutABackend)
{
    for (const Forwarded& row : forwardedExports())
        call(row);
    EXPECT_TRUE(memoryIsUntouched());
}

// The entries that the partial backend lacks.
bool isMissing(const Forwarded& row)
{
    static const std::set<std::string_view> missing{"AALFunc21",  "AALFunc120", "AALFunc194", "AALFunc260",
                                                    "AALFunc261", "AALFunc410", "AALFunc491", "AALFunc492"};
    return missing.contains(row.entry);
}

TEST_F(ForwardingExports, ReportAMissingEntryOnEveryCall)
{
    loadBackend("backend_partial");
    for (int round = 0; round < 2; ++round)
        for (const Forwarded& row : forwardedExports())
            if (isMissing(row))
                EXPECT_EQ(call(row), failureText(row, -5094)) << row.name;
    EXPECT_THAT(fakes::takeNotes(), IsEmpty());
    EXPECT_TRUE(memoryIsUntouched());
}

TEST_F(ForwardingExports, WorkWhereTheEntryOfAnotherOneIsMissing)
{
    loadBackend("backend_partial");
    fakes::stage().status = 11;
    for (const Forwarded& row : forwardedExports()) {
        if (isMissing(row))
            continue;
        call(row);
        EXPECT_THAT(fakes::takeNotes(), ElementsAre(testing::StartsWith(std::string{row.entry} + ' '))) << row.name;
    }
}

TEST(SoundLevel, SucceedsWithoutABackendWhateverItIsPassed)
{
    const auto soundLevel = EXPORT(QuorDSP_Calc_SPL_A);
    double level = 4.0;
    EXPECT_EQ(soundLevel(nullptr, 0, 0.0, nullptr), 0);
    EXPECT_EQ(soundLevel(nullptr, -1, -1.0, &level), 0);
    EXPECT_EQ(soundLevel(&level, 1, 1.0, &level), 0);
    EXPECT_EQ(level, 4.0);
}

TEST_F(ForwardingExports, LeaveTheSoundLevelOutOfTheBackend)
{
    loadBackend("backend");
    fakes::stage().status = -1;
    EXPECT_EQ(EXPORT(QuorDSP_Calc_SPL_A)(nullptr, 1, 1.0, nullptr), 0);
    EXPECT_THAT(fakes::takeNotes(), IsEmpty());
}

} // namespace
