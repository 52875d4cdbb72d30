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

TEST_F(SearchBeside, PrefersABackendThatIsLoadedAlready)
{
    installBackend("backend_partial");
    const auto loaded = support::Module::load(support::fake(std::filesystem::path{"backend"} / kBackendFile));
    EXPECT_EQ(callLibrary(), 0);
    EXPECT_EQ(support::Module::loaded(kBackendFile), loaded);
}

} // namespace
