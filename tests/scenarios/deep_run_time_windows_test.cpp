// A run-time module whose path is as long as the buffer of 1024 characters, or longer. Where the system loads no module
// from that deep, the test has one say that it was.
#include <string>

#include <winternl.h>

#include "scenarios/search_fixture_windows.h"

namespace {

LDR_DATA_TABLE_ENTRY* recordOf(const support::Module& module)
{
    const HMODULE base = GetModuleHandleW(module.path().filename().c_str());
    LIST_ENTRY* const head = &NtCurrentTeb()->ProcessEnvironmentBlock->Ldr->InMemoryOrderModuleList;
    for (LIST_ENTRY* link = head->Flink; link != head; link = link->Flink) {
        auto* const record = CONTAINING_RECORD(link, LDR_DATA_TABLE_ENTRY, InMemoryOrderLinks);
        if (record->DllBase == base)
            return record;
    }
    return nullptr;
}

class DeepRunTime : public Search {
protected:
    // Loads a run-time module that is then known by a path of that many characters.
    void loadDeep(const Path& file, std::size_t length)
    {
        auto* const record = recordOf(loadRunTime("deep", file));
        ASSERT_NE(record, nullptr);
        const std::wstring name = L"\\" + file.wstring();
        path_ = L"C:\\" + std::wstring(length - 3 - name.size(), L'd') + name;
        record->FullDllName.Buffer = path_.data();
        record->FullDllName.Length = static_cast<USHORT>(2 * path_.size());
        record->FullDllName.MaximumLength = record->FullDllName.Length;
        ASSERT_EQ(support::Module::loaded(file.string()).path().native(), path_);
    }

private:
    std::wstring path_; // outlives the calls
};

TEST_F(DeepRunTime, DecidesWhereToLookWhenItsPathCanBeRead)
{
    installBackend("beside");
    loadRunTime("beside", "instrsup.dll");
    loadDeep("cvirte.dll", 1022);
    EXPECT_EQ(callLibrary(), kNotFound);
}

// One character more than the run-time's own path is too many.
TEST_F(DeepRunTime, IsNotLookedBesideWhenThePathOfTheBackendDoesNotFit)
{
    installBackend("beside");
    installBackend("shared/Analysis");
    loadRunTime("beside", "instrsup.dll");
    loadDeep("cvirte.dll", 1023);
    EXPECT_EQ(callLibrary(), kNotFound);
    setSharedFolder("shared");
    EXPECT_EQ(callLibrary(), 0) << "the search goes on to the shared folder";
}

TEST_F(DeepRunTime, IsNotLookedBesideWhenItsOwnPathDoesNotFit)
{
    installBackend("beside");
    const Path expected = installBackend("shared/Analysis");
    loadRunTime("beside", "instrsup.dll");
    loadDeep("cvirte.dll", 1024);
    EXPECT_EQ(callLibrary(), kNotFound);
    setSharedFolder("shared");
    EXPECT_EQ(callLibrary(), 0) << "the search goes on to the shared folder";
    EXPECT_EQ(loadedBackend(), expected);
}

TEST_F(DeepRunTime, LeavesNothingToLookBesideWhenItIsTheOnlyOne)
{
    loadDeep("cvi_lvrt.dll", 3000);
    EXPECT_EQ(callLibrary(), kNotFound);
}

} // namespace
