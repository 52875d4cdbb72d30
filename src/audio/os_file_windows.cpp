#include <algorithm>

#include <windows.h>

#include "audio/os_file.h"

namespace quordsp::os {
namespace {

bool writeAll(HANDLE file, std::span<const std::byte> bytes) noexcept
{
    constexpr std::size_t kMost = 0x7FFFF000;
    while (!bytes.empty()) {
        DWORD written = 0;
        const auto size = static_cast<DWORD>(std::min(bytes.size(), kMost));
        if (!WriteFile(file, bytes.data(), size, &written, nullptr) || written == 0)
            return false;
        bytes = bytes.subspan(written);
    }
    return true;
}

void empty(HANDLE file) noexcept
{
    SetFilePointer(file, 0, nullptr, FILE_BEGIN);
    SetEndOfFile(file);
}

} // namespace

bool writeFile(const char* path, std::span<const std::byte> bytes) noexcept
{
    const HANDLE file = CreateFileA(path, GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr, CREATE_ALWAYS,
                                    FILE_ATTRIBUTE_NORMAL, nullptr);
    if (file == INVALID_HANDLE_VALUE)
        return false;
    const bool regular = GetFileType(file) == FILE_TYPE_DISK;
    const bool complete = writeAll(file, bytes);
    if (!complete && regular)
        empty(file); // should somebody else hold it open, it cannot be deleted
    const bool closed = CloseHandle(file);
    if (complete && closed)
        return true;
    if (regular)
        DeleteFileA(path);
    return false;
}

void expectToFill(std::span<std::byte>) noexcept {} // large pages need a privilege here

} // namespace quordsp::os
