#include <new>

#include <windows.h>

#include "support/guarded_pages.h"

namespace support {
namespace {

std::size_t pageSize()
{
    SYSTEM_INFO info;
    GetSystemInfo(&info);
    return info.dwPageSize;
}

} // namespace

GuardedPages::GuardedPages(std::size_t bytes)
{
    const std::size_t page = pageSize();
    const std::size_t length = (bytes + page - 1) / page * page;
    void* const memory = VirtualAlloc(nullptr, length + 2 * page, MEM_RESERVE, PAGE_NOACCESS);
    if (!memory)
        throw std::bad_alloc();
    bytes_ = {static_cast<std::byte*>(memory) + page, length};
    if (!VirtualAlloc(bytes_.data(), length, MEM_COMMIT, PAGE_READWRITE))
        throw std::bad_alloc();
}

GuardedPages::~GuardedPages()
{
    VirtualFree(bytes_.data() - pageSize(), 0, MEM_RELEASE);
}

void GuardedPages::setWritable(bool writable)
{
    DWORD before = 0;
    if (writable != writable_ &&
        !VirtualProtect(bytes_.data(), bytes_.size(), writable ? PAGE_READWRITE : PAGE_READONLY, &before))
        throw std::bad_alloc();
    writable_ = writable;
}

} // namespace support
