// Leads calls that the library makes of the system through a test, by way of the library's import table.
#pragma once
#include <cstddef>

#include <gtest/gtest.h>
#include <windows.h>

#include "support/library.h"

// Has every call that the library makes to a function of kernel32.dll go to another one.
template <class Function>
void replaceImport(const char* name, Function* replacement)
{
    const auto original = support::Module::loaded("kernel32.dll").function<Function>(name);
    const auto address = support::library().symbol("QuorDSP_Bw_LPF");
    HMODULE library = nullptr;
    GetModuleHandleExA(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                       reinterpret_cast<const char*>(address), &library);
    auto* const base = reinterpret_cast<std::byte*>(library);
    const auto* const dos = reinterpret_cast<const IMAGE_DOS_HEADER*>(base);
    const auto* const headers = reinterpret_cast<const IMAGE_NT_HEADERS*>(base + dos->e_lfanew);
    const auto& table = headers->OptionalHeader.DataDirectory[IMAGE_DIRECTORY_ENTRY_IAT];
    auto** const slots = reinterpret_cast<Function**>(base + table.VirtualAddress);
    DWORD access = 0;
    VirtualProtect(slots, table.Size, PAGE_READWRITE, &access);
    int replaced = 0;
    for (std::size_t i = 0; i < table.Size / sizeof *slots; ++i)
        if (slots[i] == original) {
            slots[i] = replacement;
            ++replaced;
        }
    VirtualProtect(slots, table.Size, access, &access);
    ASSERT_EQ(replaced, 1);
}
