// Two threads that are the first to use the disposer, one of them held up in the middle of its look-up.
#include <cstring>
#include <thread>

#include "scenarios/replace_import_windows.h"
#include "scenarios/tracker_fixture.h"

namespace {

using testing::Contains;

FARPROC WINAPI slowGetProcAddress(HMODULE module, const char* name)
{
    const FARPROC found = GetProcAddress(module, name);
    if (std::strcmp(name, "CommonAnalysisResourceDisposer") == 0)
        Sleep(found ? 100 : 300); // who finds nothing comes last
    return found;
}

class DisposerRace : public Tracking {
protected:
    DisposerRace()
    {
        loadBackend();
        loadRunTime("cvirte.dll");
        disposer_ = loadDisposer();
        EXPORT(QuorDSP_DestroyFFTTable)(nullptr); // the backend is bound, and no part of the race
        replaceImport("GetProcAddress", slowGetProcAddress);
        fakes::takeNotes();
    }

    static void createFromTwoThreads()
    {
        std::jthread first{[] { createTable(); }};
        Sleep(30);
        createTable();
    }

    std::string note() { return registered(object(), disposer_, "AALFunc261"); }

private:
    support::Module disposer_ = support::library();
};

TEST_F(DisposerRace, RegistersTheObjectsOfBothThreads)
{
    createFromTwoThreads();
    EXPECT_THAT(fakes::takeNotes(), Contains(note()).Times(2));
}

TEST_F(DisposerRace, LeavesTheDisposerInUseForLaterObjects)
{
    createFromTwoThreads();
    fakes::takeNotes();
    createTable();
    EXPECT_THAT(fakes::takeNotes(), Contains(note()).Times(1));
}

} // namespace
