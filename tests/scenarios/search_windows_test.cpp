// Where the backend is looked for, and in which order.
#include "scenarios/search_fixture_windows.h"

namespace {

using testing::ElementsAre;

TEST_F(Search, PrefersTheSystemsSearchPathToAllElse)
{
    const Path expected = installBackend("path");
    installBackend("beside");
    installBackend("shared/Analysis");
    setPath("path");
    loadRunTime("beside", "cvirte.dll");
    setSharedFolder("shared");
    EXPECT_EQ(callLibrary(), 0);
    EXPECT_EQ(loadedBackend(), expected);
}

TEST_F(Search, PrefersTheFolderThatTheProgramAddsToTheSearchToAllElse)
{
    const Path expected = installBackend("added");
    installBackend("beside");
    SetDllDirectoryW(folder("added").c_str());
    loadRunTime("beside", "cvirte.dll");
    EXPECT_EQ(callLibrary(), 0);
    EXPECT_EQ(loadedBackend(), expected);
}

class SearchBeside : public Search, public testing::WithParamInterface<const char*> {};

TEST_P(SearchBeside, FindsTheBackendInTheFolderOfTheLoadedRunTimeModule)
{
    const Path expected = installBackend("beside");
    loadRunTime("beside", GetParam());
    EXPECT_EQ(callLibrary(), 0);
    EXPECT_EQ(loadedBackend(), expected);
}

TEST_P(SearchBeside, GoesOnToTheSharedFolder)
{
    const Path expected = installBackend("shared/Analysis");
    loadRunTime("beside", GetParam());
    setSharedFolder("shared", "\\");
    EXPECT_EQ(callLibrary(), 0);
    EXPECT_EQ(loadedBackend(), expected);
}

INSTANTIATE_TEST_SUITE_P(, SearchBeside, testing::Values("cvirte.dll", "instrsup.dll", "cvi_lvrt.dll"),
                         [](const auto& file) { return std::filesystem::path{file.param}.stem().string(); });

TEST_F(Search, PrefersTheFirstRunTimeModule)
{
    const Path expected = installBackend("first");
    installBackend("second");
    installBackend("third");
    loadRunTime("third", "cvi_lvrt.dll");
    loadRunTime("second", "instrsup.dll");
    loadRunTime("first", "cvirte.dll");
    EXPECT_EQ(callLibrary(), 0);
    EXPECT_EQ(loadedBackend(), expected);
}

TEST_F(Search, PrefersTheSecondRunTimeModuleToTheThird)
{
    const Path expected = installBackend("second");
    installBackend("third");
    loadRunTime("third", "cvi_lvrt.dll");
    loadRunTime("second", "instrsup.dll");
    EXPECT_EQ(callLibrary(), 0);
    EXPECT_EQ(loadedBackend(), expected);
}

TEST_F(Search, LooksBesideOneRunTimeModuleOnly)
{
    installBackend("second");
    loadRunTime("first", "cvirte.dll");
    loadRunTime("second", "instrsup.dll");
    EXPECT_EQ(callLibrary(), kNotFound);
}

TEST_F(Search, PrefersTheRunTimesFolderToTheSharedOne)
{
    const Path expected = installBackend("beside");
    installBackend("shared/Analysis");
    loadRunTime("beside", "instrsup.dll");
    setSharedFolder("shared");
    EXPECT_EQ(callLibrary(), 0);
    EXPECT_EQ(loadedBackend(), expected);
}

TEST_F(Search, LoadsNoRunTimeModuleByItself)
{
    installBackend("beside");
    support::copyTo(folder("beside/run_time/cvirte.dll"), support::fake("run_time/cvirte.dll"));
    setPath("beside/run_time");
    EXPECT_EQ(callLibrary(), kNotFound);
    EXPECT_FALSE(support::Module::loaded("cvirte.dll"));
}

// A backend that refuses to load notes where it was tried. The shared folder is tried with the sub-folder's name first
// directly behind it and then as a folder below it.
TEST_F(Search, TriesEveryPlaceInOrderOnEveryCall)
{
    for (const char* const place : {"path", "beside", "sharedAnalysis", "shared/Analysis"})
        installBackend(place, "backend_refusing");
    setPath("path");
    loadRunTime("beside", "cvi_lvrt.dll");
    setSharedFolder("shared");
    const auto tried = [](const char* place) { return "refuse " + folder(place).make_preferred().string(); };
    for (int call = 0; call < 2; ++call) {
        EXPECT_EQ(callLibrary(), kNotFound);
        EXPECT_THAT(fakes::takeNotes(),
                    ElementsAre(tried("path"), tried("beside"), tried("sharedAnalysis"), tried("shared/Analysis")));
    }
}

TEST_F(Search, GoesOnWhenABackendDoesNotLoad)
{
    installBackend("path", "backend_refusing");
    const Path expected = installBackend("beside");
    setPath("path");
    loadRunTime("beside", "cvirte.dll");
    EXPECT_EQ(callLibrary(), 0);
    EXPECT_EQ(loadedBackend(), expected);
}

TEST_F(Search, FindsTheBackendOfARunTimeThatIsLoadedAfterAFailure)
{
    installBackend("beside");
    EXPECT_EQ(callLibrary(), kNotFound);
    loadRunTime("beside", "cvirte.dll");
    EXPECT_EQ(callLibrary(), 0);
}

TEST_F(Search, StopsAfterASuccess)
{
    const Path expected = installBackend("beside");
    loadRunTime("beside", "instrsup.dll");
    ASSERT_EQ(callLibrary(), 0);
    installBackend("first");
    loadRunTime("first", "cvirte.dll");
    EXPECT_EQ(callLibrary(), 0);
    EXPORT(QuorDSP_Spectrum)(nullptr, 0);
    EXPECT_EQ(loadedBackend(), expected);
}

} // namespace
