// The registry is read through advapi32.dll, which the library takes for that and gives back. Whether it does so shows
// in the library's own calls of the system: they are led through here by way of its import table.
#include <cstring>

#include "scenarios/replace_import_windows.h"
#include "scenarios/search_fixture_windows.h"

namespace {

// How often the library has taken the module less how often it has given it back, and the former alone.
int taken = 0;
int held = 0;
HMODULE registryModule = nullptr;

HMODULE WINAPI countingLoadLibrary(const char* name)
{
    const HMODULE module = LoadLibraryA(name);
    if (std::strcmp(name, "advapi32.dll") == 0) {
        registryModule = module;
        ++taken;
        ++held;
    }
    return module;
}

BOOL WINAPI countingFreeLibrary(HMODULE module)
{
    held -= module == registryModule;
    return FreeLibrary(module);
}

class RegistryModule : public Search {
protected:
    RegistryModule()
    {
        replaceImport("LoadLibraryA", countingLoadLibrary);
        replaceImport("FreeLibrary", countingFreeLibrary);
    }
};

TEST_F(RegistryModule, IsGivenBackAfterEverySearch)
{
    for (int call = 0; call < 3; ++call)
        ASSERT_EQ(callLibrary(), kNotFound);
    EXPECT_EQ(taken, 3);
    EXPECT_EQ(held, 0);
}

TEST_F(RegistryModule, IsGivenBackAfterTheValueWasRead)
{
    installBackend("shared/Analysis");
    setSharedFolder("shared");
    ASSERT_EQ(callLibrary(), 0);
    EXPECT_EQ(taken, 1);
    EXPECT_EQ(held, 0);
}

TEST_F(RegistryModule, IsNotTakenWhenTheBackendIsOnTheSearchPath)
{
    installBackend("path");
    setPath("path");
    ASSERT_EQ(callLibrary(), 0);
    EXPECT_EQ(taken, 0);
}

TEST_F(RegistryModule, IsNotTakenWhenTheBackendIsBesideTheRunTime)
{
    installBackend("beside");
    loadRunTime("beside", "cvirte.dll");
    ASSERT_EQ(callLibrary(), 0);
    EXPECT_EQ(taken, 0);
}

} // namespace
