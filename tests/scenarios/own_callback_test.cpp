// A program that exports the disposer's callback itself. The library asks the disposer's module for it first, and a
// null module, which means the program, from then on.
#include "fakes/export.h"
#include "scenarios/tracker_fixture.h"

extern "C" FAKE_EXPORT void CommonAnalysisResourceDisposer()
{
    fakes::note("dispose");
}

namespace {

using testing::ElementsAre;

const void* ownCallback()
{
    return reinterpret_cast<const void*>(&CommonAnalysisResourceDisposer);
}

TEST_F(Tracking, RegistersTheProgramsCallbackFromTheSecondObjectOn)
{
    loadBackend();
    loadRunTime("cvirte.dll");
    loadDisposer("disposer_without_callback");
    createTable();
    EXPECT_THAT(fakes::takeNotes(), ElementsAre("AALFunc260 z=64", tableAcquired("cvirte.dll")));
    createTable();
    EXPECT_THAT(fakes::takeNotes(), ElementsAre("AALFunc260 z=64", registered(object(), ownCallback(), "AALFunc261"),
                                                tableAcquired("cvirte.dll")));
}

TEST_F(Tracking, SharesTheDisposersEntriesAmongTheExports)
{
    loadBackend();
    loadRunTime("cvirte.dll");
    loadDisposer("disposer_without_callback");
    createTable();
    fakes::takeNotes();
    allocFilter();
    EXPECT_THAT(fakes::takeNotes(), ElementsAre("AALFunc491", registered(object(), ownCallback(), "AALFunc492"),
                                                filterAcquired("cvirte.dll")));
}

TEST_F(Tracking, PrefersTheDisposersOwnCallback)
{
    loadBackend();
    loadRunTime("cvirte.dll");
    const auto disposer = loadDisposer();
    createTable();
    createTable();
    EXPECT_NE(disposer.symbol("CommonAnalysisResourceDisposer"), &CommonAnalysisResourceDisposer);
    const std::string note = registered(object(), disposer, "AALFunc261");
    EXPECT_THAT(fakes::takeNotes(), ElementsAre("AALFunc260 z=64", note, tableAcquired("cvirte.dll"), "AALFunc260 z=64",
                                                note, tableAcquired("cvirte.dll")));
}

} // namespace
