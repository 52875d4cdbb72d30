// Every forwarding export hands its arguments on to its entry and hands back what the entry returns.
#include <climits>
#include <cstring>

#include <gmock/gmock.h>

#include "exports/forwarding_fixture.h"

namespace {

using testing::ElementsAre;

// The note that the backend makes of a call with these arguments.
std::string noteOf(const Forwarded& row, ArgumentSource source)
{
    std::string note = row.entry;
    for (const char kind : row.arguments()) {
        note += ' ';
        switch (kind) {
        case 'p':
            note += fakes::argumentText(source.pointer());
            break;
        case 'd':
            note += fakes::argumentText(source.real());
            break;
        case 'i':
            note += fakes::argumentText(source.integer());
            break;
        case 'z':
            note += fakes::argumentText(std::int64_t{source.integer()});
            break;
        case 'Z':
            note += fakes::argumentText(source.size());
            break;
        case 'r':
            note += fakes::argumentText(source.record());
            break;
        default:
            ADD_FAILURE() << "no such kind: " << kind;
        }
    }
    return note;
}

class ForwardingExport : public ForwardingExports, public testing::WithParamInterface<Forwarded> {
protected:
    ForwardingExport() { loadBackend("backend"); }
};

TEST_P(ForwardingExport, HandsItsArgumentsOnInOrderWithSizesSignExtended)
{
    struct Integers {
        int first;
        int step;
    };
    for (const auto [first, step] : {Integers{-1, -1}, {INT_MAX, -1}, {INT_MIN, 1}, {0, 1}, {65536, -32769}}) {
        call(GetParam(), arguments(first, step));
        EXPECT_THAT(fakes::takeNotes(), ElementsAre(noteOf(GetParam(), arguments(first, step))));
    }
    EXPECT_TRUE(memoryIsUntouched());
}

TEST_P(ForwardingExport, ReturnsWhatTheEntryReturns)
{
    for (const int status : {0, 1, 42, INT_MAX, -1, -5093, -20001, INT_MIN}) {
        fakes::stage().status = status;
        fakes::stage().object = status == 0 ? nullptr : someObject();
        const std::string returned = call(GetParam());
        switch (GetParam().result()) {
        case 's':
            EXPECT_EQ(returned, statusText(status));
            break;
        case 'h':
            EXPECT_EQ(returned, handleText(fakes::stage().object));
            break;
        default:
            EXPECT_EQ(returned, "n");
            break;
        }
    }
}

INSTANTIATE_TEST_SUITE_P(, ForwardingExport, testing::ValuesIn(forwardedExports().begin(), forwardedExports().end()),
                         [](const auto& row) { return row.param.name; });

TEST_F(ForwardingExports, PassACountOfMinusOneAsMinusOneInSixtyFourBits)
{
    loadBackend("backend");
    EXPORT(QuorDSP_Spectrum)(nullptr, -1);
    EXPECT_THAT(fakes::takeNotes(), ElementsAre("AALFunc161 p=0 z=-1"));
}

TEST_F(ForwardingExports, PassTheSixtyFourBitCountOfMaxMinAsItIs)
{
    loadBackend("backend");
    EXPORT(QuorDSP_MaxMin1D)(nullptr, 0x0123456789ABCDEF, nullptr, nullptr, nullptr, nullptr);
    EXPECT_THAT(fakes::takeNotes(), ElementsAre("AALFunc120 p=0 z=81985529216486895 p=0 p=0 p=0 p=0"));
}

TEST_F(ForwardingExports, KeepTheErrorOfABackendThatRefusesANegativeCount)
{
    loadBackend("backend");
    fakes::stage().onCall = [](std::string_view, const fakes::Arguments& arguments) {
        fakes::stage().status = arguments.at<std::int64_t>(1) < 0 ? -20004 : 0;
    };
    EXPECT_EQ(EXPORT(QuorDSP_Sort)(nullptr, -7, 0, nullptr), -20004);
    EXPECT_EQ(EXPORT(QuorDSP_Sort)(nullptr, 7, 0, nullptr), 0);
}

TEST_F(ForwardingExports, LeaveWhatTheBackendWritesInTheCallersMemory)
{
    loadBackend("backend");
    fakes::stage().onCall = [](std::string_view, const fakes::Arguments& arguments) {
        *arguments.at<double*>(2) = 8.5;
        *arguments.at<std::int64_t*>(5) = -3;
    };
    double max = 0.0;
    std::int64_t minIndex = 0;
    EXPORT(QuorDSP_MaxMin1D)(nullptr, 4, &max, nullptr, nullptr, &minIndex);
    EXPECT_EQ(max, 8.5);
    EXPECT_EQ(minIndex, -3);
}

TEST_F(ForwardingExports, DoNotReadTheResultsOfPeakDetectionForThemselves)
{
    loadBackend("backend");
    fakes::stage().status = 1;
    EXPECT_EQ(EXPORT(QuorDSP_PeakDetector)(nullptr, 1, 0.0, 3, 0, 1, 1, nullptr, nullptr, nullptr, nullptr), 1);
}

} // namespace
