// A folder that the library's search reaches, empty at first: only what a test installs there is found.
#pragma once
#include <gtest/gtest.h>

#include "fakes/stage.h"
#include "support/folders.h"
#include "support/library.h"

// Makes the running test's own folder such a one; to be called before the first use of the library.
void searchOwnFolder();

class FirstUse : public testing::Test {
protected:
    FirstUse() { searchOwnFolder(); }

    // A variant of the backend, which nobody has loaded yet.
    static void installBackend(const std::filesystem::path& variant)
    {
        support::copyTo(support::ownFolder() / support::kBackendFile, support::fake(variant / support::kBackendFile));
    }

    // One call that needs the backend.
    static int callLibrary() { return EXPORT(QuorDSP_Bw_LPF)(nullptr, 0, 0.0, 0.0, 0, nullptr); }
};
