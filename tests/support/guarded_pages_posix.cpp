#include <new>

#include <sys/mman.h>
#include <unistd.h>

#include "support/guarded_pages.h"

namespace support {
namespace {

std::size_t pageSize()
{
    return static_cast<std::size_t>(sysconf(_SC_PAGESIZE));
}

} // namespace

GuardedPages::GuardedPages(std::size_t bytes)
{
    const std::size_t page = pageSize();
    const std::size_t length = (bytes + page - 1) / page * page;
    void* const memory = mmap(nullptr, length + 2 * page, PROT_NONE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    if (memory == MAP_FAILED)
        throw std::bad_alloc();
    bytes_ = {static_cast<std::byte*>(memory) + page, length};
    if (mprotect(bytes_.data(), length, PROT_READ | PROT_WRITE) != 0)
        throw std::bad_alloc();
}

GuardedPages::~GuardedPages()
{
    munmap(bytes_.data() - pageSize(), bytes_.size() + 2 * pageSize());
}

void GuardedPages::setWritable(bool writable)
{
    if (writable != writable_ &&
        mprotect(bytes_.data(), bytes_.size(), writable ? PROT_READ | PROT_WRITE : PROT_READ) != 0)
        throw std::bad_alloc();
    writable_ = writable;
}

} // namespace support
