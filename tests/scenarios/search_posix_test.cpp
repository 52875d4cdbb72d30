// Where the backend is looked for: by its bare name, then beside the library.
#include <gtest/gtest.h>

#include "fakes/stage.h"
#include "scenarios/search_folder.h"

namespace {

using support::kBackendFile;

class SearchBeside : public FirstUse {};

TEST_F(SearchBeside, FindsTheBackendInTheLibrarysFolder)
{
    installBackend("backend");
    EXPECT_EQ(callLibrary(), 0);
    EXPECT_EQ(support::Module::loaded(kBackendFile).path(), support::ownFolder() / kBackendFile);
}

TEST_F(SearchBeside, FindsNoBackendInTheWorkingFolder)
{
    support::copyTo(support::ownFolder() / "work" / kBackendFile,
                    support::fake(std::filesystem::path{"backend"} / kBackendFile));
    std::filesystem::current_path(support::ownFolder() / "work");
    EXPECT_EQ(callLibrary(), -5093);
}

// The library was loaded by a path that means another file, or none, once the working folder has changed.
TEST(SearchBesideRelative, FindsTheBackendInTheFolderThatTheLibraryWasLoadedFrom)
{
    namespace fs = std::filesystem;
    const fs::path own = support::ownFolder();
    const fs::path library = support::fake(fs::path{"library"} / "libQuorDSP_DAQ.so");
    support::copyTo(own / "lib" / library.filename(), library);
    support::copyTo(own / "lib" / kBackendFile, support::fake(fs::path{"backend"} / kBackendFile));
    support::copyTo(own / kBackendFile, support::fake(fs::path{"backend_partial"} / kBackendFile));
    fs::current_path(own / "lib");
    const auto loaded = support::Module::load("./libQuorDSP_DAQ.so");
    ASSERT_TRUE(loaded);
    fs::current_path(own);
    const auto call = loaded.function<decltype(QuorDSP_Bw_LPF)>("QuorDSP_Bw_LPF");
    EXPECT_EQ(call(nullptr, 0, 0.0, 0.0, 0, nullptr), 0);
}

TEST_F(SearchBeside, PrefersABackendThatIsLoadedAlready)
{
    installBackend("backend_partial");
    const auto loaded = support::Module::load(support::fake(std::filesystem::path{"backend"} / kBackendFile));
    EXPECT_EQ(callLibrary(), 0);
    EXPECT_EQ(support::Module::loaded(kBackendFile), loaded);
}

} // namespace
