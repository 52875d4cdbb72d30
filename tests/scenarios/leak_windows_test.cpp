// Searches that end in each of the places hold nothing of the system afterwards.
#include <functional>
#include <string>

#include "scenarios/replace_import_windows.h"
#include "scenarios/search_fixture_windows.h"
#include "support/resources.h"

namespace {

using support::heldResources;

constexpr int kCalls = 500;

class FailingSearch : public Search {
protected:
    static void expectNothingHeld(int status = kNotFound)
    {
        ASSERT_EQ(callLibrary(), status); // what the first call keeps is no leak
        const auto before = heldResources();
        for (int call = 0; call < kCalls; ++call)
            ASSERT_EQ(callLibrary(), status);
        EXPECT_EQ(heldResources(), before);
    }
};

TEST_F(FailingSearch, HoldsNothingAfterAKeyWithoutTheValue)
{
    registry_.createKey();
    expectNothingHeld();
}

TEST_F(FailingSearch, HoldsNothingAfterASharedFolderWithoutTheBackend)
{
    setSharedFolder("nowhere");
    expectNothingHeld();
}

TEST_F(FailingSearch, HoldsNothingAfterAValueThatIsTooLong)
{
    registry_.setSharedFolder(std::string(2000, 'a') + '\0');
    expectNothingHeld();
}

TEST_F(FailingSearch, HoldsNothingAfterARunTimeModuleWithoutTheBackend)
{
    loadRunTime("alone", "cvirte.dll");
    expectNothingHeld();
}

TEST_F(FailingSearch, HoldsNothingWhenTheLocksNameIsTaken)
{
    const std::string name =
        "National Instruments LabWindows/CVI Analysis Library " + std::to_string(GetCurrentProcessId());
    const HANDLE event = CreateEventA(nullptr, TRUE, FALSE, name.c_str());
    expectNothingHeld();
    CloseHandle(event);
}

// A system that lacks what the activation of a context needs.
FARPROC WINAPI withoutContexts(HMODULE module, const char* name)
{
    const std::string_view asked{name};
    const bool hidden = asked == "GetModuleHandleExA" || asked.ends_with("ActCtx") || asked == "QueryActCtxW";
    return hidden ? nullptr : GetProcAddress(module, name);
}

TEST_F(FailingSearch, HoldsNothingOnASystemWithoutActivationContexts)
{
    replaceImport("GetProcAddress", withoutContexts);
    expectNothingHeld();
    installBackend("path");
    setPath("path");
    EXPECT_EQ(callLibrary(), 0);
}

HMODULE WINAPI withoutRegistryModule(const char* name)
{
    return std::string_view{name} == "advapi32.dll" ? nullptr : LoadLibraryA(name);
}

TEST_F(FailingSearch, HoldsNothingOnASystemWithoutARegistryModule)
{
    replaceImport("LoadLibraryA", withoutRegistryModule);
    installBackend("shared/Analysis");
    setSharedFolder("shared");
    expectNothingHeld();
}

} // namespace
