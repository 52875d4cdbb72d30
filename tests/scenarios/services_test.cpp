// Which of the run-time's services are used: those that the process has loaded at the moment.
#include "scenarios/tracker_fixture.h"

namespace {

using testing::ElementsAre;

TEST_F(Tracking, IsLeftOutWithoutARunTime)
{
    loadBackend();
    EXPECT_EQ(createTable(), object());
    destroyTable(object());
    EXPECT_EQ(allocFilter(), object());
    freeFilter(object());
    EXPECT_THAT(fakes::takeNotes(), ElementsAre("AALFunc260 z=64", "AALFunc261 " + objectText(), "AALFunc491",
                                                "AALFunc492 " + objectText()));
}

TEST_F(Tracking, IsLeftOutWithADisposerAlone)
{
    loadBackend();
    loadDisposer();
    createTable();
    destroyTable(object());
    EXPECT_THAT(fakes::takeNotes(), ElementsAre("AALFunc260 z=64", "AALFunc261 " + objectText()));
}

TEST_F(Tracking, WorksWithoutADisposer)
{
    loadBackend();
    loadRunTime("cvirte.dll");
    createTable();
    destroyTable(object());
    EXPECT_THAT(fakes::takeNotes(), ElementsAre("AALFunc260 z=64", tableAcquired("cvirte.dll"),
                                                "cvirte.dll release " + objectText(), "AALFunc261 " + objectText()));
}

TEST_F(Tracking, WorksWithADisposerThatLacksItsEntries)
{
    loadBackend();
    loadRunTime("cvirte.dll");
    loadDisposer("disposer_partial");
    createTable();
    destroyTable(object());
    EXPECT_THAT(fakes::takeNotes(), ElementsAre("AALFunc260 z=64", tableAcquired("cvirte.dll"),
                                                "cvirte.dll release " + objectText(), "AALFunc261 " + objectText()));
}

TEST_F(Tracking, AsksTheFirstLoadedRunTimeModule)
{
    loadBackend();
    loadRunTime("cvi_lvrt.dll");
    createTable();
    EXPECT_THAT(fakes::takeNotes(), ElementsAre("AALFunc260 z=64", tableAcquired("cvi_lvrt.dll")));
    loadRunTime("instrsup.dll");
    allocFilter();
    EXPECT_THAT(fakes::takeNotes(), ElementsAre("AALFunc491", filterAcquired("instrsup.dll")));
    loadRunTime("cvirte.dll");
    destroyTable(object());
    EXPECT_THAT(fakes::takeNotes(), ElementsAre("cvirte.dll release " + objectText(), "AALFunc261 " + objectText()));
}

TEST_F(Tracking, AsksNoOtherModuleWhenTheFirstLacksTheEntries)
{
    loadBackend();
    load("run_time_partial/cvirte.dll");
    loadRunTime("instrsup.dll");
    loadRunTime("cvi_lvrt.dll");
    loadDisposer();
    createTable();
    destroyTable(object());
    EXPECT_THAT(fakes::takeNotes(), ElementsAre("AALFunc260 z=64", "AALFunc261 " + objectText()));
}

TEST_F(Tracking, KeepsAnEntryForEachExportByItself)
{
    loadBackend();
    loadRunTime("instrsup.dll");
    createTable();
    loadRunTime("cvirte.dll");
    createTable();
    allocFilter();
    EXPECT_THAT(fakes::takeNotes(), ElementsAre("AALFunc260 z=64", tableAcquired("instrsup.dll"), "AALFunc491",
                                                filterAcquired("cvirte.dll")));
}

TEST_F(Tracking, BeginsOnceARunTimeIsLoaded)
{
    loadBackend();
    createTable();
    loadRunTime("cvirte.dll");
    createTable(32);
    EXPECT_THAT(fakes::takeNotes(), ElementsAre("AALFunc260 z=32", tableAcquired("cvirte.dll", 32)));
}

TEST_F(Tracking, RegistersOnceADisposerIsLoaded)
{
    loadBackend();
    loadRunTime("cvirte.dll");
    createTable();
    const auto disposer = loadDisposer();
    createTable();
    destroyTable(object());
    EXPECT_THAT(fakes::takeNotes(), ElementsAre("AALFunc260 z=64", registered(object(), disposer, "AALFunc261"),
                                                tableAcquired("cvirte.dll"), "unregister " + objectText(),
                                                "cvirte.dll release " + objectText(), "AALFunc261 " + objectText()));
}

TEST_F(Tracking, ReleasesATableToATrackerThatNeverHeardOfIt)
{
    loadBackend();
    void* const table = createTable();
    loadRunTime("cvirte.dll");
    destroyTable(table);
    EXPECT_THAT(fakes::takeNotes(), ElementsAre("cvirte.dll release " + objectText(), "AALFunc261 " + objectText()));
}

// A program without such an export: with a null module there is nothing to be found either.
TEST_F(Tracking, NeverRegistersWithADisposerThatLacksTheCallback)
{
    loadBackend();
    loadRunTime("cvirte.dll");
    loadDisposer("disposer_without_callback");
    createTable();
    createTable();
    destroyTable(object());
    EXPECT_THAT(fakes::takeNotes(), ElementsAre("AALFunc260 z=64", tableAcquired("cvirte.dll"), "AALFunc260 z=64",
                                                tableAcquired("cvirte.dll"), "unregister " + objectText(),
                                                "cvirte.dll release " + objectText(), "AALFunc261 " + objectText()));
}

TEST_F(Tracking, LoadsNoServiceOfItsOwnAccord)
{
    loadBackend();
    std::filesystem::current_path(support::fake("run_time"));
    createTable();
    destroyTable(object());
    for (const char* const file : {"cvirte.dll", "instrsup.dll", "cvi_lvrt.dll", "cviresourcedisposer.dll"})
        EXPECT_FALSE(support::Module::loaded(file)) << file;
}

} // namespace
