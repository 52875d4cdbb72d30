// FFT tables and FIR filters are announced to the run-time's tracker and disposer, where the process has them.
#include "scenarios/tracker_fixture.h"

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

TEST_F(Tracking, RegistersATableWithTheDisposerAndThenWithTheTracker)
{
    loadBackend();
    loadRunTime("cvirte.dll");
    const auto disposer = loadDisposer();
    EXPECT_EQ(createTable(1024), object());
    EXPECT_THAT(fakes::takeNotes(), ElementsAre("AALFunc260 z=1024", registered(object(), disposer, "AALFunc261"),
                                                tableAcquired("cvirte.dll", 1024)));
}

TEST_F(Tracking, RegistersAFilterWithTheDisposerAndThenWithTheTracker)
{
    loadBackend();
    loadRunTime("cvirte.dll");
    const auto disposer = loadDisposer();
    EXPECT_EQ(allocFilter(), object());
    EXPECT_THAT(fakes::takeNotes(),
                ElementsAre("AALFunc491", registered(object(), disposer, "AALFunc492"), filterAcquired("cvirte.dll")));
}

TEST_F(Tracking, TellsTheSizeOfATableInSixtyFourBits)
{
    loadBackend();
    loadRunTime("cvirte.dll");
    createTable(-2);
    EXPECT_THAT(fakes::takeNotes(), ElementsAre("AALFunc260 z=-2", tableAcquired("cvirte.dll", -2)));
}

TEST_F(Tracking, ReleasesATableEverywhereBeforeTheBackendDestroysIt)
{
    loadBackend();
    loadRunTime("cvirte.dll");
    loadDisposer();
    destroyTable(object());
    EXPECT_THAT(fakes::takeNotes(), ElementsAre("unregister " + objectText(), "cvirte.dll release " + objectText(),
                                                "AALFunc261 " + objectText()));
}

TEST_F(Tracking, ReleasesAFilterEverywhereBeforeTheBackendFreesIt)
{
    loadBackend();
    loadRunTime("cvirte.dll");
    loadDisposer();
    freeFilter(object());
    EXPECT_THAT(fakes::takeNotes(), ElementsAre("unregister " + objectText(), "cvirte.dll release " + objectText(),
                                                "AALFunc492 " + objectText()));
}

TEST_F(Tracking, PassesANullHandleToAllThatReleaseIt)
{
    loadBackend();
    loadRunTime("cvirte.dll");
    loadDisposer();
    destroyTable(nullptr);
    EXPECT_THAT(fakes::takeNotes(), ElementsAre("unregister p=0", "cvirte.dll release p=0", "AALFunc261 p=0"));
}

TEST_F(Tracking, AnnouncesNoNullHandle)
{
    loadBackend();
    loadRunTime("cvirte.dll");
    loadDisposer();
    fakes::stage().object = nullptr;
    EXPECT_EQ(createTable(), nullptr);
    EXPECT_EQ(allocFilter(), nullptr);
    EXPECT_THAT(fakes::takeNotes(), ElementsAre("AALFunc260 z=64", "AALFunc491"));
}

TEST_F(Tracking, AnnouncesNothingWithoutABackend)
{
    loadRunTime("cvirte.dll");
    loadDisposer();
    EXPECT_EQ(createTable(), nullptr);
    EXPECT_EQ(allocFilter(), nullptr);
    destroyTable(object());
    freeFilter(object());
    EXPECT_THAT(fakes::takeNotes(), IsEmpty());
}

TEST_F(Tracking, AnnouncesNothingWithoutTheBackendsEntry)
{
    loadBackend("backend_partial");
    loadRunTime("cvirte.dll");
    loadDisposer();
    EXPECT_EQ(createTable(), nullptr);
    EXPECT_EQ(allocFilter(), nullptr);
    destroyTable(object());
    freeFilter(object());
    EXPECT_THAT(fakes::takeNotes(), IsEmpty());
}

TEST_F(Tracking, IgnoresWhatTheDisposerReturns)
{
    loadBackend();
    loadRunTime("cvirte.dll");
    const auto disposer = loadDisposer();
    fakes::stage().disposerResult = -7;
    EXPECT_EQ(createTable(), object());
    EXPECT_THAT(fakes::takeNotes(), ElementsAre("AALFunc260 z=64", registered(object(), disposer, "AALFunc261"),
                                                tableAcquired("cvirte.dll")));
}

} // namespace
