// The backend on the system's search path, which ctest sets for this program.
#include <cstdlib>

#include "scenarios/search_folder.h"

namespace {

using support::kBackendFile;

class SearchPath : public FirstUse {};

TEST_F(SearchPath, IsSearchedByTheBareName)
{
    EXPECT_EQ(callLibrary(), 0);
    EXPECT_EQ(support::Module::loaded(kBackendFile).path(),
              std::filesystem::path{std::getenv("LD_LIBRARY_PATH")} / kBackendFile);
}

TEST_F(SearchPath, GoesBeforeTheLibrarysFolder)
{
    installBackend("backend_partial");
    EXPECT_EQ(callLibrary(), 0);
}

} // namespace
