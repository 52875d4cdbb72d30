// Makes allocation n of a call fail, for every n. Replaces operator new of the whole program, so only one file of a
// program includes it; it reaches a module only where modules take operator new from the program.
#pragma once
#include <malloc.h>

#include <cstdlib>
#include <new>

#include <gtest/gtest.h>

namespace support {
namespace {

struct Failure {
    int allocationsLeft = -1; // before the one that fails; negative: none does
    bool lasting = false;     // all that follow fail, too
    bool hasCome = false;

    bool comesNow()
    {
        if (allocationsLeft < 0)
            return false;
        const bool now = allocationsLeft == 0 && (lasting || !hasCome);
        allocationsLeft -= allocationsLeft > 0 ? 1 : 0;
        hasCome = hasCome || now;
        return now;
    }
};

Failure failure;
int blocksAlive = 0;
std::size_t bytesAlive = 0;

} // namespace
} // namespace support

void* operator new(std::size_t size, const std::nothrow_t&) noexcept
{
    if (support::failure.comesNow())
        return nullptr;
    void* const memory = std::malloc(size > 0 ? size : 1);
    support::blocksAlive += memory ? 1 : 0;
    support::bytesAlive += malloc_usable_size(memory);
    return memory;
}

void* operator new(std::size_t size)
{
    if (void* const memory = operator new(size, std::nothrow))
        return memory;
    throw std::bad_alloc();
}

void operator delete(void* memory) noexcept
{
    support::blocksAlive -= memory ? 1 : 0;
    support::bytesAlive -= malloc_usable_size(memory);
    std::free(memory);
}

// The run-time library's own other forms come down to these, a sanitizer's do not.
void* operator new[](std::size_t size)
{
    return operator new(size);
}

void* operator new[](std::size_t size, const std::nothrow_t& tag) noexcept
{
    return operator new(size, tag);
}

void operator delete(void* memory, std::size_t) noexcept
{
    operator delete(memory);
}

void operator delete(void* memory, const std::nothrow_t&) noexcept
{
    operator delete(memory);
}

void operator delete[](void* memory) noexcept
{
    operator delete(memory);
}

void operator delete[](void* memory, std::size_t) noexcept
{
    operator delete(memory);
}

void operator delete[](void* memory, const std::nothrow_t&) noexcept
{
    operator delete(memory);
}

namespace support {

// Calls until no allocation fails any more; returns how many did, alone or with all that followed. Each of those calls
// must keep no memory; check is given the number of the allocation that failed.
template <class Call, class Check>
int failEveryAllocation(Call call, Check check)
{
    for (int n = 0; n < 1000; ++n)
        for (const bool lasting : {false, true}) {
            const int before = blocksAlive;
            failure = {n, lasting};
            call();
            const bool failed = failure.hasCome;
            failure = {};
            EXPECT_EQ(blocksAlive, before) << "allocation " << n;
            if (!failed)
                return n;
            check(n);
        }
    ADD_FAILURE() << "allocations without end";
    return 0;
}

} // namespace support
