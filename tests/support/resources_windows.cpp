#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <cstring>

#include <windows.h>

#include <psapi.h>

#include "support/module.h"
#include "support/resources.h"

namespace support {
namespace {

// The system's list of all handles: GetProcessHandleCount is not to be relied on everywhere.
struct HandleRecord {
    void* object;
    std::uintptr_t process;
    std::uintptr_t handle;
    ULONG access;
    USHORT trace;
    USHORT type;
    ULONG attributes;
    ULONG reserved;
};
struct HandleList {
    std::uintptr_t count;
    std::uintptr_t reserved;
};

std::vector<std::byte> allHandles()
{
    using Query = LONG NTAPI(int information, void* list, ULONG size, ULONG* needed);
    constexpr int extendedHandles = 64;
    auto* const query = Module::loaded("ntdll.dll").function<Query>("NtQuerySystemInformation");
    std::vector<std::byte> list(1 << 16);
    while (query(extendedHandles, list.data(), static_cast<ULONG>(list.size()), nullptr) < 0)
        list.resize(2 * list.size());
    return list;
}

std::size_t openHandles()
{
    const std::vector<std::byte> bytes = allHandles();
    HandleList list{};
    std::memcpy(&list, bytes.data(), sizeof list);
    std::size_t count = 0;
    for (std::size_t i = 0; i < list.count; ++i) {
        HandleRecord record{};
        std::memcpy(&record, bytes.data() + sizeof list + i * sizeof record, sizeof record);
        count += record.process == GetCurrentProcessId();
    }
    return count;
}

std::vector<std::string> loadedModules()
{
    std::array<HMODULE, 1024> modules{};
    DWORD bytes = 0;
    K32EnumProcessModules(GetCurrentProcess(), modules.data(), sizeof modules, &bytes);
    std::vector<std::string> paths;
    for (std::size_t i = 0; i < bytes / sizeof modules[0]; ++i) {
        std::array<char, MAX_PATH> path{};
        GetModuleFileNameA(modules[i], path.data(), static_cast<DWORD>(path.size()));
        paths.emplace_back(path.data());
    }
    std::ranges::sort(paths);
    return paths;
}

} // namespace

Resources heldResources()
{
    return {openHandles(), loadedModules()};
}

void leakHandle()
{
    [[maybe_unused]] const HANDLE lost = CreateEventA(nullptr, FALSE, FALSE, nullptr);
}

} // namespace support
