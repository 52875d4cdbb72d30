// Makes allocation n of a call fail, for every n. Replaces operator new of the whole program, so only one file of a
// program includes it; it reaches the module only where modules take operator new from the program.
#pragma once

#include "nianlys.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <new>

namespace {
int allocationsLeft = -1; // before the one that fails; negative: none does
int blocksAlive = 0;
} // namespace

void* operator new(std::size_t size)
{
    if (allocationsLeft == 0)
        throw std::bad_alloc();
    allocationsLeft -= allocationsLeft > 0 ? 1 : 0;
    void* const memory = std::malloc(size > 0 ? size : 1);
    if (!memory)
        throw std::bad_alloc();
    ++blocksAlive;
    return memory;
}

void operator delete(void* memory) noexcept
{
    blocksAlive -= memory ? 1 : 0;
    std::free(memory);
}

void operator delete(void* memory, std::size_t) noexcept
{
    operator delete(memory);
}

// The run-time library's own array forms come down to these, a sanitizer's do not.
void* operator new[](std::size_t size)
{
    return operator new(size);
}

void operator delete[](void* memory) noexcept
{
    operator delete(memory);
}

void operator delete[](void* memory, std::size_t) noexcept
{
    operator delete(memory);
}

namespace quordsp::backend {

// Calls until no allocation fails any more; returns how many did, each of which must have left everything as it was.
template <class Call, class Untouched>
int failEveryAllocation(Call call, Untouched untouched)
{
    for (int n = 0;; ++n) {
        const int before = blocksAlive;
        allocationsLeft = n;
        const Status status = call();
        allocationsLeft = -1;
        EXPECT_EQ(blocksAlive, before) << "allocation " << n;
        if (status == Status::Success)
            return n;
        EXPECT_EQ(status, Status::OutOfMemory) << "allocation " << n;
        EXPECT_TRUE(untouched()) << "allocation " << n;
        if (status != Status::OutOfMemory || n > 1000)
            return 0;
    }
}

} // namespace quordsp::backend
