// Counts as the backend takes them. Callers pass 32-bit counts; a negative one stays negative, so that the backend sees
// and reports it.
#pragma once
#include <cstdint>

namespace quordsp {

using Size = std::int64_t;

constexpr Size widen(int count) noexcept
{
    return count;
}

} // namespace quordsp
